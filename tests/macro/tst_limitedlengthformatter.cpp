#include "editorstage.h"
#include "macro/limitedLengthFormatter.h"
#include "support/suite.h"

/// The limit of the characters in a field, by itself and in the editor's loop field.
class tst_limitedlengthformatter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aTextUpToTheLimitIsAccepted_data();
    void aTextUpToTheLimitIsAccepted();
    void withoutALimitNothingIsAccepted();
    void theHighestLimitAcceptsEverything();
    void aNumberHasNoText();
    void theLoopFieldTakesThreeCharactersOfAnyKind_data();
    void theLoopFieldTakesThreeCharactersOfAnyKind();
    void aPasteBeyondTheLimitIsRefusedAsAWhole();
    void aLongerCountOfAFileIsShownAndCanBeShortened();
};

void tst_limitedlengthformatter::aTextUpToTheLimitIsAccepted_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isAccepted");
    QTest::newRow("nothing") << QString() << true;
    QTest::newRow("less") << QStringLiteral("12") << true;
    QTest::newRow("as many") << QStringLiteral("123") << true;
    QTest::newRow("more") << QStringLiteral("1234") << false;
    QTest::newRow("no digits") << QStringLiteral("a -") << true;
    QTest::newRow("pairs of units") << QString::fromUtf16(u"\U0001F600") << true;
    QTest::newRow("two pairs") << QString::fromUtf16(u"\U0001F600\U0001F600") << false;
}

void tst_limitedlengthformatter::aTextUpToTheLimitIsAccepted()
{
    QFETCH(QString, text);
    QFETCH(bool, isAccepted);
    limitedLengthFormatter formatter(nullptr);
    formatter.setMaxTextLength(3);
    QCOMPARE(formatter.isPartialStringValid(text), isAccepted);
    int position = 0;
    QCOMPARE(formatter.validate(text, position),
             isAccepted ? QValidator::Acceptable : QValidator::Invalid);
}

void tst_limitedlengthformatter::withoutALimitNothingIsAccepted()
{
    const limitedLengthFormatter formatter(nullptr);
    QVERIFY(formatter.isPartialStringValid({}));
    QVERIFY(!formatter.isPartialStringValid(QStringLiteral("1")));
}

void tst_limitedlengthformatter::theHighestLimitAcceptsEverything()
{
    limitedLengthFormatter formatter(nullptr);
    formatter.setMaxTextLength(4294967295);
    QVERIFY(formatter.isPartialStringValid(QString(100000, u'1')));
}

void tst_limitedlengthformatter::aNumberHasNoText()
{
    const limitedLengthFormatter formatter(nullptr);
    QCOMPARE(formatter.stringForObjectValue(12), QString());
}

void tst_limitedlengthformatter::theLoopFieldTakesThreeCharactersOfAnyKind_data()
{
    QTest::addColumn<QByteArray>("typed");
    QTest::addColumn<QString>("text");
    QTest::newRow("digits") << QByteArray("12345") << QStringLiteral("123");
    QTest::newRow("letters") << QByteArray("abcd") << QStringLiteral("abc");
    QTest::newRow("signs") << QByteArray("-+.1") << QStringLiteral("-+.");
}

void tst_limitedlengthformatter::theLoopFieldTakesThreeCharactersOfAnyKind()
{
    QFETCH(QByteArray, typed);
    const EditorStage stage;
    stage.click("ButtonLoop");
    stage.type(stage.loop(), typed.constData());
    QTEST(stage.loop().text(), "text");
}

void tst_limitedlengthformatter::aPasteBeyondTheLimitIsRefusedAsAWhole()
{
    const EditorStage stage;
    stage.click("ButtonLoop");
    stage.type(stage.loop(), "12");
    for (const char *pasted : {"1234", "100000000000"}) {
        stage.paste(stage.loop(), QString::fromLatin1(pasted));
        QCOMPARE(stage.loop().text(), QStringLiteral("12"));
    }
    stage.paste(stage.loop(), QStringLiteral("345"));
    QCOMPARE(stage.loop().text(), QStringLiteral("345"));
}

void tst_limitedlengthformatter::aLongerCountOfAFileIsShownAndCanBeShortened()
{
    MacroInfo macro = namedMacro("long");
    macro.bLOOP = 1;
    macro.MACRO_LOOP = 1000;
    const EditorStage stage(macro);
    QCOMPARE(stage.loop().text(), QStringLiteral("1000"));
    pointer::click(stage.loop());
    keyboard::press(Qt::Key_End);
    keyboard::press(Qt::Key_5);
    QCOMPARE(stage.loop().text(), QStringLiteral("1000"));
    keyboard::press(Qt::Key_Backspace);
    QCOMPARE(stage.loop().text(), QStringLiteral("100"));
}

KYR_GUI_TEST(tst_limitedlengthformatter)
#include "tst_limitedlengthformatter.moc"
