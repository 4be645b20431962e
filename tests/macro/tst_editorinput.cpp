#include "editorstage.h"
#include "support/suite.h"
#include "support/testsettings.h"

#include <QtCore/QMimeData>

/// Names and texts of any kind and length in the macro editor, and what the record and the settings
/// file keep of them.
class tst_editorinput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNameIsCutAtAWholeCharacter_data();
    void aNameIsCutAtAWholeCharacter();
    void aTextIsCutAtAWholeCharacter_data();
    void aTextIsCutAtAWholeCharacter();
    void aNameKeepsNoControlCharacters_data();
    void aNameKeepsNoControlCharacters();
    void aTextKeepsItsBlanksAndLines_data();
    void aTextKeepsItsBlanksAndLines();
    void anyScriptSurvivesTheFile_data();
    void anyScriptSurvivesTheFile();
    void aHugePasteIsCut_data();
    void aHugePasteIsCut();
    void aNameThatFillsItsFieldIsShown();
    void aFormattedPasteIsPlainText();
    void whatAFileHoldsStaysUntilItIsEdited();
};

namespace {

struct CutRow
{
    const char *name;
    const char16_t *character;
    int nameCount; ///< how many of them fit 99 bytes
    int textCount; ///< and 259
};
constexpr CutRow kCuts[] = {
    {"one byte", u"a", 99, 259},      {"two bytes", u"é", 49, 129},
    {"three bytes", u"語", 33, 86},   {"four bytes", u"\U0001F600", 24, 64},
    {"right to left", u"ש", 49, 129},
};

void cutRows(int CutRow::*count)
{
    QTest::addColumn<QString>("character");
    QTest::addColumn<int>("most");
    for (const CutRow &row : kCuts)
        QTest::newRow(row.name) << QString::fromUtf16(row.character) << row.*count;
}

QString pastedName(const QString &name)
{
    const EditorStage stage;
    stage.paste(stage.name(), name);
    return nameOf(stage.confirmed());
}

QString pastedText(const QString &text)
{
    const EditorStage stage;
    stage.click("ButtonCopy");
    stage.paste(stage.text(), text);
    return pastedTextOf(stage.confirmed());
}

void pasteRow(const char *what, const QString &pasted, const QString &stored)
{
    QTest::newRow(what) << pasted << stored;
}

void pasteColumns()
{
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QString>("stored");
}

} // namespace

void tst_editorinput::aNameIsCutAtAWholeCharacter_data()
{
    cutRows(&CutRow::nameCount);
}

void tst_editorinput::aNameIsCutAtAWholeCharacter()
{
    QFETCH(QString, character);
    QFETCH(int, most);
    for (const int count : {1, most - 1, most, most + 1, most + 2, 3 * most})
        QCOMPARE(pastedName(character.repeated(count)), character.repeated(std::min(count, most)));
    // From every place within a character.
    for (int blanks = 1; blanks <= 4; ++blanks) {
        const QString shift(blanks, u'.');
        const int bytes = static_cast<int>(character.toUtf8().size());
        QCOMPARE(pastedName(shift + character.repeated(most)),
                 shift + character.repeated((99 - blanks) / bytes));
    }
}

void tst_editorinput::aTextIsCutAtAWholeCharacter_data()
{
    cutRows(&CutRow::textCount);
}

void tst_editorinput::aTextIsCutAtAWholeCharacter()
{
    QFETCH(QString, character);
    QFETCH(int, most);
    for (const int count : {1, most, most + 1, 3 * most})
        QCOMPARE(pastedText(character.repeated(count)), character.repeated(std::min(count, most)));
}

