#include "dialogs/dialogstage.h"
#include "macro/editorstage.h"
#include "macro/MacroDelWarn.h"
#include "panels/charinfostage.h"
#include "readable.h"
#include "support/suite.h"

/// Whether everything that is written in the dialogs can be read.
class tst_dialogtexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theWarning();
    void theQuestion();
    void theVersions();
    void theMacroDeletion();
    void theMacroEditor_data();
    void theMacroEditor();
    void aSelectedName();
    void theCharacter();
    void theRegions();
};

namespace {

const QString kMessage =
    QStringLiteral("This profile holds macros that the mouse cannot store. Please delete them, or "
                   "make them anew with another mode, and save the profile once more.");

/// Shows a dialog as it stands, and each of its captions in each state.
void isWholeReadable(QWidget &view, const QStringList &expected, int buttons)
{
    view.window()->show();
    isReadable(view, expected);
    QCOMPARE(areReadableInEachState(view), buttons);
}

} // namespace

void tst_dialogtexts::theWarning()
{
    const DialogStage<WarnOneView> stage;
    stage.view->setDisplayString(QStringLiteral("Error!"), kMessage);
    isWholeReadable(*stage.view, {QStringLiteral("Error!"), QStringLiteral("This profile")}, 1);
}

void tst_dialogtexts::theQuestion()
{
    const DialogStage<WarnTwoView> stage;
    stage.view->setDisplayString(QStringLiteral("Warning!"), kMessage);
    isWholeReadable(*stage.view, {QStringLiteral("Warning!"), QStringLiteral("This profile")}, 2);
}

void tst_dialogtexts::theVersions()
{
    const DialogStage<AboutView> stage;
    isWholeReadable(*stage.view, {QStringLiteral("About"), QStringLiteral("Version")}, 0);
}

void tst_dialogtexts::theMacroDeletion()
{
    custumwindow owner({40, 50, 600, 550}, nullptr);
    isWholeReadable(*makeDialogAt<MacroDelWarn>(owner), {QStringLiteral("Warning")}, 2);
}

void tst_dialogtexts::theMacroEditor_data()
{
    QTest::addColumn<int>("mode");
    for (int mode = 0; mode < 4; ++mode)
        QTest::newRow(kModeButtons[mode]) << mode;
}

void tst_dialogtexts::theMacroEditor()
{
    QFETCH(const int, mode);
    MacroInfo macro = namedMacro("A long fight");
    macro.MODE = static_cast<std::uint32_t>(mode);
    SetText(macro.COPY_PASTER, "Over there!");
    putEvents(macro.KEYMAP, {{0, 1, 50}, {0, 2, 50}, {49, 1, 100}, {49, 2, 0}});
    const EditorStage stage(macro);
    isWholeReadable(*stage.view,
                    {QStringLiteral("Custom Macro"), QStringLiteral("Name:"),
                     QStringLiteral("A long fight"), QStringLiteral("Record Delay"),
                     mode == 0 ? QStringLiteral("Over there!") : QStringLiteral("Loop")},
                    3);
}

void tst_dialogtexts::aSelectedName()
{
    const EditorStage stage(namedMacro("A long fight"));
    stage.name().selectAll();
    isReadable(*stage.view, {QStringLiteral("A long fight")});
}

void tst_dialogtexts::theCharacter()
{
    const CharInfoStage stage;
    stage.fill();
    isWholeReadable(*stage.view,
                    {QStringLiteral("Realm:"), QStringLiteral("Character Name:"),
                     QStringLiteral("Region:"), QStringLiteral("US&Oceanic")},
                    3);
}

void tst_dialogtexts::theRegions()
{
    const CharInfoStage stage;
    pngListBox &list = stage.openList();
    for (int row = 0; row < list.getCount(); ++row) {
        list.setcursel(row);
        isReadable(*list.window(), {QStringLiteral("Europe")});
    }
}

KYR_GUI_TEST(tst_dialogtexts)
#include "tst_dialogtexts.moc"
