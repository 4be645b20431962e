#include "app/skinpalette.h"
#include "controls/tooltips.h"
#include "mainview/badgestage.h"
#include "mainview/progressstage.h"
#include "mainview/quickliststage.h"
#include "readable.h"
#include "support/menus.h"
#include "support/suite.h"

/// Whether everything that is written in the main view, and opens from it, can be read.
class tst_mainviewtexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theMainView();
    void inGameMode();
    void theButtonsInEachState();
    void theButtonsThatAreOn();
    void theQuickList();
    void theMenus_data();
    void theMenus();
    void aTooltip();
    void theProgress();
};

void tst_mainviewtexts::theMainView()
{
    BadgeStage stage;
    stage.shownWith({.name = "Orlaith",
                     .realm = "Silver Fen",
                     .className = "Druid",
                     .level = 85,
                     .portrait = stage.files.path("missing.png")});
    isReadable(stage.view(),
               {QStringLiteral("Orlaith"), QStringLiteral("Level 85"), QStringLiteral("Druid"),
                QStringLiteral("Silver Fen"), QStringLiteral("PROFILE"), QStringLiteral("Tools"),
                QStringLiteral("Left-Click"), QStringLiteral("APPLY"), QStringLiteral("0%"),
                QStringLiteral("Enable in-game mode"), QStringLiteral("Mouse Memory usage")});
}

void tst_mainviewtexts::inGameMode()
{
    MainWindowStage stage;
    pointer::click(stage.button("chkGameMode"));
    QVERIFY(!stage.mouseButton(1).isEnabled());
    isReadable(stage.view(), {QStringLiteral("Left-Click")});
}

void tst_mainviewtexts::theButtonsInEachState()
{
    const MainWindowStage stage;
    QCOMPARE(areReadableInEachState(stage.view()), 21);
}

void tst_mainviewtexts::theButtonsThatAreOn()
{
    const MainWindowStage stage;
    for (int number = 1; number <= 14; ++number) {
        stage.mouseButton(number).setChecked(true);
        isReadable(stage.mouseButton(number), {stage.mouseButton(number).captionText().left(3)});
    }
}

void tst_mainviewtexts::theQuickList()
{
    const QuickListStage stage;
    pngListBox &list = stage.open(5);
    for (int row = 0; row < list.getCount(); ++row) {
        list.setcursel(row);
        isReadable(*list.window(), {QStringLiteral("Left-Click"), list.stringAt(row)});
    }
}

void tst_mainviewtexts::theMenus_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("rows");
    QTest::newRow("profile") << QStringLiteral("BtnProfileMenu") << 2;
    QTest::newRow("tools") << QStringLiteral("BtnToolsMenu") << 3;
    QTest::newRow("help") << QStringLiteral("BtnHelpMenu") << 2;
}

void tst_mainviewtexts::theMenus()
{
    QFETCH(const QString, button);
    const MainWindowStage stage;
    pointer::click(stage.button(button));
    QMenu &menu = detail::menuOnTop(QStringLiteral("ContextMenu"));
    int rows = 0;
    for (QAction *const lit : menu.actions()) {
        if (lit->isSeparator())
            continue;
        menu.setActiveAction(lit);
        isReadable(menu, {lit->text()});
        if (lit->menu())
            isReadable(*lit->menu(), {lit->menu()->actions().front()->text()});
        ++rows;
    }
    menu.close();
    QTEST(rows, "rows");
}

void tst_mainviewtexts::aTooltip()
{
    const MainWindowStage stage;
    useSkinPalette();
    HoverButton &button = stage.mouseButton(1);
    const QString text = QStringLiteral("A function whose name is far too long for the button");
    button.setCaptionText(text);
    askForToolTip(button, button.rect().center());
    const std::vector<QWidget *> tips = openWindows({"qtooltip_label"});
    QCOMPARE(tips.size(), std::size_t{1});
    isReadable(*tips.front(), {QStringLiteral("far too long for the button")});
}

void tst_mainviewtexts::theProgress()
{
    ProgressStage stage;
    stage.saveOnBoard();
    stage.progress(45);
    isReadable(*stage.progressWindow(),
               {QStringLiteral("Applying profile to on-board memory..."), QStringLiteral("45%")});
}

KYR_GUI_TEST(tst_mainviewtexts)
#include "tst_mainviewtexts.moc"
