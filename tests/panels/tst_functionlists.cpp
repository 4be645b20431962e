#include "controls/functionlistpanel.h"
#include "listedfunctions.h"
#include "support/suite.h"

/// The panels with a fixed list: the steps of the sensitivity, and the profiles.
class tst_functionlists : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theRowsAreWritten_data() { knownListRows(); }
    void theRowsAreWritten();
    void thePartsHaveTheirPlaces_data() { knownListRows(); }
    void thePartsHaveTheirPlaces();
    void aCollapsedPanelShowsNoList_data() { knownListRows(); }
    void aCollapsedPanelShowsNoList();
    void everyRowShowsWhole_data() { knownListRows(); }
    void everyRowShowsWhole();
    void everyRowGivesTheSelectedButtonItsFunction_data() { knownListRows(); }
    void everyRowGivesTheSelectedButtonItsFunction();
    void withoutASelectedButtonARowGivesNothing_data() { knownListRows(); }
    void withoutASelectedButtonARowGivesNothing();
    void withoutASelectedRowNothingIsGiven_data() { knownListRows(); }
    void withoutASelectedRowNothingIsGiven();
    void aClickBelowTheRowsSelectsNone();
    void aClickOnTheSelectedRowGivesItsFunctionAgain_data() { knownListRows(); }
    void aClickOnTheSelectedRowGivesItsFunctionAgain();
    void aReleaseOnAnotherRowGivesThePressedOne_data() { knownListRows(); }
    void aReleaseOnAnotherRowGivesThePressedOne();
    void theArrowKeysMoveAndReturnGives_data() { knownListRows(); }
    void theArrowKeysMoveAndReturnGives();
    void everyRowCanBeDragged_data() { knownListRows(); }
    void everyRowCanBeDragged();
    void aSelectionOutlivesTheCollapse_data() { knownListRows(); }
    void aSelectionOutlivesTheCollapse();
    void anotherListIsIgnored_data() { knownListRows(); }
    void anotherListIsIgnored();
};

namespace {

std::vector<FunctionCode> codesOfProfile()
{
    const auto &codes = CurrentProfile().BUTTON;
    return {std::begin(codes), std::end(codes)};
}

std::string lineOfChoice(const KnownList &known, int row)
{
    return known.logged + std::to_string(row);
}

} // namespace

void tst_functionlists::theRowsAreWritten()
{
    QFETCH(const KnownList *, known);
    const PanelsStage stage;
    const pngListBox &list = stage.list(known->name);
    QCOMPARE(list.getCount(), rowCount(*known));
    for (int row = 0; row < rowCount(*known); ++row)
        QCOMPARE(list.stringAt(row), QLatin1String(known->rows[static_cast<std::size_t>(row)]));
    QCOMPARE(list.tag(), known->tag);
    QCOMPARE(list.getcursel(), -1);
}

void tst_functionlists::thePartsHaveTheirPlaces()
{
    QFETCH(const KnownList *, known);
    PanelsStage stage;
    stage.toggleRight();
    const HoverButton &key = stage.expandKey(known->id);
    for (int round = 0; round < 2; ++round) {
        QVERIFY(placeOf(key) == (UpRect{156, 8, 17, 18}));
        QVERIFY(placeOf(stage.list(known->name)) == known->collapsed);
        stage.clickHeader(known->id);
        QVERIFY(placeOf(key) == (UpRect{156, 228, 17, 18}));
        QVERIFY(placeOf(stage.list(known->name)) == known->expanded);
        stage.clickHeader(known->id);
    }
}

void tst_functionlists::aCollapsedPanelShowsNoList()
{
    QFETCH(const KnownList *, known);
    PanelsStage stage;
    stage.toggleRight();
    QVERIFY(!stage.list(known->name).isVisible());
    stage.clickHeader(known->id);
    QVERIFY(stage.list(known->name).isVisible());
    stage.clickHeader(known->id);
    QVERIFY(!stage.list(known->name).isVisible());
}

void tst_functionlists::everyRowShowsWhole()
{
    QFETCH(const KnownList *, known);
    PanelsStage stage;
    stage.openAt(known->id);
    const pngListBox &list = stage.list(known->name);
    for (int row = 0; row < rowCount(*known); ++row) {
        const QRegion strip(0, row * known->rowHeight, list.width(), known->rowHeight);
        QCOMPARE(list.visibleRegion() & strip, strip);
    }
}

void tst_functionlists::everyRowGivesTheSelectedButtonItsFunction()
{
    QFETCH(const KnownList *, known);
    ListedStage stage(*known);
    std::vector<FunctionCode> expected = codesOfProfile();
    for (int row = 0; row < rowCount(*known); ++row) {
        QVERIFY(!stage.program.applyIsEnabled());
        stage.program.log.lines.clear();
        PanelsStage::clickRow(stage.choices, row, known->rowHeight);
        const FunctionCode code = known->first + static_cast<FunctionCode>(row);
        expected[ListedStage::kButton - 1] = code;
        QCOMPARE(codesOfProfile(), expected);
        QCOMPARE(stage.caption(), captionOfRow(*known, row));
        QVERIFY(stage.program.applyIsEnabled());
        QCOMPARE(stage.choices.getcursel(), row);
        const std::string hex = QByteArray::number(code, 16).toStdString();
        QCOMPARE(stage.program.log.lines,
                 (std::vector{lineOfChoice(*known, row), "changeCurrentButtonFunction:" + hex}));
        stage.apply();
    }
}

