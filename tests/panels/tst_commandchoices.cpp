#include "functions/gamecommands.h"
#include "panelstage.h"
#include "support/suite.h"

#include <QtWidgets/QTreeView>

/// Every game command, chosen in the tree for a mouse button.
class tst_commandchoices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyCommandCanBeChosen_data();
    void everyCommandCanBeChosen();
    void cleanupTestCase() { m_stage.reset(); }

private:
    QTreeView &tree() const;
    QModelIndex rowOf(const KnownCommand &command) const;
    void bringIntoView(const QModelIndex &row) const;
    void click(const QModelIndex &row) const;
    std::uint32_t gaugeBeside(unsigned otherBytes, const QModelIndex &row) const;

    std::unique_ptr<PanelsStage> m_stage; ///< one for all, for their number
};

namespace {

constexpr int kChosenFor = 7;

/// Makes the first macro take that many bytes, an even number from 2.
void makeMacroTake(unsigned bytes)
{
    MacroInfo &macro = CurrentProfile().MACRO[0];
    macro = {};
    macro.MODE = 3;
    std::fill_n(macro.KEYMAP, (bytes - 2) / 2, KeymapEvent{4, 1, 0});
}

} // namespace

void tst_commandchoices::initTestCase()
{
    m_stage = std::make_unique<PanelsStage>();
    PanelsStage::code(1) = 256;
    m_stage->find(kChosenFor, 9);
    m_stage->clickHeader(PanelId::Tree);
}

QTreeView &tst_commandchoices::tree() const
{
    return *static_cast<QTreeView *>(
        PanelsStage::part(&m_stage->panel(PanelId::Tree), "pOutlineView"));
}

/// The command's row, its category opened for it by a click on the arrow.
QModelIndex tst_commandchoices::rowOf(const KnownCommand &command) const
{
    const auto number = static_cast<int>(command.code & 0xFFFU);
    const QModelIndex category =
        tree().model()->index(static_cast<int>(command.code >> 12U) - 1, 0);
    bringIntoView(category);
    if (!tree().isExpanded(category))
        pointer::click(*tree().viewport(), tree().visualRect(category).topLeft() + QPoint(-5, 9));
    return tree().model()->index(number - 1, 0, category);
}

void tst_commandchoices::bringIntoView(const QModelIndex &row) const
{
    const QWidget &view = *tree().viewport();
    constexpr int kMost = 100;
    for (int step = 0; step < kMost && tree().visualRect(row).top() < 0; ++step)
        pointer::turnWheel(view, 120);
    for (int step = 0; step < kMost && tree().visualRect(row).bottom() >= view.height(); ++step)
        pointer::turnWheel(view, -120);
}

void tst_commandchoices::click(const QModelIndex &row) const
{
    bringIntoView(row);
    pointer::click(*tree().viewport(), tree().visualRect(row).center());
}

/// The memory gauge after a choice of the row, with so many bytes taken by another button.
std::uint32_t tst_commandchoices::gaugeBeside(unsigned otherBytes, const QModelIndex &row) const
{
    makeMacroTake(otherBytes);
    click(row);
    return m_stage->program.view().memoryUsage();
}

void tst_commandchoices::everyCommandCanBeChosen_data()
{
    QTest::addColumn<const KnownCommand *>("command");
    for (const KnownCommand &command : kKnownCommands)
        QTest::addRow("%x", command.code) << &command;
}

void tst_commandchoices::everyCommandCanBeChosen()
{
    QFETCH(const KnownCommand *, command);
    const MainWindowStage &program = m_stage->program;
    pointer::click(program.button("ButtonApply"));
    QVERIFY(!program.applyIsEnabled());
    const QModelIndex row = rowOf(*command);
    QCOMPARE(row.data().toString(), QLatin1String(command->name));
    // The gauge counts 128 bytes a unit, 75 of them for the profile itself: with one command of the
    // right size it is at one unit, and with two bytes less at none.
    QCOMPARE(gaugeBeside(54 - command->size, row), 1U);
    QCOMPARE(PanelsStage::code(kChosenFor), command->code);
    QCOMPARE(program.mouseButton(kChosenFor).captionText(), QLatin1String(command->name));
    QVERIFY(program.applyIsEnabled());
    QCOMPARE(gaugeBeside(52 - command->size, row), 0U);
    QCOMPARE(program.buttonsOn(), std::vector{kChosenFor});
}

KYR_GUI_TEST(tst_commandchoices)
#include "tst_commandchoices.moc"
