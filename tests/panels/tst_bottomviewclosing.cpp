#include "lightclosingstage.h"
#include "support/suite.h"

/// How what was opened from the bottom bar closes without a choice.
class tst_bottomviewclosing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void escapeChangesNothing_data() { lightRows(); }
    void escapeChangesNothing();
    void itClosesWhenItLosesTheKeyboard_data() { lightRows(); }
    void itClosesWhenItLosesTheKeyboard();
    void theDesktopMayCloseIt_data() { lightRows(); }
    void theDesktopMayCloseIt();
    void aClosedOneIsGone_data() { lightRows(); }
    void aClosedOneIsGone();
    void shuttingTheBarClosesIt_data() { lightRows(); }
    void shuttingTheBarClosesIt();
    void aBarThatTheDesktopAsksToCloseClosesIt_data() { lightRows(); }
    void aBarThatTheDesktopAsksToCloseClosesIt();
    void theProgramMayEndWithItOpen_data() { lightRows(); }
    void theProgramMayEndWithItOpen();
    void theMainWindowMayCloseWithItOpen_data() { lightRows(); }
    void theMainWindowMayCloseWithItOpen();
};

void tst_bottomviewclosing::escapeChangesNothing()
{
    QFETCH(const KnownLight *, known);
    const LightClosingStage stage;
    QTest::keyClick(pointer::windowOf(stage.openFrom(*known)), Qt::Key_Escape);
    QTRY_VERIFY(openPopups().empty());
    QVERIFY(stage.isUnchanged());
    QCOMPARE(stage.program.log.lines, std::vector<std::string>{"CloseListBox"});
    QTRY_VERIFY(stage.program.window().isActiveWindow());
}

void tst_bottomviewclosing::itClosesWhenItLosesTheKeyboard()
{
    QFETCH(const KnownLight *, known);
    const LightClosingStage stage;
    stage.openFrom(*known);
    stage.program.window().activateWindow();
    QTRY_VERIFY(openPopups().empty());
    const std::vector<std::string> lines = {"windowKeyChange", "CloseListBox"};
    QCOMPARE(stage.program.log.lines, lines);
    QVERIFY(stage.isUnchanged());
}

void tst_bottomviewclosing::theDesktopMayCloseIt()
{
    QFETCH(const KnownLight *, known);
    const LightClosingStage stage;
    pointer::windowOf(stage.openFrom(*known))->close();
    QTRY_VERIFY(openPopups().empty());
    QTRY_VERIFY(stage.program.log.contains("CloseListBox"));
    QVERIFY(stage.isUnchanged());
    QTRY_VERIFY(stage.program.window().isActiveWindow());
    QTRY_VERIFY((pointer::click(stage.button(*known)), onlyPopup()));
}

void tst_bottomviewclosing::aClosedOneIsGone()
{
    QFETCH(const KnownLight *, known);
    const LightClosingStage stage;
    const QPointer<QWidget> chosenIn = &stage.openFrom(*known);
    pointer::click(*chosenIn, {30, 30});
    QTRY_VERIFY(!chosenIn);
    const QPointer<QWidget> left = &stage.openFrom(*known);
    QTest::keyClick(pointer::windowOf(*left), Qt::Key_Escape);
    QTRY_VERIFY(!left);
}

void tst_bottomviewclosing::shuttingTheBarClosesIt()
{
    QFETCH(const KnownLight *, known);
    LightClosingStage stage;
    stage.openFrom(*known);
    stage.toggleBottom();
    QVERIFY(openPopups().empty());
    QVERIFY(stage.lies(kBottomBar, kBottomBar.shut));
    QCOMPARE(stage.program.log.lines, std::vector<std::string>{"CloseListBox"});
    QVERIFY(stage.isUnchanged());
    QTRY_VERIFY(stage.program.window().isActiveWindow());
}

void tst_bottomviewclosing::aBarThatTheDesktopAsksToCloseClosesIt()
{
    QFETCH(const KnownLight *, known);
    LightClosingStage stage;
    stage.openFrom(*known);
    stage.bar(kBottomBar).windowHandle()->close();
    stage.arrive();
    QVERIFY(openPopups().empty());
    QVERIFY(stage.lies(kBottomBar, kBottomBar.shut));
    QVERIFY(stage.isUnchanged());
}

void tst_bottomviewclosing::theProgramMayEndWithItOpen()
{
    QFETCH(const KnownLight *, known);
    LightClosingStage stage;
    stage.openFrom(*known);
    stage.program.interface.reset();
    QVERIFY(openPopups().empty());
}

void tst_bottomviewclosing::theMainWindowMayCloseWithItOpen()
{
    QFETCH(const KnownLight *, known);
    LightClosingStage stage;
    stage.openFrom(*known);
    stage.program.window().windowHandle()->close();
    QTRY_COMPARE(stage.program.quits, 1);
    stage.program.interface.reset();
    QVERIFY(openPopups().empty());
}

KYR_GUI_TEST(tst_bottomviewclosing)
#include "tst_bottomviewclosing.moc"
