#pragma once

#include "panels/barview.h"
#include "support/animatedstyle.h"
#include "support/animationclock.h"
#include "support/mainwindow.h"

/// One bar as it is to be, all rectangles from a lower left corner. Written out, so that the
/// program's own tables are held against something.
struct KnownBar
{
    const char *window = "";
    const char *title = "";
    int tag = 0;
    UpRect shut; ///< on the screen, from the main window's corner
    UpRect open;
    UpRect toggle; ///< in the shut bar
    UpPoint toggleOpen;
    const char *background = "";
    UpRect titleRect;
    const char *shutFace = "";
    const char *shutLit = "";
    const char *openFace = "";
    const char *openLit = "";
    std::span<const UpRect> labels = {}; ///< where something is written beside a control
};

// clang-format off
inline constexpr UpRect kLeftLabels[] = {
    {25, 360, 70, 20},  {30, 320, 150, 15}, {30, 280, 150, 15}, {25, 240, 150, 15},
    {25, 200, 150, 15}, {65, 180, 40, 15},  {125, 180, 40, 15},
};
inline constexpr UpRect kBottomLabels[] = {
    {20, 56, 125, 15}, {167, 56, 125, 15}, {315, 56, 125, 15},
};
inline constexpr KnownBar kKnownBars[] = {
    {"LeftBar", "Mouse Properties", 0x2000,
     {-16, 94, 16, 452}, {-202, 94, 202, 452}, {1, 130, 17, 192}, {1, 130},
     "leftBar", {70, 430, 130, 20}, "leftmini3", "leftmini4", "leftmini1", "leftmini2",
     kLeftLabels},
    {"RightBar", "Button Functions", 0x1000,
     {654, 89, 16, 461}, {654, 89, 200, 461}, {0, 133, 15, 195}, {185, 133},
     "rightN", {28, 426, 130, 20}, "rightmini", "rightminiO", "rightmini2", "rightmini2O"},
    {"BottomBar", "Illumination Settings", 4096,
     {94, -16, 466, 16}, {94, -101, 466, 101}, {137, 1, 192, 17}, {137, 1},
     "bottomBar", {185, 81, 200, 15}, "botmini3", "botmini4", "botmini1", "botmini2",
     kBottomLabels},
};
// clang-format on

/// Each bar as a row of a test's data.
inline void barRows()
{
    QTest::addColumn<const KnownBar *>("known");
    for (const KnownBar &known : kKnownBars)
        QTest::newRow(known.window) << &known;
}

/// The program with its bars, on that settings file; slides take 200 ms of the clock's time.
struct BarsStage
{
    static constexpr int kDuration = 200;

    explicit BarsStage(const QByteArray &file = {}) : program(file)
    {
        animateFor(kDuration);
        // On this platform a shown window takes the keyboard, whatever it asks for.
        program.window().activateWindow();
        if (!QTest::qWaitFor([&] { return QApplication::activeWindow() == &program.window(); }))
            qFatal("the main window does not get the keyboard");
    }

    custumwindow &bar(const KnownBar &known) const
    {
        return found<custumwindow>(program.window(), known.window);
    }
    HoverButton &toggle(const KnownBar &known) const
    {
        return found<HoverButton>(bar(known), "btnToggle");
    }
    View &content(const KnownBar &known) const
    {
        return *static_cast<View *>(toggle(known).parentWidget());
    }
    /// Whether the bar lies there beside the main window.
    bool lies(const KnownBar &known, UpRect frame) const
    {
        const UpRect main = program.window().frame();
        return bar(known).frame() ==
               UpRect{main.x + frame.x, main.y + frame.y, frame.width, frame.height};
    }

    void arrive() { clock.pass(kDuration); }
    void passHalf() { clock.pass(kDuration / 2); }
    /// Clicks the handle, and waits until the bar stands.
    void clickToggle(const KnownBar &known)
    {
        pointer::click(toggle(known));
        arrive();
    }
    /// The pointer on the bar, off its handle.
    void pointAway(const KnownBar &known) const { pointer::move(bar(known), {5, 5}); }

    AnimationClock clock;
    MainWindowStage program;

protected:
    template <class Wanted>
    static Wanted &found(const QWidget &parent, const char *name)
    {
        auto *const widget = parent.findChild<Wanted *>(QString::fromLatin1(name));
        if (!widget)
            qFatal("no %s", name);
        return *widget;
    }
};
