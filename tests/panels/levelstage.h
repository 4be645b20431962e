#pragma once

#include "barsstage.h"
#include "mainview/quickliststage.h"

#include <array>

inline constexpr const KnownBar &kLeftBar = kKnownBars[0];
inline constexpr UpRect kCpiPlace{97, 358, 101, 27};

/// A slider of the left bar as it is to be.
struct KnownLevel
{
    const char *name = "";
    UpRect place;
    int tag = 0;
    Qt::Orientation orientation = Qt::Horizontal;
    std::uint32_t ProfileInfo::*field = nullptr;
    const char *logged = "";

    constexpr bool isUpright() const { return orientation == Qt::Vertical; }
    constexpr int length() const { return isUpright() ? place.height : place.width; }
    /// The place in the slider, y downwards, so far from its left or bottom edge.
    constexpr QPoint pointAt(int along) const
    {
        return isUpright() ? QPoint(8, place.height - along) : QPoint(along, 8);
    }
    /// The level that a press so far from that edge stands for.
    constexpr std::uint32_t levelAt(int along) const
    {
        return static_cast<std::uint32_t>(std::clamp(along * 9 / length(), 1, 10));
    }
    /// A place that stands for that level, near the middle of the way that does.
    constexpr QPoint pointOf(int level) const { return pointAt((2 * level + 1) * length() / 18); }
};

// clang-format off
inline constexpr KnownLevel kKnownLevels[] = {
    {"dbClickSpeedBar", {42, 303, 124, 16}, 0x3000, Qt::Horizontal,
     &ProfileInfo::DBCLICK_SPEED, "IDC_PROGRESSBAR_DBCLICK"},
    {"scrollSpeedBar", {42, 260, 124, 16}, 0x3001, Qt::Horizontal,
     &ProfileInfo::SCROLL_SPEED, "IDC_PROGRESSBAR_SCROLLSPEED"},
    {"pointSpeedBar", {42, 222, 124, 16}, 0x3002, Qt::Horizontal,
     &ProfileInfo::SENSITIVITY, "IDC_PROGRESSBAR_POINTSPEED"},
    {"advSensXBar", {70, 62, 16, 112}, 0x3003, Qt::Vertical,
     &ProfileInfo::ADVANCED_SEN_X, "IDC_PROGRESSBAR_ADVSENSX"},
    {"advSensYBar", {130, 62, 16, 112}, 0x3004, Qt::Vertical,
     &ProfileInfo::ADVANCED_SEN_Y, "IDC_PROGRESSBAR_ADVSENSY"},
};
// clang-format on

/// Each slider as a row of a test's data.
inline void levelRows()
{
    QTest::addColumn<const KnownLevel *>("known");
    for (const KnownLevel &known : kKnownLevels)
        QTest::newRow(known.name) << &known;
}

/// What the left bar edits of a profile: the code of the CPI step, then the five levels.
using Sensor = std::array<std::uint32_t, 1 + std::size(kKnownLevels)>;

inline void putSensor(ProfileInfo &profile, const Sensor &sensor)
{
    profile.DPI_VALUE = sensor[0];
    for (std::size_t i = 0; i < std::size(kKnownLevels); ++i)
        profile.*kKnownLevels[i].field = sensor[i + 1];
}

/// The program with the controls of its left bar, which is shut at first.
struct LevelStage : BarsStage
{
    using BarsStage::BarsStage;

    custumwindow &left() const { return bar(kLeftBar); }
    HoverButton &cpi() const { return found<HoverButton>(content(kLeftBar), "btnDPI"); }
    pngProgressBar &slider(const KnownLevel &known) const
    {
        return found<pngProgressBar>(content(kLeftBar), known.name);
    }
    /// What the controls show: the caption of the CPI button, then the positions of the sliders.
    QString shows() const
    {
        QStringList texts{cpi().captionText()};
        for (const KnownLevel &known : kKnownLevels)
            texts << QString::number(slider(known).getPos());
        return texts.join(QLatin1Char(','));
    }

    /// Whether the bar's window has the keyboard. The toolkit's own word for it counts a window
    /// that belongs to it too.
    bool leftIsKey() const { return QApplication::activeWindow() == &left(); }

    void toggleLeft() { clickToggle(kLeftBar); }
    /// Gives the bar's window the keyboard, as a desktop does that clicks into it.
    void activateLeft() const
    {
        left().activateWindow();
        if (!QTest::qWaitFor([this] { return leftIsKey(); }))
            qFatal("the left bar does not get the keyboard");
    }
    /// As if nothing had been changed or logged yet.
    void forget()
    {
        program.interface->controller().setMainViewApplyStatus(false);
        program.log.lines.clear();
    }
};

/// With the bar open.
struct OpenLevelStage : LevelStage
{
    explicit OpenLevelStage(const QByteArray &file = {}) : LevelStage(file) { toggleLeft(); }

    /// Opens the list of CPI steps by a click on its button.
    pngListBox &openList() const
    {
        pointer::click(cpi());
        return openedList();
    }
};
