#include "panelstage.h"
#include "support/suite.h"

#include <QtWidgets/QTreeView>

/// A left click on a mouse button shows in the right bar where its function lives.
class tst_findfunction : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFunctionIsShownWhereItLives_data() { functions(); }
    void aFunctionIsShownWhereItLives();
    void onAShutBarItIsShownOnceTheBarStands_data() { functions(); }
    void onAShutBarItIsShownOnceTheBarStands();
    void aFunctionThatLivesNowhereClosesEveryPanel_data();
    void aFunctionThatLivesNowhereClosesEveryPanel();
    void aCategorysFirstCodeShowsTheTreeAsItIs_data();
    void aCategorysFirstCodeShowsTheTreeAsItIs();
    void aGameCommandIsSelectedInItsCategory_data();
    void aGameCommandIsSelectedInItsCategory();
    void showingAFunctionAssignsNothing_data() { functions(); }
    void showingAFunctionAssignsNothing();
    void theFunctionIsThatOfTheCurrentProfile();
    void aRightClickShowsNoFunction();
    void theLastOfTwoQuickClicksIsShown();

private:
    static void functions();
};

namespace {

using Panels = std::vector<PanelId>;

/// The program with macros in the current profile's first twenty slots.
struct FindStage : PanelsStage
{
    FindStage()
    {
        for (unsigned slot = 0; slot < 20; ++slot)
            SetText(CurrentProfile().MACRO[slot].MACRO_NAME, "macro");
    }

    QTreeView &tree() const
    {
        return *static_cast<QTreeView *>(part(&panel(PanelId::Tree), "pOutlineView"));
    }
    /// The open categories by their number.
    std::vector<int> openCategories() const
    {
        std::vector<int> open;
        for (int row = 0; row < tree().model()->rowCount(); ++row) {
            if (tree().isExpanded(tree().model()->index(row, 0)))
                open.push_back(row);
        }
        return open;
    }
    /// "panel row text", of what is expanded and selected there.
    QString shown() const
    {
        const Panels panels = expanded();
        if (panels.empty())
            return QStringLiteral("nothing");
        if (panels.front() == PanelId::Tree)
            return QStringLiteral("tree ") + tree().currentIndex().data().toString();
        const char *const names[] = {"", "pDPIListbox", "pProfileListbox", "pMacroListbox"};
        const char *const name = names[static_cast<std::size_t>(panels.front())];
        return QLatin1String(name) + QStringLiteral(" %1").arg(list(name).getcursel());
    }
};

} // namespace

void tst_findfunction::functions()
{
    QTest::addColumn<FunctionCode>("code");
    QTest::addColumn<QString>("shown");
    const auto row = [](FunctionCode code, const char *shown) {
        QTest::addRow("%u", code) << code << QString::fromLatin1(shown);
    };
    row(9, "nothing");
    row(16, "pDPIListbox 0");
    row(18, "pDPIListbox 2");
    row(23, "pDPIListbox 7");
    row(32, "pProfileListbox 0");
    row(43, "pProfileListbox 11");
    row(256, "pMacroListbox 0");
    row(260, "pMacroListbox 4");
    row(305, "pMacroListbox 49");
    row(306, "pMacroListbox 50"); // one past the 50 macros, on purpose
    row(307, "nothing");
    row(4104, "tree Jump");
    row(12330, "tree Secondary Action Button 8");
}

void tst_findfunction::aFunctionIsShownWhereItLives()
{
    QFETCH(FunctionCode, code);
    FindStage stage;
    stage.openAt(PanelId::Tree);
    stage.find(1, 17);
    QCOMPARE(stage.shown(), QStringLiteral("pDPIListbox 1"));
    stage.find(8, code);
    QTEST(stage.shown(), "shown");
    QVERIFY(stage.lies(kRightBar, kRightBar.open));
    QVERIFY(stage.expanded().size() <= 1);
}

void tst_findfunction::onAShutBarItIsShownOnceTheBarStands()
{
    QFETCH(FunctionCode, code);
    FindStage stage;
    PanelsStage::code(8) = code;
    pointer::click(stage.program.mouseButton(8));
    QCOMPARE(stage.program.buttonsOn(), std::vector{8});
    stage.passHalf();
    QCOMPARE(stage.expanded(), Panels());
    QVERIFY(!stage.toggle(kRightBar).isVisible());
    stage.arrive();
    QTEST(stage.shown(), "shown");
    QVERIFY(stage.lies(kRightBar, kRightBar.open));
    QVERIFY(stage.toggle(kRightBar).isVisible());
}

