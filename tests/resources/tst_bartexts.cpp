#include "panels/levelstage.h"
#include "panels/lightingstage.h"
#include "panels/macrostage.h"
#include "readable.h"
#include "support/suite.h"

#include <QtWidgets/QTreeView>

/// Whether everything that is written in the bars, their panels and lists can be read.
class tst_bartexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theLeftBar();
    void theBottomBar();
    void theRightBar();
    void theSimpleLists_data();
    void theSimpleLists();
    void theMacros();
    void theCommands();
    void theListOfSteps();
};

namespace {

/// Chooses each row in turn.
void areRowsReadable(pngListBox &list, QWidget &window)
{
    for (int row = 0; row < list.getCount(); ++row) {
        list.setcursel(row);
        isReadable(window, {list.stringAt(0).trimmed()});
    }
}

} // namespace

void tst_bartexts::theLeftBar()
{
    const OpenLevelStage stage;
    isReadable(stage.left(),
               {QStringLiteral("Mouse Properties"), QStringLiteral("CPI Value:"),
                QStringLiteral("Double-Click Speed:"), QStringLiteral("Scroll Speed:"),
                QStringLiteral("Pointer Speed:"), QStringLiteral("Advanced Sensitivity:"),
                QStringLiteral("X-Axis:"), QStringLiteral("Y-Axis:"), QStringLiteral("2400")});
    QCOMPARE(areReadableInEachState(stage.left()), 1);
}

void tst_bartexts::theBottomBar()
{
    BarsStage stage;
    stage.clickToggle(kBottomBar);
    custumwindow &bottom = stage.bar(kBottomBar);
    isReadable(bottom, {QStringLiteral("Illumination Settings"), QStringLiteral("Color"),
                        QStringLiteral("Intensity"), QStringLiteral("Pulsation"),
                        QStringLiteral("Medium")});
    QCOMPARE(areReadableInEachState(bottom), 2);
}

void tst_bartexts::theRightBar()
{
    PanelsStage stage;
    stage.toggleRight();
    isReadable(stage.right(), {QStringLiteral("Button Functions"), QStringLiteral("Game Commands"),
                               QStringLiteral("Change CPI"), QStringLiteral("Change Profile"),
                               QStringLiteral("Custom Macros")});
    QCOMPARE(areReadableInEachState(stage.right()), 2);
}

void tst_bartexts::theSimpleLists_data()
{
    QTest::addColumn<PanelId>("panel");
    QTest::addColumn<QString>("list");
    QTest::newRow("steps") << PanelId::Cpi << QStringLiteral("pDPIListbox");
    QTest::newRow("profiles") << PanelId::Profile << QStringLiteral("pProfileListbox");
}

void tst_bartexts::theSimpleLists()
{
    QFETCH(const PanelId, panel);
    QFETCH(const QString, list);
    PanelsStage stage;
    stage.openAt(panel);
    areRowsReadable(stage.list(qPrintable(list)), stage.right());
}

void tst_bartexts::theMacros()
{
    MacroStage stage(9);
    stage.openAt(PanelId::Macro);
    areRowsReadable(stage.macros(), stage.right());
}

void tst_bartexts::theCommands()
{
    PanelsStage stage;
    stage.openAt(PanelId::Tree);
    auto &tree = *stage.right().findChild<QTreeView *>();
    const QModelIndex category = tree.model()->index(0, 0);
    tree.expand(category);
    const QModelIndex command = tree.model()->index(1, 0, category);
    QVERIFY(QTest::qWaitFor([&] {
        stage.arrive();
        return textsOf(TextRecorder(tree)).contains(command.data().toString());
    }));
    for (const QModelIndex &chosen : {category, command}) {
        tree.setCurrentIndex(chosen);
        isReadable(stage.right(), {chosen.data().toString()});
    }
}

void tst_bartexts::theListOfSteps()
{
    const OpenLevelStage stage;
    pngListBox &list = stage.openList();
    areRowsReadable(list, *list.window());
}

KYR_GUI_TEST(tst_bartexts)
#include "tst_bartexts.moc"
