#include "controls/custumwindow.h"
#include "controls/textfields.h"
#include "support/keyboard.h"
#include "support/pictures.h"
#include "support/pointer.h"
#include "support/suite.h"

#include <QtCore/QRegularExpression>
#include <QtGui/QClipboard>
#include <QtGui/QRegularExpressionValidator>
#include <QtWidgets/QScrollBar>

/// The text fields of the dialogs: their looks, what can be typed, and what they hold then.
class tst_textfields : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFieldStandsWhereItsFrameSays();
    void aFieldIsWhiteWithoutABorder();
    void aFieldThatCannotBeEditedIsGrey();
    void aFieldThatCannotBeEditedKeepsItsText();
    void aFieldsTextHasNoControlCharacters_data();
    void aFieldsTextHasNoControlCharacters();
    void anAreasTextKeepsLinesAndTabs_data();
    void anAreasTextKeepsLinesAndTabs();
    void aPasteBringsAsMuchAsALineHolds();
    void aLoadedTextStaysUntilItIsEdited();
    void anEditThatAValidatorRefusesIsTakenBack();
    void theTabKeyLeavesAnArea();
    void returnIsALineOfAnArea();
    void anAreaIsWrappedAndScrollsUpAndDownOnly();
    void aPressInAFieldIsNoneOnTheWindowBehind_data();
    void aPressInAFieldIsNoneOnTheWindowBehind();
    void theSelectionIsOfTheSkinsColours();
};

namespace {

constexpr UpRect kFieldFrame{20, 150, 120, 24};
constexpr UpRect kAreaFrame{20, 20, 120, 90};

/// A draggable window with a field and an area in it.
struct FieldStage
{
    FieldStage()
    {
        window.setBCanDragWindow(true);
        field.setFrame(kFieldFrame);
        area.setFrame(kAreaFrame);
        window.show();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("the window does not come up");
        window.setFocus(); // no cursor
    }
    void paste(QWidget &into, const QString &text) const
    {
        QGuiApplication::clipboard()->setText(text);
        pointer::click(into);
        QTest::keyClick(window.windowHandle(), Qt::Key_V, Qt::ControlModifier);
    }