void tst_findfunction::aFunctionThatLivesNowhereClosesEveryPanel_data()
{
    QTest::addColumn<FunctionCode>("code");
    for (const FunctionCode code :
         {0U, 1U, 9U, 10U, 15U, 24U, 31U, 44U, 255U, 307U, 4095U, 0x80000000U, 0xFFFFFFFFU})
        QTest::addRow("%u", code) << code;
}

void tst_findfunction::aFunctionThatLivesNowhereClosesEveryPanel()
{
    QFETCH(FunctionCode, code);
    FindStage stage;
    stage.toggleRight();
    const QStringList collapsed = stage.places();
    for (const KnownPanel &known : kKnownPanels) {
        stage.clickHeader(known.id);
        stage.find(14, code);
        QCOMPARE(stage.expanded(), Panels());
        QCOMPARE(stage.places(), collapsed);
    }
}

void tst_findfunction::aCategorysFirstCodeShowsTheTreeAsItIs_data()
{
    QTest::addColumn<FunctionCode>("code");
    for (const FunctionCode code : {4096U, 8192U, 0x7000U})
        QTest::addRow("%u", code) << code;
}

void tst_findfunction::aCategorysFirstCodeShowsTheTreeAsItIs()
{
    QFETCH(FunctionCode, code);
    FindStage stage;
    stage.find(1, code);
    QCOMPARE(stage.expanded(), Panels{PanelId::Tree});
    QCOMPARE(stage.openCategories(), std::vector<int>());
    QVERIFY(!stage.tree().currentIndex().isValid());
}

void tst_findfunction::aGameCommandIsSelectedInItsCategory_data()
{
    QTest::addColumn<FunctionCode>("code");
    QTest::addColumn<int>("category");
    QTest::addColumn<QString>("name");
    QTest::newRow("first") << FunctionCode{4097} << 0 << QStringLiteral("Move and Steer");
    QTest::newRow("far down") << FunctionCode{12330} << 2
                              << QStringLiteral("Secondary Action Button 8");
    QTest::newRow("last category") << FunctionCode{0x7009} << 6 << QStringLiteral("Screen Shot");
}

void tst_findfunction::aGameCommandIsSelectedInItsCategory()
{
    QFETCH(FunctionCode, code);
    QFETCH(int, category);
    FindStage stage;
    stage.find(1, code);
    QCOMPARE(stage.openCategories(), std::vector{category});
    const QModelIndex row = stage.tree().currentIndex();
    QTEST(row.data().toString(), "name");
    QVERIFY(stage.tree().selectionModel()->isSelected(row));
    const QRect strip = stage.tree().visualRect(row);
    // The toolkit leaves the last line of a row at the lower edge out.
    QVERIFY(strip.top() >= 0 && strip.bottom() <= stage.tree().viewport()->height());
}

void tst_findfunction::showingAFunctionAssignsNothing()
{
    QFETCH(FunctionCode, code);
    FindStage stage;
    for (int number = 1; number <= 14; ++number)
        stage.find(number, number % 2 ? code : 17);
    for (int number = 1; number <= 14; ++number)
        QCOMPARE(PanelsStage::code(number), number % 2 ? code : 17);
    QVERIFY(!stage.program.applyIsEnabled());
    QCOMPARE(stage.logged("changeCurrentButtonFunction"), std::vector<std::string>());
    QVERIFY(stage.program.requestsSinceStart().empty());
}

void tst_findfunction::theFunctionIsThatOfTheCurrentProfile()
{
    FindStage stage;
    m_Config.PROFILE[0].BUTTON[3] = 18;
    m_Config.PROFILE[6].BUTTON[3] = 34;
    stage.program.reportProfile(7);
    pointer::click(stage.program.mouseButton(4));
    stage.arrive();
    QCOMPARE(stage.shown(), QStringLiteral("pProfileListbox 2"));
}

void tst_findfunction::aRightClickShowsNoFunction()
{
    FindStage stage;
    PanelsStage::code(4) = 18;
    pointer::rightClick(stage.program.mouseButton(4));
    stage.arrive();
    QVERIFY(stage.lies(kRightBar, kRightBar.shut));
}

void tst_findfunction::theLastOfTwoQuickClicksIsShown()
{
    FindStage stage;
    PanelsStage::code(3) = 18;
    PanelsStage::code(4) = 43;
    pointer::click(stage.program.mouseButton(3));
    stage.passHalf();
    pointer::click(stage.program.mouseButton(4));
    stage.arrive();
    QCOMPARE(stage.shown(), QStringLiteral("pProfileListbox 11"));
    QCOMPARE(stage.program.buttonsOn(), std::vector{4});
}

KYR_GUI_TEST(tst_findfunction)
#include "tst_findfunction.moc"
