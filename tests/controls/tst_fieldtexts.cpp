#include "fieldstage.h"
#include "support/keyboard.h"
#include "support/suite.h"

#include <QtCore/QRegularExpression>
#include <QtGui/QRegularExpressionValidator>

/// What can be typed and pasted into the text fields of the dialogs, and what they hold then.
class tst_fieldtexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFieldThatCannotBeEditedKeepsItsText();
    void aFieldsTextHasNoControlCharacters_data();
    void aFieldsTextHasNoControlCharacters();
    void anAreasTextKeepsLinesAndTabs_data();
    void anAreasTextKeepsLinesAndTabs();
    void aPasteBringsAsMuchAsALineHolds();
    void aLoadedTextStaysUntilItIsEdited();
    void anEditThatAValidatorRefusesIsTakenBack();
};

namespace {

void textColumns()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("text");
}

void textRow(const char *what, const char16_t *given, const char16_t *text)
{
    QTest::newRow(what) << QString::fromUtf16(given) << QString::fromUtf16(text);
}

} // namespace

void tst_fieldtexts::aFieldThatCannotBeEditedKeepsItsText()
{
    FieldStage stage;
    stage.field.setText(QStringLiteral("kept"));
    stage.field.setEditable(false);
    stage.paste(stage.field, QStringLiteral("pasted"));
    keyboard::press(Qt::Key_Backspace);
    QCOMPARE(stage.field.text(), QStringLiteral("kept"));
    stage.field.setEditable(true);
    keyboard::press(Qt::Key_Backspace);
    QVERIFY(stage.field.text() != QStringLiteral("kept"));
}

void tst_fieldtexts::aFieldsTextHasNoControlCharacters_data()
{
    textColumns();
    textRow("nothing", u"", u"");
    textRow("a text", u"Größe 火", u"Größe 火");
    textRow("lines", u"a\nb\r\nc", u"a b  c");
    textRow("a tab", u"a\tb", u"a b");
    textRow("an escape", u"\x1b[1m", u" [1m");
    textRow("controls of Latin 1", u"a\u0080\u009fb", u"a  b");
    textRow("a blank that keeps words together", u"a\u00A0b", u"a\u00A0b");
    QTest::newRow("a NUL") << QString(2, QChar(0)) + u'x' << QStringLiteral("  x");
}

void tst_fieldtexts::aFieldsTextHasNoControlCharacters()
{
    QFETCH(QString, given);
    FieldStage stage;
    stage.paste(stage.field, given);
    QTEST(stage.field.plainText(), "text");
}

void tst_fieldtexts::anAreasTextKeepsLinesAndTabs_data()
{
    textColumns();
    textRow("nothing", u"", u"");
    textRow("lines", u"a\nb\n\nc\n", u"a\nb\n\nc\n");
    textRow("lines of other systems", u"a\r\nb", u"a\nb");
    textRow("signs for lines", u"a\u2028b\u2029c", u"a\nb\nc");
    textRow("a tab", u"a\tb", u"a\tb");
    textRow("blanks", u" a\u00A0b\u2007 ", u" a\u00A0b\u2007 ");
    textRow("an escape", u"\x1b[1m", u" [1m");
    QTest::newRow("a NUL") << QString(1, QChar(0)) + u'x' << QStringLiteral(" x");
}

void tst_fieldtexts::anAreasTextKeepsLinesAndTabs()
{
    QFETCH(QString, given);
    FieldStage stage;
    stage.paste(stage.area, given);
    QTEST(stage.area.plainText(), "text");
}

void tst_fieldtexts::aPasteBringsAsMuchAsALineHolds()
{
    FieldStage stage;
    stage.paste(stage.area, QString(1 << 20, u'x'));
    QCOMPARE(stage.area.plainText(), QString(stage.field.maxLength(), u'x'));
}

void tst_fieldtexts::aLoadedTextStaysUntilItIsEdited()
{
    FieldStage stage;
    const QString loaded = QString::fromUtf16(u"a\x1b\r\nb\u2028c");
    stage.field.load(loaded);
    stage.area.load(loaded);
    QCOMPARE(stage.field.plainText(), loaded);
    QCOMPARE(stage.area.plainText(), loaded);
    for (const QWidget *field : {static_cast<QWidget *>(&stage.field), stage.area.viewport()}) {
        pointer::click(*field);
        keyboard::press(Qt::Key_X);
    }
    QVERIFY(!stage.field.plainText().contains(u'\x1b'));
    QVERIFY(!stage.area.plainText().contains(u'\x1b'));
    stage.field.load(loaded);
    stage.area.load(loaded);
    QCOMPARE(stage.field.plainText(), loaded);
    QCOMPARE(stage.area.plainText(), loaded);
}

/// Also while what was loaded is not acceptable itself.
void tst_fieldtexts::anEditThatAValidatorRefusesIsTakenBack()
{
    FieldStage stage;
    const QRegularExpressionValidator validator(QRegularExpression(QStringLiteral("x{0,2}")));
    stage.field.setValidator(&validator);
    stage.field.load(QStringLiteral("xxxx"));
    QCOMPARE(stage.field.text(), QStringLiteral("xxxx"));
    pointer::click(stage.field);
    for (const Qt::Key key : {Qt::Key_X, Qt::Key_Backspace, Qt::Key_Y}) {
        keyboard::press(key);
        QCOMPARE(stage.field.text(), QStringLiteral("xxxx"));
    }
    QTest::keyClick(stage.window.windowHandle(), Qt::Key_A, Qt::ControlModifier);
    keyboard::press(Qt::Key_X);
    QCOMPARE(stage.field.plainText(), QStringLiteral("x"));
    keyboard::press(Qt::Key_Y);
    QCOMPARE(stage.field.plainText(), QStringLiteral("x"));
}

KYR_GUI_TEST(tst_fieldtexts)
#include "tst_fieldtexts.moc"
