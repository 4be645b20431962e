#include "cpistage.h"
#include "support/suite.h"

/// Choosing from the left bar's list of CPI steps.
class tst_leftviewcpichoices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aChoiceIsStoredAndShown_data();
    void aChoiceIsStoredAndShown();
    void choosingTheStepThatIsSetCountsToo_data();
    void choosingTheStepThatIsSetCountsToo();
    void aReleaseOutsideChoosesTheRowThatWasPressed();
    void onlyTheLeftButtonChooses();
    void keysChooseAStep_data();
    void keysChooseAStep();
    void returnWithoutAStepChoosesNone_data();
    void returnWithoutAStepChoosesNone();
    void aChoiceGoesIntoTheProfileThatIsCurrentByThen();
    void aListOfAnotherNumberOnlyCountsAsAChange();
};

namespace {

void codeRows()
{
    QTest::addColumn<std::uint32_t>("code");
    for (std::uint32_t code = 0; code < std::size(kCpiSteps); ++code)
        QTest::newRow(kCpiSteps[code]) << code;
}

} // namespace

void tst_leftviewcpichoices::aChoiceIsStoredAndShown_data()
{
    codeRows();
}

void tst_leftviewcpichoices::aChoiceIsStoredAndShown()
{
    QFETCH(std::uint32_t, code);
    const CpiStage stage((code + 1) % 6);
    clickRow(stage.openList(), static_cast<int>(code));
    QTRY_VERIFY(openLists().empty());
    QVERIFY(stage.hasChosen(code));
    QTRY_VERIFY(stage.leftIsKey());
}

void tst_leftviewcpichoices::choosingTheStepThatIsSetCountsToo_data()
{
    codeRows();
}

void tst_leftviewcpichoices::choosingTheStepThatIsSetCountsToo()
{
    QFETCH(std::uint32_t, code);
    const CpiStage stage(code);
    clickRow(stage.openList(), static_cast<int>(code));
    QTRY_VERIFY(openLists().empty());
    QVERIFY(stage.hasChosen(code));
}

void tst_leftviewcpichoices::aReleaseOutsideChoosesTheRowThatWasPressed()
{
    const CpiStage stage;
    pngListBox &list = stage.openList();
    pointer::press(list, rowPoint(4));
    QVERIFY(!stage.program.applyIsEnabled());
    // Sent directly: the mouse is the list's until the release, wherever that is.
    QTest::mouseRelease(&list, Qt::LeftButton, {}, {30, 500});
    QTRY_VERIFY(openLists().empty());
    QVERIFY(stage.hasChosen(4));
}

void tst_leftviewcpichoices::onlyTheLeftButtonChooses()
{
    const CpiStage stage;
    const pngListBox &list = stage.openList();
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton})
        pointer::click(list, rowPoint(4), button);
    QCOMPARE(list.getcursel(), 2);
    QCOMPARE(openLists().size(), std::size_t{1});
    QVERIFY(isRecord(*stage.expected));
    QVERIFY(!stage.program.applyIsEnabled());
}

void tst_leftviewcpichoices::keysChooseAStep_data()
{
    QTest::addColumn<QList<Qt::Key>>("keys");
    QTest::addColumn<std::uint32_t>("code");
    QTest::newRow("the selected one") << QList{Qt::Key_Return} << 2U;
    QTest::newRow("down") << QList{Qt::Key_Down, Qt::Key_Return} << 3U;
    QTest::newRow("up") << QList{Qt::Key_Up, Qt::Key_Enter} << 1U;
    QTest::newRow("first") << QList{Qt::Key_Home, Qt::Key_Return} << 0U;
    QTest::newRow("last") << QList{Qt::Key_End, Qt::Key_Down, Qt::Key_Return} << 5U;
}

void tst_leftviewcpichoices::keysChooseAStep()
{
    QFETCH(QList<Qt::Key>, keys);
    QFETCH(std::uint32_t, code);
    const CpiStage stage;
    stage.openList();
    for (const Qt::Key key : keys)
        keyboard::press(key);
    QTRY_VERIFY(openLists().empty());
    QVERIFY(stage.hasChosen(code));
    QTRY_VERIFY(stage.leftIsKey());
}

void tst_leftviewcpichoices::returnWithoutAStepChoosesNone_data()
{
    QTest::addColumn<std::uint32_t>("code");
    for (const std::uint32_t code : {6U, 7U, 0xFFFFFFFFU})
        QTest::addRow("%u", code) << code;
}

void tst_leftviewcpichoices::returnWithoutAStepChoosesNone()
{
    QFETCH(std::uint32_t, code);
    const CpiStage stage(code);
    const QString caption = stage.cpi().captionText();
    stage.openList();
    keyboard::press(Qt::Key_Return);
    QTRY_VERIFY(openLists().empty());
    QVERIFY(isRecord(*stage.expected));
    QCOMPARE(stage.cpi().captionText(), caption);
    QVERIFY(stage.program.log.contains("IDC_LISTBOX_DPI:-1"));
    QVERIFY(stage.program.applyIsEnabled());
}

void tst_leftviewcpichoices::aChoiceGoesIntoTheProfileThatIsCurrentByThen()
{
    CpiStage stage;
    m_Config.PROFILE[8].DPI_VALUE = 0;
    stage.expected = withProfile(m_Config, 9);
    const pngListBox &list = stage.openList();
    stage.program.reportProfile(9);
    QCOMPARE(stage.cpi().captionText(), QStringLiteral(" 800"));
    clickRow(list, 5);
    QTRY_VERIFY(openLists().empty());
    stage.expected->PROFILE[8].DPI_VALUE = 5;
    QVERIFY(isRecord(*stage.expected));
    QCOMPARE(stage.cpi().captionText(), QStringLiteral(" 5000"));
}

void tst_leftviewcpichoices::aListOfAnotherNumberOnlyCountsAsAChange()
{
    const CpiStage stage;
    pngListBox &list = stage.openList();
    list.setTag(0x4001);
    clickRow(list, 5);
    QCoreApplication::processEvents();
    QVERIFY(isRecord(*stage.expected));
    QCOMPARE(stage.cpi().captionText(), QStringLiteral(" 2400"));
    QCOMPARE(openLists().size(), std::size_t{1});
    QCOMPARE(stage.program.log.lines, std::vector<std::string>());
    QVERIFY(stage.program.applyIsEnabled());
}

KYR_GUI_TEST(tst_leftviewcpichoices)
#include "tst_leftviewcpichoices.moc"