void tst_editorinput::aNameKeepsNoControlCharacters_data()
{
    pasteColumns();
    pasteRow("a NUL first", QString(1, QChar(0)) + QStringLiteral("abc"), QStringLiteral(" abc"));
    pasteRow("only a NUL", QString(1, QChar(0)), QStringLiteral(" "));
    pasteRow("a NUL inside", QStringLiteral("a") + QChar(0) + QStringLiteral("b"),
             QStringLiteral("a b"));
    pasteRow("a line", QStringLiteral("a\nb"), QStringLiteral("a b"));
    pasteRow("a line of other systems", QStringLiteral("a\r\nb"), QStringLiteral("a  b"));
    pasteRow("a tab", QStringLiteral("a\tb"), QStringLiteral("a b"));
    pasteRow("a bell and an escape", QStringLiteral("a\a\x1b"), QStringLiteral("a  "));
    pasteRow("controls of Latin 1", QString::fromUtf16(u"a\u0085\u009fb\u007f"),
             QStringLiteral("a  b "));
    pasteRow("half a character", QStringLiteral("a") + QChar(0xD83D) + QStringLiteral("b"),
             QStringLiteral("a?b"));
    pasteRow("no character", QStringLiteral("a") + QChar(0xFFFE), QString::fromUtf16(u"a\uFFFD"));
}

void tst_editorinput::aNameKeepsNoControlCharacters()
{
    QFETCH(QString, pasted);
    QTEST(pastedName(pasted), "stored");
}

void tst_editorinput::aTextKeepsItsBlanksAndLines_data()
{
    pasteColumns();
    const QString kept = QString::fromUtf16(u"a\u00A0b\tc\n\nd  e\u2007f ");
    pasteRow("what is kept", kept, kept);
    pasteRow("a line at the end", QStringLiteral("a\n"), QStringLiteral("a\n"));
    pasteRow("lines of other systems", QStringLiteral("a\r\nb"), QStringLiteral("a\nb"));
    pasteRow("lines of old systems", QStringLiteral("a\rb"), QStringLiteral("a\nb"));
    pasteRow("signs for lines", QString::fromUtf16(u"a\u2028b\u2029c"), QStringLiteral("a\nb\nc"));
    pasteRow("a NUL first", QString(1, QChar(0)) + QStringLiteral("abc"), QStringLiteral(" abc"));
    pasteRow("a bell", QStringLiteral("a\ab"), QStringLiteral("a b"));
    pasteRow("half a character", QStringLiteral("a") + QChar(0xDE00), QStringLiteral("a?"));
}

void tst_editorinput::aTextKeepsItsBlanksAndLines()
{
    QFETCH(QString, pasted);
    QTEST(pastedText(pasted), "stored");
}

void tst_editorinput::anyScriptSurvivesTheFile_data()
{
    QTest::addColumn<QString>("text");
    const auto row = [](const char *what, const char16_t *text) {
        QTest::newRow(what) << QString::fromUtf16(text);
    };
    row("Latin", u"Größe Ðañña");
    row("combined marks", u"e\u0301\u0323 n\u0303");
    row("Arabic", u"تعويذة النار 12");
    row("Hebrew within Latin", u"cast \"שלום\" now");
    row("Chinese", u"火球术");
    row("a family", u"\U0001F468\u200D\U0001F469\u200D\U0001F467");
    row("a flag and a skin", u"\U0001F1E9\U0001F1EA \U0001F44D\U0001F3FD");
    row("a mark of direction", u"\u202Eabc\u202C");
    row("what a file writes otherwise", u"<![CDATA[&lt;]]> 'a' \"b\" &#65;");
}

void tst_editorinput::anyScriptSurvivesTheFile()
{
    QFETCH(QString, text);
    const TestSettings settings;
    const EditorStage stage;
    stage.click("ButtonCopy");
    stage.paste(stage.name(), text);
    stage.paste(stage.text(), text);
    const MacroInfo stored = stage.confirmed();
    QCOMPARE(nameOf(stored), text);
    QCOMPARE(pastedTextOf(stored), text);
    xmlconfig store;
    store.setConfigfileName(settings.path());
    store.WriteConfigFile();
    m_Config = {};
    QVERIFY(store.ReadConfigFile() == ConfigRead::Ok);
    QVERIFY(isSameMacro(m_Config.PROFILE[0].MACRO[0], stored));
    // What the file brings is shown and taken as it is.
    stage.view->setcurrentMacroID(0);
    QVERIFY(isSameMacro(stage.confirmed(), stored));
}

