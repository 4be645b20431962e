#include "mainviewcontrols.h"
#include "progressstage.h"
#include "support/drop.h"
#include "support/suite.h"

#include <QtWidgets/QMenu>

#include <cstring>

/// What a click on each control of the main view does, and that it does nothing else.
class tst_commands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aClickHasItsEffectAndNoOther_data();
    void aClickHasItsEffectAndNoOther();
    void aTagWithoutACommandDoesNothing_data();
    void aTagWithoutACommandDoesNothing();
    void aRightClickOnACommandDoesNothing();
};

namespace {

/// The main window, and in words all that has happened to it since.
struct CommandStage : ProgressStage
{
    explicit CommandStage(bool edited)
    {
        if (edited)
            dropText(mouseButton(3), QStringLiteral("11"));
        log.lines.clear();
        m_before = std::make_unique<ConfigData>(m_Config);
        m_applyBefore = applyIsEnabled();
    }

    QStringList effects() const { return outside() + inTheWindow() + besideTheWindow(); }

private:
    QStringList outside() const
    {
        QStringList found;
        if (!settings.bytes().isEmpty())
            found << QStringLiteral("written");
        for (const QVariantMap &request : requestsSinceStart())
            found << QStringLiteral("told ") + request.first().toString();
        for (const std::string &line : log.lines)
            found << QStringLiteral("logged ") + QString::fromStdString(line);
        for (const std::string &file : openedFiles)
            found << QStringLiteral("opened ") + QString::fromStdString(file);
        for (const std::string &address : openedAddresses)
            found << QStringLiteral("opened ") + QString::fromStdString(address);
        for (int quit = 0; quit < quits; ++quit)
            found << QStringLiteral("quit");
        return found;
    }
    QStringList inTheWindow() const
    {
        QStringList found;
        if (std::memcmp(&m_Config, m_before.get(), sizeof m_Config) != 0)
            found << QStringLiteral("another record");
        for (const int key : profileKeysOn())
            found << QStringLiteral("profile %1").arg(key);
        found.removeOne(QStringLiteral("profile 1"));
        for (const int number : buttonsOn())
            found << QStringLiteral("button %1").arg(number);
        if (button("chkGameMode").isChecked())
            found << QStringLiteral("in-game mode");
        if (!mouseButton(14).isEnabled())
            found << QStringLiteral("mouse buttons off");
        if (applyIsEnabled() != m_applyBefore)
            found << (m_applyBefore ? QStringLiteral("Apply off") : QStringLiteral("Apply on"));
        return found;
    }
    QStringList besideTheWindow() const
    {
        QStringList found;
        if (!interface->controller().IsMinRightBar())
            found << QStringLiteral("right bar");
        if (showsProgress())
            found << QStringLiteral("progress");
        if (const QWidget *menu = QApplication::activePopupWidget())
            found << menu->windowTitle();
        if (const QWidget *dialog = QApplication::activeModalWidget())
            found << dialog->windowTitle();
        if (window().isMinimized())
            found << QStringLiteral("minimised");
        return found;
    }

    std::unique_ptr<ConfigData> m_before;
    bool m_applyBefore = false;
};

using Effects = std::initializer_list<const char *>;

void effectRow(const QString &name, bool edited, const QStringList &effects)
{
    const char *const state = edited ? "edited" : "unedited";
    QTest::addRow("%s, %s", qPrintable(name), state) << name << edited << effects;
}

QStringList texts(Effects effects)
{
    QStringList list;
    for (const char *effect : effects)
        list << QString::fromLatin1(effect);
    return list;
}

/// Effects that are the same with and without a pending edit.
void rows(const char *name, Effects effects)
{
    for (const bool edited : {false, true})
        effectRow(QString::fromLatin1(name), edited, texts(effects));
}

/// Effects of which one is that Apply, being enabled, is disabled.
void committingRows(const char *name, Effects effects)
{
    effectRow(QString::fromLatin1(name), false, texts(effects));
    QStringList withEdit = texts(effects);
    withEdit.insert(withEdit.indexOf(QStringLiteral("told 0")) + 1, QStringLiteral("Apply off"));
    effectRow(QString::fromLatin1(name), true, withEdit);
}

void mouseButtonRows()
{
    for (int number = 1; number <= 14; ++number) {
        const QString button = QStringLiteral("button %1").arg(number);
        for (const bool edited : {false, true})
            effectRow(QStringLiteral("Button%1").arg(number), edited,
                      {button, QStringLiteral("right bar")});
    }
}

void profileKeyRows()
{
    for (int number = 1; number <= 10; ++number) {
        QStringList effects;
        if (number != 1)
            effects << QStringLiteral("another record") << QStringLiteral("profile %1").arg(number);
        if (number != 6)
            effects << QStringLiteral("Apply on");
        effectRow(QStringLiteral("BtnProfile%1").arg(number), false, effects);
    }
}

/// What was clicked may answer from the event loop.
void clickOn(QWidget &control)
{
    pointer::click(control);
    QCoreApplication::processEvents();
}

} // namespace