    custumwindow window{{100, 100, 200, 200}, nullptr};
    TextField field{&window};
    TextArea area{&window};
};

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

void tst_textfields::aFieldStandsWhereItsFrameSays()
{
    const FieldStage stage;
    QCOMPARE(stage.field.geometry(), QRect(20, 26, 120, 24));
    QCOMPARE(stage.area.geometry(), QRect(20, 90, 120, 90));
    QVERIFY(stage.field.frame() == kFieldFrame);
}

void tst_textfields::aFieldIsWhiteWithoutABorder()
{
    FieldStage stage;
    QVERIFY(extentOfOther(shown(stage.field), Qt::white).isEmpty());
    QVERIFY(extentOfOther(shown(stage.area), Qt::white).isEmpty());
    stage.field.setText(QStringLiteral("M"));
    stage.area.setPlainText(QStringLiteral("M"));
    QVERIFY(!extentOfOther(shown(stage.field), Qt::white).isEmpty());
    QVERIFY(!extentOfOther(shown(stage.area), Qt::white).isEmpty());
    QCOMPARE(stage.field.font().pixelSize(), 12);
    QCOMPARE(stage.area.font().pixelSize(), 12);
}

void tst_textfields::aFieldThatCannotBeEditedIsGrey()
{
    FieldStage stage;
    const QColor grey(170, 170, 170);
    stage.field.setEditable(false);
    QVERIFY(extentOfOther(shown(stage.field), grey).isEmpty());
    stage.field.setEditable(true);
    QVERIFY(extentOfOther(shown(stage.field), Qt::white).isEmpty());
}

void tst_textfields::aFieldThatCannotBeEditedKeepsItsText()
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

void tst_textfields::aFieldsTextHasNoControlCharacters_data()
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

void tst_textfields::aFieldsTextHasNoControlCharacters()
{
    QFETCH(QString, given);
    FieldStage stage;
    stage.paste(stage.field, given);
    QTEST(stage.field.plainText(), "text");
}

void tst_textfields::anAreasTextKeepsLinesAndTabs_data()
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

void tst_textfields::anAreasTextKeepsLinesAndTabs()
{
    QFETCH(QString, given);
    FieldStage stage;
    stage.paste(stage.area, given);
    QTEST(stage.area.plainText(), "text");
}

void tst_textfields::aPasteBringsAsMuchAsALineHolds()
{
    FieldStage stage;
    stage.paste(stage.area, QString(1 << 20, u'x'));
    QCOMPARE(stage.area.plainText(), QString(stage.field.maxLength(), u'x'));
}

void tst_textfields::aLoadedTextStaysUntilItIsEdited()
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
void tst_textfields::anEditThatAValidatorRefusesIsTakenBack()
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

void tst_textfields::theTabKeyLeavesAnArea()
{
    const FieldStage stage;
    pointer::click(stage.area);
    QVERIFY(stage.area.hasFocus());
    keyboard::press(Qt::Key_Tab);
    QVERIFY(stage.field.hasFocus());
    QCOMPARE(stage.area.plainText(), QString());
    keyboard::press(Qt::Key_Backtab);
    QVERIFY(stage.area.hasFocus());
}

void tst_textfields::returnIsALineOfAnArea()
{
    const FieldStage stage;
    pointer::click(stage.area);
    keyboard::press(Qt::Key_A);
    keyboard::press(Qt::Key_Return);
    keyboard::press(Qt::Key_B);
    QCOMPARE(stage.area.plainText(), QStringLiteral("a\nb"));
}

void tst_textfields::anAreaIsWrappedAndScrollsUpAndDownOnly()
{
    FieldStage stage;
    QVERIFY(!stage.area.verticalScrollBar()->isVisible());
    stage.area.setPlainText(QString(500, u'M'));
    QTRY_VERIFY(stage.area.verticalScrollBar()->isVisible());
    QVERIFY(!stage.area.horizontalScrollBar()->isVisible());
    QVERIFY(stage.area.verticalScrollBar()->maximum() > 0);
    QCOMPARE(stage.area.verticalScrollBar()->width(), 7);
}

void tst_textfields::aPressInAFieldIsNoneOnTheWindowBehind_data()
{
    QTest::addColumn<bool>("inArea");
    QTest::addColumn<bool>("isEditable");
    QTest::newRow("field") << false << true;
    QTest::newRow("field that cannot be edited") << false << false;
    QTest::newRow("area") << true << true;
}

void tst_textfields::aPressInAFieldIsNoneOnTheWindowBehind()
{
    QFETCH(bool, inArea);
    QFETCH(bool, isEditable);
    FieldStage stage;
    stage.field.setEditable(isEditable);
    const QWidget &control = inArea ? static_cast<QWidget &>(stage.area) : stage.field;
    const QPoint before = stage.window.pos();
    pointer::press(stage.window, {190, 10});
    const UpPoint press = stage.window.initialLocation();
    pointer::release(stage.window, {190, 10});
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::MiddleButton}) {
        pointer::press(control, {5, 5}, button);
        pointer::move(control, {60, 15});
        pointer::release(control, {60, 15}, button);
    }
    QVERIFY(stage.window.initialLocation() == press);
    QCOMPARE(stage.window.pos(), before);
}

void tst_textfields::theSelectionIsOfTheSkinsColours()
{
    FieldStage stage;
    const QColor selected(122, 72, 6);
    stage.field.setText(QStringLiteral("M M M"));
    stage.area.setPlainText(QStringLiteral("M M M"));
    for (QWidget *field :
         {static_cast<QWidget *>(&stage.field), static_cast<QWidget *>(&stage.area)}) {
        pointer::click(*field);
        QVERIFY(extentOf(shown(*field), selected).isEmpty());
        QTest::keyClick(stage.window.windowHandle(), Qt::Key_A, Qt::ControlModifier);
        QVERIFY(!extentOf(shown(*field), selected).isEmpty());
    }
}

KYR_GUI_TEST(tst_textfields)
#include "tst_textfields.moc"
