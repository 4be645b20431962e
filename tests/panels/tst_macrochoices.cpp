#include "macrostage.h"
#include "support/pictures.h"
#include "support/suite.h"

/// Macros chosen in their panel, and shown there for a button.
class tst_macrochoices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyRowGivesTheSelectedButtonItsMacro();
    void withoutMacrosAClickGivesNothing();
    void aButtonsMacroIsSelectedAndShows_data();
    void aButtonsMacroIsSelectedAndShows();
    void theArrowKeysKeepTheSelectedRowInSight();
    void theTabKeyPassesTheListWithoutScrollingIt();
    void aMissingMacroScrollsNothing();
    void aLongNameEndsBesideTheScrollBar();
    void aMacroThatIsNotThereIsHarmless_data();
    void aMacroThatIsNotThereIsHarmless();
    void everyRowCanBeDragged();
};

namespace {

constexpr int kMacroButton = 7;

} // namespace

void tst_macrochoices::everyRowGivesTheSelectedButtonItsMacro()
{
    MacroStage stage(20);
    stage.find(kMacroButton, 9);
    stage.clickHeader(PanelId::Macro);
    for (int row = 0; row < 20; ++row) {
        if (!stage.showsWhole(row))
            stage.pageDown();
        stage.program.log.lines.clear();
        PanelsStage::clickRow(stage.macros(), row, kMacroRowHeight);
        const FunctionCode code = 256U + static_cast<FunctionCode>(row);
        QCOMPARE(PanelsStage::code(kMacroButton), code);
        QCOMPARE(stage.program.mouseButton(kMacroButton).captionText(),
                 QStringLiteral("M %1").arg(row));
        QCOMPARE(stage.program.log.lines.front(), "Macro Index:" + std::to_string(row));
        QVERIFY(stage.program.applyIsEnabled());
        pointer::click(stage.program.button("ButtonApply"));
    }
}

void tst_macrochoices::withoutMacrosAClickGivesNothing()
{
    MacroStage stage(0);
    stage.find(kMacroButton, 9);
    stage.clickHeader(PanelId::Macro);
    pointer::click(stage.macros(), {40, 30});
    QCOMPARE(PanelsStage::code(kMacroButton), 9U);
    QVERIFY(!stage.program.applyIsEnabled());
    QVERIFY(stage.program.log.contains("Macro Index:-1"));
}

void tst_macrochoices::aButtonsMacroIsSelectedAndShows_data()
{
    QTest::addColumn<FunctionCode>("code");
    QTest::addColumn<int>("row");
    for (const int row : {0, 4, 10, 11, 12, 19}) {
        const FunctionCode code = 256U + static_cast<FunctionCode>(row);
        QTest::addRow("%u", code) << code << row;
    }
}

void tst_macrochoices::aButtonsMacroIsSelectedAndShows()
{
    QFETCH(FunctionCode, code);
    QFETCH(int, row);
    for (const FunctionCode before : {256U, 275U}) {
        MacroStage stage(20);
        stage.find(2, before);
        stage.find(kMacroButton, code);
        QCOMPARE(stage.expanded(), std::vector{PanelId::Macro});
        QCOMPARE(stage.macros().getcursel(), row);
        QVERIFY(stage.showsWhole(row));
        QCOMPARE(PanelsStage::code(kMacroButton), code);
        QVERIFY(!stage.program.applyIsEnabled());
    }
}

void tst_macrochoices::theArrowKeysKeepTheSelectedRowInSight()
{
    MacroStage stage(20);
    stage.openAt(PanelId::Macro);
    keyboard::tabTo(stage.macros());
    for (int row = 0; row < 20; ++row) {
        keyboard::press(Qt::Key_Down);
        QCOMPARE(stage.macros().getcursel(), row);
        QVERIFY(stage.showsWhole(row));
    }
    for (int row = 18; row >= 0; --row) {
        keyboard::press(Qt::Key_Up);
        QVERIFY(stage.showsWhole(row));
    }
}

void tst_macrochoices::theTabKeyPassesTheListWithoutScrollingIt()
{
    MacroStage stage(20);
    stage.openAt(PanelId::Macro);
    keyboard::tabTo(stage.macros());
    keyboard::press(Qt::Key_Tab);
    QVERIFY(!stage.macros().hasFocus());
    QCOMPARE(stage.scroll().verticalScrollBar()->value(), 0);
}

void tst_macrochoices::aMissingMacroScrollsNothing()
{
    MacroStage stage(50);
    stage.openAt(PanelId::Macro);
    nameMacros(3);
    stage.find(kMacroButton, 296);
    QVERIFY(stage.showsWhole(0));
}

void tst_macrochoices::aLongNameEndsBesideTheScrollBar()
{
    MacroStage stage(20);
    nameMacro(0, std::string(60, 'W'));
    stage.openAt(PanelId::Macro);
    const QImage shownList = shown(stage.macros());
    int rightmost = 0;
    for (int x = 0; x < shownList.width(); ++x) {
        for (int y = 0; y < kMacroRowHeight; ++y)
            rightmost = shownList.pixelColor(x, y) == QColor(Qt::black) ? rightmost : x;
    }
    QVERIFY(rightmost > 140);
    QVERIFY(rightmost < 168);
}

void tst_macrochoices::aMacroThatIsNotThereIsHarmless_data()
{
    QTest::addColumn<unsigned>("count");
    QTest::addColumn<FunctionCode>("code");
    QTest::newRow("behind the last one") << 3U << FunctionCode{259};
    QTest::newRow("no macros") << 0U << FunctionCode{256};
    QTest::newRow("the last slot") << 20U << FunctionCode{305};
    QTest::newRow("one past the slots") << 50U << FunctionCode{306};
    QTest::newRow("one past the slots, few macros") << 3U << FunctionCode{306};
}

void tst_macrochoices::aMacroThatIsNotThereIsHarmless()
{
    QFETCH(unsigned, count);
    QFETCH(FunctionCode, code);
    MacroStage stage(count);
    stage.find(kMacroButton, code);
    QCOMPARE(stage.expanded(), std::vector{PanelId::Macro});
    QCOMPARE(stage.rows(), macroRows(count));
    QVERIFY(!stage.macros().grab().isNull());
    QCOMPARE(PanelsStage::code(kMacroButton), code);
}

void tst_macrochoices::everyRowCanBeDragged()
{
    MacroStage stage(11);
    stage.openAt(PanelId::Macro);
    for (int row = 0; row < 11; ++row) {
        const QPoint from(40, row * kMacroRowHeight + 9);
        QCOMPARE(draggedText(stage.macros(), from), QString::number(256 + row));
        pointer::release(stage.macros(), from);
    }
}

KYR_GUI_TEST(tst_macrochoices)
#include "tst_macrochoices.moc"