void tst_commands::aClickHasItsEffectAndNoOther_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("edited");
    QTest::addColumn<QStringList>("effects");
    mouseButtonRows();
    profileKeyRows();
    rows("ButtonOK", {"written", "told 0", "quit"});
    rows("ButtonCancel", {"logged Button 1 was clicked", "quit"});
    effectRow(QStringLiteral("ButtonApply"), false, {});
    effectRow(QStringLiteral("ButtonApply"), true, texts({"written", "told 0", "Apply off"}));
    rows("BtnMin", {"minimised"});
    rows("BtnHelp", {"opened /Applications/Brenvik Kyr Torvane MMO Gaming Mouse/UserGuide.pdf"});
    rows("BtnClose", {"written", "told 0", "quit"});
    rows("BtnProfileMenu", {"Profile menu"});
    rows("BtnToolsMenu", {"Tools menu"});
    rows("BtnHelpMenu", {"Help menu"});
    rows("chkGameMode", {"another record", "in-game mode", "mouse buttons off"});
    effectRow(QStringLiteral("ButtonRestore"), false, texts({"another record", "Apply on"}));
    effectRow(QStringLiteral("ButtonRestore"), true, texts({"another record"}));
    committingRows("ButtonSaveToDevice", {"written", "told 0", "progress"});
    rows("MSMemoryUsageBar", {});
}

void tst_commands::aClickHasItsEffectAndNoOther()
{
    QFETCH(QString, name);
    QFETCH(bool, edited);
    QFETCH(QStringList, effects);
    const CommandStage stage(edited);
    QCOMPARE(stage.effects(), QStringList());
    clickOn(*stage.view().findChild<QWidget *>(name));
    QTRY_COMPARE(stage.effects(), effects); // the desktop minimises in its own time
}

void tst_commands::aTagWithoutACommandDoesNothing_data()
{
    QTest::addColumn<int>("tag");
    const auto isKnown = [](int tag) {
        return std::ranges::count(kKnownControls, tag, &KnownControl::tag) != 0;
    };
    for (int tag = 4090; tag <= 4160; ++tag) {
        if (!isKnown(tag))
            QTest::addRow("%d", tag) << tag;
    }
    for (const int tag : {-1, 0, 1, INT_MAX})
        QTest::addRow("%d", tag) << tag;
}

void tst_commands::aTagWithoutACommandDoesNothing()
{
    QFETCH(int, tag);
    const CommandStage stage(true);
    HoverButton &button = stage.button("ButtonRestore");
    button.setTag(tag);
    clickOn(button);
    pointer::rightClick(button);
    QCOMPARE(stage.effects(), QStringList());
}

void tst_commands::aRightClickOnACommandDoesNothing()
{
    for (const KnownControl &control : kKnownControls) {
        const bool isMouseButton = control.tag <= 0x100D;
        if (isMouseButton)
            continue;
        const CommandStage stage(true);
        pointer::rightClick(*stage.view().findChild<QWidget *>(QString::fromLatin1(control.name)));
        QCOMPARE(stage.effects(), QStringList());
    }
}

KYR_GUI_TEST(tst_commands)
#include "tst_commands.moc"
