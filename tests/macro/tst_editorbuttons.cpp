#include "editorstage.h"
#include "support/suite.h"

/// The buttons of the macro editor: what each logs and does, up to OK and Cancel.
class tst_editorbuttons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aClickIsLogged_data();
    void aClickIsLogged();
    void theLineIsLoggedBeforeTheClickWorks();
    void anyOtherTagIsIgnored_data();
    void anyOtherTagIsIgnored();
    void aClickFlipsAKey_data();
    void aClickFlipsAKey();
    void aClickFlipsTheLoop();
    void theLoopTakesItsCountWithTheClick();
    void theLoopEndsTheEditing();
};

namespace {

QStringList clicksIn(const LogCapture &log)
{
    QStringList lines;
    for (const std::string &line : log.lines) {
        if (line.starts_with("IDC_"))
            lines << QString::fromStdString(line);
    }
    return lines;
}

} // namespace

void tst_editorbuttons::aClickIsLogged_data()
{
    QTest::addColumn<QByteArray>("mode");
    QTest::addColumn<QString>("line");
    const auto row = [](const char *button, const char *mode, const char *line) {
        QTest::newRow(button) << QByteArray(mode) << QString::fromLatin1(line);
    };
    row("ButtonOK", "ButtonText", "");
    row("ButtonClose", "ButtonText", "");
    row("ButtonCancel", "ButtonText", "IDC_MACRO_BUTTON_CANCEL  was clicked");
    row("ButtonClear", "ButtonText", "IDC_MACRO_BUTTON_CLEAR  was clicked");
    row("ButtonStartKey", "ButtonCopy", "IDC_MACRO_BUTTON_STARTKEY  was clicked");
    row("ButtonSendKey", "ButtonCopy", "IDC_MACRO_BUTTON_SENDKEY  was clicked");
    row("ButtonCopy", "ButtonText", "IDC_MACRO_BUTTON_COPY  was clicked");
    row("ButtonText", "ButtonCopy", "IDC_MACRO_BUTTON_TEXT  was clicked");
    row("ButtonRecordDelay", "ButtonText", "IDC_MACRO_BUTTON_RECORDDELAY  was clicked");
    row("ButtonNoDelay", "ButtonText", "IDC_MACRO_BUTTON_NODELAY  was clicked");
    row("ButtonLoop", "ButtonText", "IDC_MACRO_BUTTON_LOOP  was clicked");
}

void tst_editorbuttons::aClickIsLogged()
{
    QFETCH(QByteArray, mode);
    QFETCH(QString, line);
    EditorStage stage;
    stage.click(mode.constData());
    stage.log.lines.clear();
    stage.click(QTest::currentDataTag());
    QCOMPARE(clicksIn(stage.log).join(u'/'), line);
}

void tst_editorbuttons::theLineIsLoggedBeforeTheClickWorks()
{
    const EditorStage stage;
    bool wasBefore = false;
    setSystemLogSink([&](const std::string &line) {
        if (line == "IDC_MACRO_BUTTON_COPY  was clicked")
            wasBefore = !stage.text().isVisible();
    });
    stage.click("ButtonCopy");
    QVERIFY(wasBefore);
    QVERIFY(stage.text().isVisible());
}

void tst_editorbuttons::anyOtherTagIsIgnored_data()
{
    QTest::addColumn<int>("tag");
    for (const int tag : {0, 4095, 4107, -1})
        QTest::addRow("%d", tag) << tag;
}

void tst_editorbuttons::anyOtherTagIsIgnored()
{
    QFETCH(int, tag);
    EditorStage stage;
    stage.type(stage.name(), "kept");
    const ConfigData before = m_Config;
    stage.log.lines.clear();
    HoverButton &button = stage.button("ButtonOK");
    button.setTag(tag);
    pointer::click(button);
    QCOMPARE(clicksIn(stage.log), QStringList());
    QVERIFY(isUnchanged(before));
    QCOMPARE(stage.name().text(), QStringLiteral("kept"));
}

void tst_editorbuttons::aClickFlipsAKey_data()
{
    QTest::addColumn<QByteArray>("view");
    QTest::newRow("ButtonStartKey") << QByteArray("pStartDisplayView");
    QTest::newRow("ButtonSendKey") << QByteArray("pSendDisplayView");
}

void tst_editorbuttons::aClickFlipsAKey()
{
    QFETCH(QByteArray, view);
    const char *const box = QTest::currentDataTag();
    const EditorStage stage;
    stage.click("ButtonCopy");
    MacroDisplay &key = stage.display(view.constData());
    for (const bool isOn : {false, true, false}) {
        stage.click(box);
        QCOMPARE(stage.button(box).isChecked(), isOn);
        pointer::click(key);
        QCOMPARE(key.hasFocus(), isOn);
    }
    const MacroInfo &stored = stage.confirmed();
    const bool isStart = view == "pStartDisplayView";
    QCOMPARE(stored.bSTARTKEY, isStart ? 0U : 1U);
    QCOMPARE(stored.bSENDKEY, isStart ? 1U : 0U);
}

void tst_editorbuttons::aClickFlipsTheLoop()
{
    const EditorStage stage;
    for (const bool isOn : {true, false, true}) {
        stage.click("ButtonLoop");
        QCOMPARE(stage.button("ButtonLoop").isChecked(), isOn);
        QCOMPARE(stage.loop().isReadOnly(), !isOn);
    }
    QCOMPARE(stage.confirmed().bLOOP, 1U);
}

/// Seen after a change of mode, which shows the copy again.
void tst_editorbuttons::theLoopTakesItsCountWithTheClick()
{
    const EditorStage stage;
    stage.click("ButtonLoop");
    stage.type(stage.loop(), "42");
    stage.click("ButtonLoop");
    stage.click("ButtonNoDelay");
    QCOMPARE(stage.loop().text(), QStringLiteral("42"));
}

void tst_editorbuttons::theLoopEndsTheEditing()
{
    const EditorStage stage;
    pointer::click(stage.name());
    QVERIFY(stage.name().hasFocus());
    stage.click("ButtonLoop");
    QCOMPARE(QApplication::focusWidget(), stage.view.data());
}

KYR_GUI_TEST(tst_editorbuttons)
#include "tst_editorbuttons.moc"
