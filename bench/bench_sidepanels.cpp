// The side panels: a click on a header, until the panel below it shows, and a click on a mouse
// button, until the panels show where its function lives.

#include "app/barframe.h"
#include "clicks.h"
#include "controls/collapsiblepanel.h"
#include "functions/MyOutlineView.h"
#include "support/mainwindow.h"

namespace {

constexpr double kMostMilliseconds = 8;
constexpr FunctionCode kCommands[] = {0x3001, 0x3034, 0x6004, 0x7009};
constexpr FunctionCode kCpiStep = 18;
constexpr QPoint kHeader{60, 10};

/// The program with the right bar open. Buttons 1 to 4 carry game commands far from each other in
/// the tree, button 5 a CPI step.
class OpenBar
{
public:
    OpenBar()
    {
        std::ranges::copy(kCommands, CurrentProfile().BUTTON);
        CurrentProfile().BUTTON[std::size(kCommands)] = kCpiStep;
        m_stage.interface->controller().toggleRightBar();
        if (!QTest::qWaitFor([&] { return tree().parentWidget()->isVisible() && isOpen(); }))
            qFatal("the bar does not open");
        // Afterwards all categories that are shown have been filled.
        for (int number = 1; number <= static_cast<int>(std::size(kCommands)); ++number)
            showFunction(number);
    }

    /// Clicks on the headers of the tree and of the CPI list by turns.
    double expandTheOther()
    {
        QWidget &list = *part("pDPIListbox");
        QWidget &other = list.isVisible() ? *tree().viewport() : list;
        const QWidget *const panel = list.isVisible() ? tree().parentWidget() : list.parentWidget();
        const double seconds = timeClick([&] { pointer::click(*panel, kHeader); }, {&other});
        return other.isVisible() ? seconds : -1;
    }

    /// Clicks on the buttons by turns. Going from one command to another the tree scrolls, from a
    /// command to the CPI step another panel expands.
    double showTheNext()
    {
        m_button = m_button % (static_cast<int>(std::size(kCommands)) + 1) + 1;
        return showFunction(m_button);
    }

private:
    QWidget *part(const char *name) const
    {
        return m_stage.window().findChild<QWidget *>(QLatin1String(name));
    }
    MyOutlineView &tree() const { return *static_cast<MyOutlineView *>(part("pOutlineView")); }
    bool isOpen() const { return part("RightBar")->width() == barReach(BarSide::Right); }

    double showFunction(int number)
    {
        const auto code = CurrentProfile().BUTTON[number - 1];
        const bool isCommand = code != kCpiStep;
        QWidget *const shown = isCommand ? tree().viewport() : part("pDPIListbox");
        HoverButton &button = m_stage.mouseButton(number);
        const double seconds = timeClick([&] { pointer::click(button); }, {shown, &button});
        const QModelIndex row = tree().currentIndex();
        const bool shows =
            !isCommand || (OutlineModel::itemAt(row)->getIndexId() == code &&
                           tree().viewport()->rect().contains(tree().visualRect(row)));
        return shown->isVisible() && shows ? seconds : -1;
    }

    MainWindowStage m_stage;
    int m_button = 0;
};

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    OpenBar bar;
    measureClicks("expandPanel", [&] { return bar.expandTheOther(); });
    measureClicks("showFunction", [&] { return bar.showTheNext(); });
    return runClickBenchmarks(argc, argv, kMostMilliseconds);
}
