#include "platform/modalrun.h"
#include "support/pointer.h"
#include "support/suite.h"

#include <QtCore/QThread>
#include <QtWidgets/QPushButton>

#include <functional>
#include <memory>

/// Running a window modally, and every way in which that ends.
class tst_modalrun : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theWindowIsShownModalAndHasTheKeyboard();
    void theOtherWindowsTakeNoInputMeanwhile();
    void aWindowThatIsShownAlreadyBecomesModal();
    void stopEndsTheRunAndLeavesTheWindowShown();
    void theRunEndsWithItsWindow_data();
    void theRunEndsWithItsWindow();
    void aWindowHiddenByTheDesktopGoesOn();
    void aRunStoppedWhileItsWindowComesUpEnds();
    void theOwnerMayGoDuringTheRun();
    void theOwnerAndTheWindowMayGoTogether();
    void theProgramEndsDuringARun();
    void theProgramEndsDuringNestedRuns();
    void anInnerRunEndsBeforeTheOuterOne();
    void aRunIsNotRunTwiceAtOnce();
    void aRunMayBeRunAgain();
    void aWindowThatLostTheKeyboardGetsItBack();
    void stopWithoutARunDoesNothing();
};

namespace {

using Call = std::function<void()>;

/// Makes the call from the event loop.
void later(const Call &call)
{
    QMetaObject::invokeMethod(qApp, call, Qt::QueuedConnection);
}

void waitUntilActive(QWidget &window)
{
    if (!QTest::qWaitFor([&] { return QApplication::activeWindow() == &window; }))
        qFatal("the window does not get the keyboard");
}

int loopLevel()
{
    return QThread::currentThread()->loopLevel();
}

/// A shown window with a button, the program's main one, and a second, hidden one to run.
struct RunStage
{
    RunStage()
    {
        main.resize(200, 100);
        button.resize(100, 50);
        QObject::connect(&button, &QPushButton::clicked, &button, [this] { ++clicks; });
        main.show();
        waitUntilActive(main);
        window->resize(120, 80);
    }
    /// Runs the window; `during` is called in the run, which ends when the test has failed already.
    void runWith(const Call &during)
    {
        later([this, during] {
            during();
            if (QTest::currentTestFailed())
                window.reset();
        });
        run->run(*window);
    }
    void clickTheButton() { pointer::click(button); }

    QWidget main;
    QPushButton button{&main};
    int clicks = 0;
    std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
    std::unique_ptr<ModalRun> run = std::make_unique<ModalRun>();
};

/// Makes a call while it comes up.
class CallingWindow : public QWidget
{
public:
    Call shown;

protected:
    void showEvent(QShowEvent * /*event*/) override { shown(); }
};

} // namespace

void tst_modalrun::theWindowIsShownModalAndHasTheKeyboard()
{
    RunStage stage;
    bool ran = false;
    stage.runWith([&] {
        ran = true;
        QVERIFY(stage.window->isVisible());
        QCOMPARE(stage.window->windowModality(), Qt::ApplicationModal);
        waitUntilActive(*stage.window);
        stage.run->stop();
    });
    QVERIFY(ran);
}

void tst_modalrun::theOtherWindowsTakeNoInputMeanwhile()
{
    RunStage stage;
    stage.runWith([&] {
        stage.clickTheButton();
        QCOMPARE(stage.clicks, 0);
        stage.window->hide();
    });
    stage.main.activateWindow();
    waitUntilActive(stage.main);
    stage.clickTheButton();
    QCOMPARE(stage.clicks, 1);
}

void tst_modalrun::aWindowThatIsShownAlreadyBecomesModal()
{
    RunStage stage;
    stage.window->show();
    waitUntilActive(*stage.window);
    stage.clickTheButton();
    QCOMPARE(stage.clicks, 1);
    stage.runWith([&] {
        stage.clickTheButton();
        stage.run->stop();
    });
    QCOMPARE(stage.clicks, 1);
}

void tst_modalrun::stopEndsTheRunAndLeavesTheWindowShown()
{
    RunStage stage;
    stage.runWith([&] { stage.run->stop(); });
    QVERIFY(stage.window->isVisible());
}

void tst_modalrun::theRunEndsWithItsWindow_data()
{
    QTest::addColumn<std::function<void(RunStage &)>>("end");
    const auto row = [](const char *name, const std::function<void(RunStage &)> &end) {
        QTest::newRow(name) << end;
    };
    row("hidden", [](RunStage &stage) { stage.window->hide(); });
    row("closed", [](RunStage &stage) { stage.window->close(); });
    row("closed by the desktop", [](RunStage &stage) { stage.window->windowHandle()->close(); });
    row("destroyed", [](RunStage &stage) { stage.window.reset(); });
    row("destroyed later", [](RunStage &stage) { stage.window.release()->deleteLater(); });
}

