#include "app/firstpainting.h"
#include "app/KyrGMAppDelegate.h"
#include "support/drop.h"
#include "support/mainwindow.h"
#include "support/suite.h"

/// The main window as the program puts it up.
class tst_interface : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theMainWindowHasItsSizeAndTitle();
    void theMainWindowStandsInTheMiddleOfTheScreen();
    void theMainViewFillsTheWindow();
    void theWindowIsShownAtOnce();
    void theBarsComeAfterTheFirstPainting();
    void whatComesAfterTheFirstPaintingComesInOrder();
    void aWindowThatIsGoneHasNoFirstPainting();
    void theBackgroundDragsTheWindow();
    void aButtonDoesNotDragTheWindow_data();
    void aButtonDoesNotDragTheWindow();
    void theMinimiseButtonMinimises();
    void aCloseRequestCommitsAndQuits();
    void theDelegateRefersToItsWindow();
    void theDelegateForgetsAWindowThatIsGone();
};

namespace {

/// Counts the bars that are there when the main view is painted for the first time.
class PaintWatch : public QObject
{
public:
    PaintWatch() { qApp->installEventFilter(this); }

    int barsAtFirstPainting = -1;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && dynamic_cast<MainView *>(watched))
            count();
        return false;
    }

private:
    void count()
    {
        qApp->removeEventFilter(this);
        const QWidgetList windows = QApplication::topLevelWidgets();
        const auto isBar = [](const QWidget *window) {
            return window->windowType() == Qt::Tool && window->isVisible();
        };
        barsAtFirstPainting = static_cast<int>(std::ranges::count_if(windows, isBar));
    }
};

const QWidget &bar(const QWidget &main, const char *name)
{
    return *main.findChild<custumwindow *>(QLatin1String(name));
}

} // namespace

void tst_interface::theMainWindowHasItsSizeAndTitle()
{
    const MainWindowStage stage;
    QCOMPARE(stage.window().size(), QSize(654, 640));
    QCOMPARE(stage.window().minimumSize(), QSize(654, 640));
    QCOMPARE(stage.window().maximumSize(), QSize(654, 640));
    QCOMPARE(stage.window().windowTitle(), QStringLiteral("Kyr Torvane MMO Gaming Mouse"));
    QVERIFY(stage.window().windowFlags().testFlag(Qt::FramelessWindowHint));
    QCOMPARE(stage.window().windowType(), Qt::Window);
}

void tst_interface::theMainWindowStandsInTheMiddleOfTheScreen()
{
    const MainWindowStage stage;
    const QPoint off = stage.window().geometry().center() -
                       QGuiApplication::primaryScreen()->availableGeometry().center();
    QVERIFY(off.manhattanLength() <= 1);
}

void tst_interface::theMainViewFillsTheWindow()
{
    const MainWindowStage stage;
    QCOMPARE(stage.view().geometry(), QRect(0, 0, 654, 640));
    QCOMPARE(stage.view().parentWidget(), &stage.window());
}

void tst_interface::theWindowIsShownAtOnce()
{
    const TestSettings settings;
    LocalNotificationCenter center;
    const Interface interface({settings.path(), &center, [] {}});
    QVERIFY(interface.mainWindow().isVisible());
    QVERIFY(interface.mainView().isVisible());
}

void tst_interface::theBarsComeAfterTheFirstPainting()
{
    PaintWatch watch;
    const MainWindowStage stage;
    QCOMPARE(watch.barsAtFirstPainting, 0);
    for (const char *name : {"LeftBar", "RightBar", "BottomBar"})
        QVERIFY2(bar(stage.window(), name).isVisible(), name);
}

void tst_interface::whatComesAfterTheFirstPaintingComesInOrder()
{
    QWidget window;
    window.show();
    std::vector<int> calls;
    for (int number = 0; number < 3; ++number)
        afterFirstPainting(window, [&calls, number] { calls.push_back(number); });
    QCOMPARE(calls, std::vector<int>{});
    QTRY_COMPARE(calls, (std::vector{0, 1, 2}));
    window.hide();
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(calls.size(), std::size_t{3});
}

void tst_interface::aWindowThatIsGoneHasNoFirstPainting()
{
    bool called = false;
    {
        QWidget window;
        window.show();
        afterFirstPainting(window, [&called] { called = true; });
    }
    QCoreApplication::processEvents();
    QVERIFY(!called);
}

void tst_interface::theBackgroundDragsTheWindow()
{
    const MainWindowStage stage;
    const QPoint before = stage.window().pos();
    pointer::press(stage.window(), {40, 300});
    pointer::move(stage.window(), {60, 310});
    QCOMPARE(stage.window().pos(), before + QPoint(20, 10));
    pointer::release(stage.window(), {40, 300});
}

void tst_interface::aButtonDoesNotDragTheWindow_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("enabled") << QStringLiteral("Button1");
    QTest::newRow("disabled") << QStringLiteral("ButtonApply");
}

void tst_interface::aButtonDoesNotDragTheWindow()
{
    QFETCH(QString, name);
    const MainWindowStage stage;
    const QPoint before = stage.window().pos();
    const HoverButton &button = stage.button(name);
    pointer::press(button, {10, 10});
    pointer::move(button, {60, 10});
    pointer::release(button, {60, 10});
    QCOMPARE(stage.window().pos(), before);
}

void tst_interface::theMinimiseButtonMinimises()
{
    const MainWindowStage stage;
    pointer::click(stage.button("BtnMin"));
    QTRY_VERIFY(stage.window().isMinimized());
    QCOMPARE(stage.quits, 0);
    QVERIFY(stage.written().isEmpty());
}

void tst_interface::aCloseRequestCommitsAndQuits()
{
    const MainWindowStage stage;
    dropText(stage.mouseButton(3), QStringLiteral("11"));
    QVERIFY(!stage.window().close());
    QCOMPARE(stage.quits, 1);
    QVERIFY(stage.window().isVisible());
    QCOMPARE(stage.requestsSinceStart(), std::vector{takeSettings()});
    QCOMPARE(stage.written()[QStringLiteral("PROFILE_1")].toMap()[QStringLiteral("BUTTON_3")], 11);
}

void tst_interface::theDelegateRefersToItsWindow()
{
    const MainWindowStage stage;
    KyrGMAppDelegate delegate;
    QCOMPARE(delegate.window(), nullptr);
    delegate.setWindow(&stage.window());
    delegate.applicationDidFinishLaunching();
    QCOMPARE(delegate.window(), &stage.window());
}

void tst_interface::theDelegateForgetsAWindowThatIsGone()
{
    MainWindowStage stage;
    KyrGMAppDelegate delegate;
    delegate.setWindow(&stage.window());
    stage.interface.reset();
    QCOMPARE(delegate.window(), nullptr);
}

KYR_GUI_TEST(tst_interface)
#include "tst_interface.moc"
