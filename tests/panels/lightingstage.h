#pragma once

#include "panels/colorbutton.h"
#include "panels/pngcolorlist.h"
#include "panelstage.h"
#include "support/pictures.h"
#include "support/popups.h"

inline constexpr const KnownBar &kBottomBar = kKnownBars[2];

/// A control of the bottom bar as it is to be, and what opens from it; rectangles in the open bar.
struct KnownLight
{
    const char *name = "";
    UpRect frame;
    int tag = 0;
    const char *label = "";
    UpRect labelRect;
    const char *popup = "";   ///< the window that opens from it
    const char *content = ""; ///< what that shows
    int contentTag = 0;
    UpRect below; ///< where it opens where the screen has room
    UpRect above;
};

// clang-format off
inline constexpr KnownLight kColorLight{
    "btnColorButton", {20, 26, 122, 29}, 4101, "Color", {20, 56, 125, 15},
    "pColorListbox", "pColorListView", 4102, {24, -67, 118, 96}, {24, 52, 118, 96}};
inline constexpr KnownLight kIntensityLight{
    "btnIntensity", {167, 25, 122, 29}, 4097, "Intensity", {167, 56, 125, 15},
    "pListbox", "pListboxView", 4099, {167, -55, 122, 80}, {167, 54, 122, 80}};
inline constexpr KnownLight kPulsationLight{
    "btnPulsation", {314, 25, 122, 29}, 4098, "Pulsation", {315, 56, 125, 15},
    "pListbox", "pListboxView", 4100, {314, -55, 122, 80}, {314, 54, 122, 80}};
// clang-format on

inline constexpr const KnownLight *kKnownLights[] = {&kColorLight, &kIntensityLight,
                                                     &kPulsationLight};

/// A control that is chosen from a list of levels: a row is what the record holds.
struct KnownLightLevel
{
    const KnownLight &light;
    const char *texts[4];
    std::uint32_t ProfileInfo::*field;
};

inline constexpr KnownLightLevel kKnownLightLevels[] = {
    {kIntensityLight, {"High", "Medium", "Low", "Off"}, &ProfileInfo::LED_INTENSITY},
    {kPulsationLight, {"Fast", "Medium", "Low", "Off"}, &ProfileInfo::LED_PULSATION},
};

inline const KnownLightLevel &otherThan(const KnownLightLevel &known)
{
    return &known == kKnownLightLevels ? kKnownLightLevels[1] : kKnownLightLevels[0];
}

/// Each control as a row of a test's data, and each with levels.
inline void lightRows()
{
    QTest::addColumn<const KnownLight *>("known");
    for (const KnownLight *known : kKnownLights)
        QTest::newRow(known->label) << known;
}

inline void lightLevelRows()
{
    QTest::addColumn<const KnownLightLevel *>("known");
    for (const KnownLightLevel &known : kKnownLightLevels)
        QTest::newRow(known.light.label) << &known;
}

/// Each level of each.
inline void lightLevelCodeRows()
{
    QTest::addColumn<const KnownLightLevel *>("known");
    QTest::addColumn<int>("code");
    for (const KnownLightLevel &known : kKnownLightLevels) {
        for (int code = 0; code < 4; ++code)
            QTest::addRow("%s %s", known.light.label, known.texts[code]) << &known << code;
    }
}

/// The windows with something to choose from that are open.
inline std::vector<QWidget *> openPopups()
{
    return openWindows({kColorLight.popup, kIntensityLight.popup});
}

/// What has been opened from a control, once it has the keyboard.
inline QWidget &opened(const KnownLight &known)
{
    const auto popups = openPopups();
    if (popups.size() != 1 || popups[0]->objectName() != QLatin1String(known.popup) ||
        !QTest::qWaitForWindowActive(popups[0]))
        qFatal("nothing opens from %s", known.name);
    return *PanelsStage::part(popups[0], known.content);
}

inline void setColour(ProfileInfo &profile, const QColor &colour)
{
    profile.LED_COLOR_R = static_cast<std::uint32_t>(colour.red());
    profile.LED_COLOR_G = static_cast<std::uint32_t>(colour.green());
    profile.LED_COLOR_B = static_cast<std::uint32_t>(colour.blue());
}

/// The program with its bottom bar. Where the windows come up, the screen has no room below the
/// bar.
struct LightingStage : BarsStage
{
    View &content() const { return BarsStage::content(kBottomBar); }
    QAbstractButton &button(const KnownLight &known) const
    {
        auto *const found = content().findChild<QAbstractButton *>(QLatin1String(known.name));
        if (!found)
            qFatal("no %s", known.name);
        return *found;
    }
    colorbutton &colorButton() const { return static_cast<colorbutton &>(button(kColorLight)); }
    QString caption(const KnownLight &known) const
    {
        return static_cast<HoverButton &>(button(known)).captionText();
    }
    /// The middle of the colour that the colour button shows.
    QColor swatch() const { return shownAt(colorButton(), {51, 16}); }

    /// Moves the windows up until there is room below the bar.
    void makeRoomBelow() const { program.window().move(60, -40); }
    /// Where a rectangle of the open bar is on the screen.
    QRect onScreen(UpRect rect) const
    {
        const QWidget &bar = this->bar(kBottomBar);
        return UpHost(bar.height()).down(rect).translated(bar.pos());
    }

    /// Opens the bar, or shuts it, by its handle.
    void toggleBottom() { clickToggle(kBottomBar); }
    /// What a click on a control opens, once that has the keyboard.
    QWidget &openFrom(const KnownLight &known) const
    {
        pointer::click(button(known));
        return opened(known);
    }
    /// The same, by what the window shows.
    pngListBox &openLevels(const KnownLightLevel &known) const
    {
        return static_cast<pngListBox &>(openFrom(known.light));
    }
    pngcolorlist &openPicture() const { return static_cast<pngcolorlist &>(openFrom(kColorLight)); }

    /// Starts the program anew with what the record holds as its settings file.
    void restart()
    {
        xmlconfig store;
        store.setConfigfileName(program.settings.path());
        store.WriteConfigFile();
        program.interface.reset();
        program.start(program.settings.path());
    }
};