void tst_modalrun::theRunEndsWithItsWindow()
{
    QFETCH(std::function<void(RunStage &)>, end);
    RunStage stage;
    bool ran = false;
    stage.runWith([&] {
        ran = true;
        end(stage);
    });
    QVERIFY(ran);
}

void tst_modalrun::aWindowHiddenByTheDesktopGoesOn()
{
    RunStage stage;
    bool wentOn = false;
    stage.runWith([&] {
        QHideEvent minimised;
        QSpontaneKeyEvent::setSpontaneous(&minimised);
        qApp->notify(stage.window.get(), &minimised);
        later([&] {
            wentOn = loopLevel() == 1;
            stage.run->stop();
        });
    });
    // Were the run over, the second call would come only now.
    QCoreApplication::processEvents();
    QVERIFY(wentOn);
}

void tst_modalrun::aRunStoppedWhileItsWindowComesUpEnds()
{
    RunStage stage;
    CallingWindow window;
    window.shown = [&] { stage.run->stop(); };
    stage.run->run(window);
    QVERIFY(window.isVisible());
}

void tst_modalrun::theOwnerMayGoDuringTheRun()
{
    RunStage stage;
    stage.runWith([&] { stage.run.reset(); });
    QVERIFY(stage.window->isVisible());
}

void tst_modalrun::theOwnerAndTheWindowMayGoTogether()
{
    RunStage stage;
    stage.runWith([&] {
        stage.window.reset();
        stage.run.reset();
    });
    QVERIFY(!stage.window);
}

void tst_modalrun::theProgramEndsDuringARun()
{
    RunStage stage;
    bool returned = false;
    later([&] {
        stage.runWith([] { QCoreApplication::exit(7); });
        returned = true;
    });
    QCOMPARE(QCoreApplication::exec(), 7);
    QVERIFY(returned);
}

void tst_modalrun::theProgramEndsDuringNestedRuns()
{
    RunStage stage;
    QWidget innerWindow;
    ModalRun inner;
    QStringList ends;
    later([&] {
        stage.runWith([&] {
            later([] { QCoreApplication::exit(7); });
            inner.run(innerWindow);
            ends << QStringLiteral("inner");
        });
        ends << QStringLiteral("outer");
    });
    QCOMPARE(QCoreApplication::exec(), 7);
    QCOMPARE(ends, QStringList({QStringLiteral("inner"), QStringLiteral("outer")}));
}

void tst_modalrun::anInnerRunEndsBeforeTheOuterOne()
{
    RunStage stage;
    QWidget innerWindow;
    ModalRun inner;
    QStringList ends;
    stage.runWith([&] {
        later([&] {
            stage.run->stop();
            // The outer run is told to end, but the inner one still runs.
            later([&] {
                QCOMPARE(loopLevel(), 2);
                QVERIFY(ends.isEmpty());
                inner.stop();
            });
        });
        inner.run(innerWindow);
        ends << QStringLiteral("inner");
    });
    ends << QStringLiteral("outer");
    QCOMPARE(ends, QStringList({QStringLiteral("inner"), QStringLiteral("outer")}));
}

void tst_modalrun::aRunIsNotRunTwiceAtOnce()
{
    RunStage stage;
    QWidget second;
    stage.runWith([&] {
        stage.run->run(second);
        QVERIFY(!second.isVisible());
        QCOMPARE(loopLevel(), 1);
        stage.run->stop();
    });
}

void tst_modalrun::aRunMayBeRunAgain()
{
    RunStage stage;
    int runs = 0;
    const auto once = [&] {
        ++runs;
        stage.run->stop();
    };
    stage.runWith(once);
    stage.runWith(once);
    QCOMPARE(runs, 2);
}

void tst_modalrun::aWindowThatLostTheKeyboardGetsItBack()
{
    RunStage stage;
    stage.runWith([&] { stage.run->stop(); });
    stage.main.activateWindow();
    waitUntilActive(stage.main);
    stage.runWith([&] {
        waitUntilActive(*stage.window);
        stage.run->stop();
    });
}

void tst_modalrun::stopWithoutARunDoesNothing()
{
    RunStage stage;
    stage.run->stop();
    bool ran = false;
    stage.runWith([&] {
        ran = true;
        stage.run->stop();
    });
    QVERIFY(ran);
    stage.run->stop();
}

KYR_GUI_TEST(tst_modalrun)
#include "tst_modalrun.moc"
