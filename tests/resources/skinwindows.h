#pragma once

#include "controls/pngProgressBar.h"
#include "dialogs/AboutView.h"
#include "dialogs/dialogwindow.h"
#include "dialogs/PopupProgressBar.h"
#include "dialogs/WarnOneView.h"
#include "dialogs/WarnTwoView.h"
#include "macro/MacroDelWarn.h"
#include "macro/MacroView.h"
#include "panels/charInfoView.h"
#include "panels/colorbutton.h"
#include "support/mainwindow.h"

/// A control whose faces are cut from its window's pictures.
struct CutControl
{
    QString name;
    QRect place;            ///< in the pictures, in points, y downwards
    QRegion face;           ///< of it, what shows of the pictures
    bool isPressed = false; ///< or only uncovered, or only lit under the pointer
};

/// A window drawn in each state of its controls.
struct SkinWindow
{
    const char *name = "";
    std::vector<const char *> pictures; ///< normal, over, down, disabled: as many as there are
    std::vector<CutControl> (*controls)() = nullptr;
};

namespace detail {

/// Those that have pictures of their own.
inline bool hasOwnPictures(const QWidget &control)
{
    static const QStringList names = [] {
        QStringList own{QStringLiteral("btnToggle"), QStringLiteral("btnExpand"),
                        QStringLiteral("btnNew"), QStringLiteral("btnDelete"),
                        QStringLiteral("CheckButtonDel")};
        for (const macrolayout::ChoiceRow &row : macrolayout::kChoices)
            own << QLatin1String(row.name);
        return own;
    }();
    return names.contains(control.objectName());
}

/// The frame around the colour that the button shows.
inline QRegion faceOfColour(QRect place)
{
    return QRegion(place) - place.adjusted(4, 6, -24, -3);
}

/// In the order in which they lie over each other.
inline std::vector<CutControl> cutControls(const QWidget &window)
{
    std::vector<CutControl> controls;
    for (const QWidget *widget : window.findChildren<QWidget *>()) {
        const QRect place = widget->geometry();
        const bool isButton = dynamic_cast<const HoverButton *>(widget);
        const bool isColour = dynamic_cast<const colorbutton *>(widget);
        if (!isButton && !isColour && !dynamic_cast<const pngProgressBar *>(widget))
            continue;
        if (!hasOwnPictures(*widget))
            controls.push_back({widget->objectName(), place,
                                isColour ? faceOfColour(place) : QRegion(place), isButton});
    }
    return controls;
}

inline std::vector<CutControl> controlsOfMainView()
{
    return cutControls(MainWindowStage().view());
}

template <int bar>
std::vector<CutControl> controlsOfBar()
{
    constexpr const char *names[] = {"LeftBar", "RightBar", "BottomBar"};
    const MainWindowStage stage;
    return cutControls(*stage.window().findChild<QWidget *>(QLatin1String(names[bar])));
}

template <class Dialog>
std::vector<CutControl> controlsOfDialog()
{
    custumwindow owner({0, 0, 100, 100}, nullptr);
    return cutControls(*makeDialogAt<Dialog>(owner));
}

} // namespace detail

// clang-format off
inline const SkinWindow kSkinWindows[] = {
    {"main view", {"mainbk", "mainO", "mainD", "mainDis"}, detail::controlsOfMainView},
    {"left bar", {"leftBar", "leftbarO", "leftbarD"}, detail::controlsOfBar<0>},
    {"right bar", {"rightN", "rightO", "rightD"}, detail::controlsOfBar<1>},
    {"bottom bar", {"bottomBar", "bottomO", "bottomD"}, detail::controlsOfBar<2>},
    {"progress", {"Pop_UP_normal", "Pop_UP_over", "Pop_UP_down"}, detail::controlsOfDialog<PopupProgressBar>},
    {"message", {"warnone_n", "warnone_o", "warnone_d"}, detail::controlsOfDialog<WarnOneView>},
    {"question", {"warntwo_n", "warntwo_o", "warntwo_d"}, detail::controlsOfDialog<WarnTwoView>},
    {"about", {"About_n", "about_o", "about_d"}, detail::controlsOfDialog<AboutView>},
    {"macro deletion", {"warn_n", "warn_o", "warn_d"}, detail::controlsOfDialog<MacroDelWarn>},
    {"macro editor", {"Macro_N", "Macro_O", "Macro_D"}, detail::controlsOfDialog<MacroView>},
    {"character", {"charinfo_n", "charinfo_o", "charinfo_d"}, detail::controlsOfDialog<charInfoView>},
};
// clang-format on
