#include "colorpicture.h"
#include "lightclosingstage.h"
#include "support/suite.h"

/// Of what opens from the bars, one at a time is open.
class tst_bottomviewoneopen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aClickOnAControlOpensNothingMeanwhile_data() { pairs(); }
    void aClickOnAControlOpensNothingMeanwhile();
    void aClickThatTakesTheKeyboardOpensNothing_data() { pairs(); }
    void aClickThatTakesTheKeyboardOpensNothing();
    void theListOfAnotherBarTakesOver_data() { lightRows(); }
    void theListOfAnotherBarTakesOver();
    void itTakesOverFromTheListOfAnotherBar_data() { lightRows(); }
    void itTakesOverFromTheListOfAnotherBar();
    void theSecondPressOfADoubleClickDoesNotOpenItAgain();

private:
    /// What is open, and the control that is clicked then.
    static void pairs();
};

void tst_bottomviewoneopen::pairs()
{
    QTest::addColumn<const KnownLight *>("known");
    QTest::addColumn<const KnownLight *>("clicked");
    for (const KnownLight *known : kKnownLights) {
        for (const KnownLight *clicked : kKnownLights)
            QTest::addRow("%s, %s", known->label, clicked->label) << known << clicked;
    }
}

void tst_bottomviewoneopen::aClickOnAControlOpensNothingMeanwhile()
{
    QFETCH(const KnownLight *, known);
    QFETCH(const KnownLight *, clicked);
    const LightClosingStage stage;
    const QWidget &first = stage.openFrom(*known);
    // Here a press leaves the keyboard where it is.
    pointer::click(stage.button(*clicked));
    QCOMPARE(&opened(*known), &first);
    QVERIFY(stage.isUnchanged());
    QCOMPARE(stage.program.log.lines, std::vector<std::string>());
}

void tst_bottomviewoneopen::aClickThatTakesTheKeyboardOpensNothing()
{
    QFETCH(const KnownLight *, known);
    QFETCH(const KnownLight *, clicked);
    const LightClosingStage stage;
    stage.openFrom(*known);
    QVERIFY(stage.activateBar());
    pointer::click(stage.button(*clicked));
    QVERIFY(openPopups().empty());
    QCOMPARE(stage.program.log.count("CloseListBox"), 1L);
    QVERIFY(stage.isUnchanged());
    stage.openFrom(*clicked);
}

void tst_bottomviewoneopen::theListOfAnotherBarTakesOver()
{
    QFETCH(const KnownLight *, known);
    LightClosingStage stage;
    stage.clickToggle(kOtherBar);
    const QPointer<QWidget> first = stage.openFrom(*known).window();
    pointer::click(stage.cpiButton());
    QTRY_VERIFY(!first);
    QVERIFY(onlyPopup());
    QCOMPARE(onlyPopup()->parentWidget(), &stage.bar(kOtherBar));
    QTRY_VERIFY(onlyPopup() && onlyPopup()->isActiveWindow());
    QCOMPARE(stage.program.log.count("CloseListBox"), 1L);
    QVERIFY(stage.isUnchanged());
}

void tst_bottomviewoneopen::itTakesOverFromTheListOfAnotherBar()
{
    QFETCH(const KnownLight *, known);
    LightClosingStage stage;
    stage.clickToggle(kOtherBar);
    pointer::click(stage.cpiButton());
    QTRY_VERIFY(onlyPopup() && onlyPopup()->isActiveWindow());
    const QPointer<QWidget> first = onlyPopup();
    pointer::click(stage.button(*known));
    QTRY_VERIFY(!first);
    QVERIFY(onlyPopup());
    QVERIFY(opened(*known).hasFocus());
    QCOMPARE(stage.program.log.count("CloseListBox"), 1L);
}

void tst_bottomviewoneopen::theSecondPressOfADoubleClickDoesNotOpenItAgain()
{
    const LightClosingStage stage;
    const QWidget &picture = stage.openPicture();
    // On the edge of the button.
    const QPoint at(60, 1);
    const QWidget &button = stage.colorButton();
    const QPoint onButton = button.mapFromGlobal(picture.mapToGlobal(at));
    QVERIFY(button.rect().contains(onButton));
    QCursor::setPos(picture.mapToGlobal(at));
    clickBetween(picture, at);
    QTRY_VERIFY(openPopups().empty());
    clickBetween(button, onButton, 1);
    QVERIFY(openPopups().empty());
    clickBetween(button, onButton);
    QVERIFY(onlyPopup());
}

KYR_GUI_TEST(tst_bottomviewoneopen)
#include "tst_bottomviewoneopen.moc"