void tst_functionlists::withoutASelectedButtonARowGivesNothing()
{
    QFETCH(const KnownList *, known);
    PanelsStage stage;
    stage.openAt(known->id);
    const auto before = codesOfProfile();
    PanelsStage::clickRow(stage.list(known->name), 2, known->rowHeight);
    QCOMPARE(codesOfProfile(), before);
    QVERIFY(!stage.program.applyIsEnabled());
    QCOMPARE(stage.program.log.count(lineOfChoice(*known, 2)), 1L);
    QCOMPARE(stage.logged("changeCurrentButtonFunction").size(), std::size_t{1});
}

void tst_functionlists::withoutASelectedRowNothingIsGiven()
{
    QFETCH(const KnownList *, known);
    ListedStage stage(*known);
    keyboard::tabTo(stage.choices);
    keyboard::press(Qt::Key_Return);
    QCOMPARE(stage.program.log.lines, std::vector{lineOfChoice(*known, -1)});
    QCOMPARE(PanelsStage::code(ListedStage::kButton), 9U);
    QVERIFY(!stage.program.applyIsEnabled());
}

/// The twelve profiles leave four points below them.
void tst_functionlists::aClickBelowTheRowsSelectsNone()
{
    const ListedStage stage(kKnownLists[1]);
    pointer::click(stage.choices, {40, 217});
    QCOMPARE(stage.program.log.lines, std::vector<std::string>{"Profile Index:-1"});
    QCOMPARE(PanelsStage::code(ListedStage::kButton), 9U);
    QVERIFY(!stage.program.applyIsEnabled());
}

void tst_functionlists::aClickOnTheSelectedRowGivesItsFunctionAgain()
{
    QFETCH(const KnownList *, known);
    ListedStage stage(*known);
    PanelsStage::clickRow(stage.choices, 3, known->rowHeight);
    stage.apply();
    pointer::click(stage.program.mouseButton(6));
    if (stage.expanded().empty())
        stage.clickHeader(known->id);
    QCOMPARE(stage.choices.getcursel(), 3);
    PanelsStage::clickRow(stage.choices, 3, known->rowHeight);
    QCOMPARE(PanelsStage::code(6), known->first + 3);
    QCOMPARE(PanelsStage::code(ListedStage::kButton), known->first + 3);
    QVERIFY(stage.program.applyIsEnabled());
    QCOMPARE(stage.program.log.count(lineOfChoice(*known, 3)), 2L);
}

void tst_functionlists::aReleaseOnAnotherRowGivesThePressedOne()
{
    QFETCH(const KnownList *, known);
    const ListedStage stage(*known);
    // Too near for a drag.
    pointer::press(stage.choices, {40, known->rowHeight - 2});
    pointer::release(stage.choices, {40, known->rowHeight + 2});
    QCOMPARE(stage.choices.getcursel(), 0);
    QCOMPARE(PanelsStage::code(ListedStage::kButton), known->first);
}

void tst_functionlists::theArrowKeysMoveAndReturnGives()
{
    QFETCH(const KnownList *, known);
    ListedStage stage(*known);
    keyboard::tabTo(stage.choices);
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Up})
        keyboard::press(key);
    QCOMPARE(stage.choices.getcursel(), 1);
    QCOMPARE(PanelsStage::code(ListedStage::kButton), 9U);
    QCOMPARE(stage.program.log.lines, std::vector<std::string>());
    keyboard::press(Qt::Key_Return);
    QCOMPARE(PanelsStage::code(ListedStage::kButton), known->first + 1);
    QCOMPARE(stage.caption(), captionOfRow(*known, 1));
    QVERIFY(stage.program.applyIsEnabled());
}

void tst_functionlists::everyRowCanBeDragged()
{
    QFETCH(const KnownList *, known);
    PanelsStage stage;
    stage.openAt(known->id);
    pngListBox &list = stage.list(known->name);
    for (int row = 0; row < rowCount(*known); ++row) {
        const QPoint from(40, row * known->rowHeight + 9);
        QCOMPARE(draggedText(list, from),
                 QString::number(known->first + static_cast<FunctionCode>(row)));
        pointer::release(list, from);
    }
}

void tst_functionlists::aSelectionOutlivesTheCollapse()
{
    QFETCH(const KnownList *, known);
    ListedStage stage(*known);
    PanelsStage::clickRow(stage.choices, 4, known->rowHeight);
    stage.clickHeader(known->id);
    stage.clickHeader(known->id);
    QCOMPARE(stage.choices.getcursel(), 4);
}

void tst_functionlists::anotherListIsIgnored()
{
    QFETCH(const KnownList *, known);
    ListedStage stage(*known);
    auto &panel = static_cast<FunctionListPanel &>(stage.panel(known->id));
    pngListBox other(&panel, {0, 0, 175, 220});
    other.setTag(kMacroListTag);
    other.AddString(QStringLiteral("another row"));
    other.setChangeAction({&panel, &FunctionListPanel::ListboxAction});
    other.show();
    PanelsStage::clickRow(other, 0, 20);
    QCOMPARE(other.getcursel(), 0);
    QCOMPARE(PanelsStage::code(ListedStage::kButton), 9U);
    QCOMPARE(stage.program.log.lines, std::vector<std::string>());
    QVERIFY(!stage.program.applyIsEnabled());
}

KYR_GUI_TEST(tst_functionlists)
#include "tst_functionlists.moc"