void tst_editorinput::aHugePasteIsCut_data()
{
    QTest::addColumn<QString>("piece");
    QTest::newRow("words") << QStringLiteral("word ");
    QTest::newRow("lines") << QStringLiteral("line\n");
    QTest::newRow("emoji") << QString::fromUtf16(u"\U0001F600");
    QTest::newRow("one word") << QStringLiteral("x");
}

void tst_editorinput::aHugePasteIsCut()
{
    QFETCH(QString, piece);
    constexpr int megabyte = 1 << 20;
    const QString huge = piece.repeated(megabyte / piece.toUtf8().size());
    const EditorStage stage;
    stage.click("ButtonCopy");
    stage.paste(stage.name(), huge);
    stage.paste(stage.text(), huge);
    const MacroInfo &stored = stage.confirmed();
    QVERIFY(GetText(stored.MACRO_NAME).size() > 95);
    QVERIFY(huge.startsWith(pastedTextOf(stored)));
    QVERIFY(GetText(stored.COPY_PASTER).size() > 255);
}

void tst_editorinput::aNameThatFillsItsFieldIsShown()
{
    MacroInfo macro = namedMacro("");
    std::ranges::fill(macro.MACRO_NAME, 'n'); // without a NUL, as damage can leave it
    std::ranges::fill(macro.COPY_PASTER, 't');
    macro.MODE = 0;
    const EditorStage stage(macro);
    QCOMPARE(stage.name().text(), QString(100, u'n'));
    QCOMPARE(stage.text().toPlainText(), QString(260, u't'));
    const MacroInfo &stored = stage.confirmed();
    QCOMPARE(nameOf(stored), QString(99, u'n'));
    QCOMPARE(pastedTextOf(stored), QString(259, u't'));
}

void tst_editorinput::aFormattedPasteIsPlainText()
{
    EditorStage stage;
    stage.click("ButtonCopy");
    auto *const data = new QMimeData;
    data->setHtml(QStringLiteral("<b>bold</b><img src='file:///etc/hostname'>"));
    data->setText(QStringLiteral("plain <i>"));
    QGuiApplication::clipboard()->setMimeData(data);
    pointer::click(stage.text());
    stage.pressWithControl(Qt::Key_V);
    QCOMPARE(pastedTextOf(stage.confirmed()), QStringLiteral("plain <i>"));
}

/// A file may hold lines in a name.
void tst_editorinput::whatAFileHoldsStaysUntilItIsEdited()
{
    MacroInfo macro = namedMacro("a\tb\nc");
    SetText(macro.COPY_PASTER, "a\r\nb\u2028c");
    macro.MODE = 0;
    const EditorStage stage(macro);
    QCOMPARE(nameOf(stage.confirmed()), QStringLiteral("a\tb\nc"));
    QCOMPARE(pastedTextOf(stage.confirmed()), QString::fromUtf16(u"a\r\nb\u2028c"));
    pointer::click(stage.name());
    keyboard::press(Qt::Key_End);
    QTest::keyClick(stage.window->windowHandle(), '!');
    QCOMPARE(nameOf(stage.confirmed()), QStringLiteral("a b c!"));
    pointer::click(stage.text());
    stage.pressWithControl(Qt::Key_End);
    QTest::keyClick(stage.window->windowHandle(), '!');
    QCOMPARE(pastedTextOf(stage.confirmed()), QStringLiteral("a\nb\nc!"));
}

KYR_GUI_TEST(tst_editorinput)
#include "tst_editorinput.moc"
