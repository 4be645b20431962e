#include "support/drop.h"
#include "support/mainwindow.h"
#include "support/suite.h"

/// Texts from other programs, dropped on a mouse button.
class tst_dropsonbuttons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aTextIsReadAsACode_data() { texts(); }
    void aTextIsReadAsACode();
    void bytesAreReadAsACode_data() { texts(); }
    void bytesAreReadAsACode();
    void aCodeFromAnotherProgramCanBeReplaced();
    void inGameModeEveryTextIsRefused_data() { texts(); }
    void inGameModeEveryTextIsRefused();

private:
    static void texts();
};

namespace {

constexpr int kTarget = 9;
constexpr int kOther = 2; ///< selected

std::vector<FunctionCode> defaultsBut(FunctionCode code)
{
    std::vector<FunctionCode> codes = {1, 2, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9};
    codes[kTarget - 1] = code;
    return codes;
}

std::vector<FunctionCode> buttonCodes()
{
    const auto &codes = CurrentProfile().BUTTON;
    return {std::begin(codes), std::end(codes)};
}

QStringList otherCaptions(const MainWindowStage &stage)
{
    QStringList captions;
    for (int number = 1; number <= 14; ++number) {
        if (number != kTarget)
            captions << stage.mouseButton(number).captionText();
    }
    return captions;
}

/// Drops on the target while another button is selected, and looks at everything that may change.
void dropAndLook(const QMimeData &data, FunctionCode code, const QString &caption)
{
    const MainWindowStage stage;
    pointer::click(stage.mouseButton(kOther));
    const QStringList others = otherCaptions(stage);
    QVERIFY(dropOn(stage.mouseButton(kTarget), data));
    QCOMPARE(buttonCodes(), defaultsBut(code));
    QCOMPARE(stage.mouseButton(kTarget).captionText(), caption);
    QCOMPARE(otherCaptions(stage), others);
    QCOMPARE(stage.buttonsOn(), std::vector{kOther});
    QCOMPARE(stage.view().currentButton(), kOther - 1);
    QVERIFY(stage.applyIsEnabled());
    QVERIFY(!stage.mouseButton(kTarget).grab().isNull());
}

} // namespace

void tst_dropsonbuttons::texts()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<FunctionCode>("code");
    QTest::addColumn<QString>("caption");
    const auto row = [](const char *name, const QByteArray &text, FunctionCode code,
                        const char *caption = "") {
        QTest::newRow(name) << text << code << QString::fromLatin1(caption);
    };
    constexpr FunctionCode most = 0x7FFFFFFF;
    constexpr qsizetype mebibyte = 1 << 20;
    row("a word", "abc", 0);
    row("nothing", "", 0);
    row("only blanks", " \t\r\n ", 0);
    row("too large", "99999999999", most);
    row("negative", "-5", static_cast<FunctionCode>(-5));
    row("too small", "-99999999999", 0x80000000);
    row("a long number", QByteArray(mebibyte, '9'), most);
    row("a long number of little value", QByteArray(mebibyte, '0') + "18", 18, "CPI 2400");
    row("a long word", QByteArray(mebibyte, 'x'), 0);
    row("a blank behind", "4097 ", 4097, "Move and Steer");
    row("blanks before", "  4104", 4104, "Jump");
    row("a line", "4104\r\n", 4104, "Jump");
    row("one past the macros", "306", 306);
    row("no such function", "4095", 4095);
    row("a NUL within",
        QByteArray("41\0"
                   "04",
                   5),
        41, "Profile 10");
    row("a NUL before",
        QByteArray("\0"
                   "4104",
                   5),
        0);
    row("UTF-8 behind", "36 \xC3\xBC\xE2\x82\xAC\xF0\x9F\x96\xB1", 36, "Profile 5");
    row("UTF-8 before",
        "\xC3\xBC"
        "36",
        0);
    row("digits of another script", "\xD9\xA4\xD9\xA1", 0);
    row("a blank that is none here",
        "\xC2\xA0"
        "36",
        0);
    row("no UTF-8",
        "\xFF\xFE"
        "36",
        0);
    row("markup", "<b>36</b>", 0);
}

void tst_dropsonbuttons::aTextIsReadAsACode()
{
    QFETCH(QByteArray, text);
    QFETCH(FunctionCode, code);
    QFETCH(QString, caption);
    QMimeData data;
    data.setText(QString::fromUtf8(text));
    dropAndLook(data, code, caption);
}

/// As another program sends them.
void tst_dropsonbuttons::bytesAreReadAsACode()
{
    QFETCH(QByteArray, text);
    QFETCH(FunctionCode, code);
    QFETCH(QString, caption);
    QMimeData data;
    data.setData(QStringLiteral("text/plain"), text);
    dropAndLook(data, code, caption);
}

void tst_dropsonbuttons::aCodeFromAnotherProgramCanBeReplaced()
{
    const MainWindowStage stage;
    for (const char *text : {"-5", "99999999999", "4104"})
        QVERIFY(dropText(stage.mouseButton(kTarget), QLatin1String(text)));
    QCOMPARE(buttonCodes(), defaultsBut(4104));
    QCOMPARE(stage.mouseButton(kTarget).captionText(), QStringLiteral("Jump"));
}

void tst_dropsonbuttons::inGameModeEveryTextIsRefused()
{
    QFETCH(QByteArray, text);
    const MainWindowStage stage;
    pointer::click(stage.button("chkGameMode"));
    QVERIFY(!dropText(stage.mouseButton(kTarget), QString::fromUtf8(text)));
    QCOMPARE(buttonCodes(), defaultsBut(9));
    QCOMPARE(stage.mouseButton(kTarget).captionText(), QStringLiteral("Disable/Clear"));
    QVERIFY(!stage.applyIsEnabled());
    QCOMPARE(stage.log.count("DragDropButtonAction"), 0L);
}

KYR_GUI_TEST(tst_dropsonbuttons)
#include "tst_dropsonbuttons.moc"
