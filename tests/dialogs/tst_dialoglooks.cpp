#include "dialogs/dialogstage.h"
#include "dialogs/textfit.h"
#include "support/lettering.h"
#include "support/suite.h"

#include <QtGui/QAccessible>

/// What the message dialogs are made of and show.
class tst_dialoglooks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theButtonsStandInTheirPlaces_data();
    void theButtonsStandInTheirPlaces();
    void everyButtonIsNamed();
    void theTextsAreDrawn_data();
    void theTextsAreDrawn();
    void theVersionsAreDrawn();
    void theFirmwareVersionIsLowByteFirst_data();
    void theFirmwareVersionIsLowByteFirst();
    void theWindowIsCalledWhatTheDialogIs();
    void assistiveTechnologyReadsTheMessage();
    void newTextsTakeTheOldOnesPlace();
};

namespace {

using WarningStage = DialogStage<WarnOneView>;
using QuestionStage = DialogStage<WarnTwoView>;
using AboutStage = DialogStage<AboutView>;

const QString kLongest = QStringLiteral(
    "The \"Copy & Paste\" macros found in this profile can not be saved on-board. Please delete "
    "all \"Copy & Paste\" macros and use a \"Text / Record Delay / No Delay\" macro modes to "
    "recreate these macros if you want to store them on the mouse and use without the driver.");

/// Name, left, lower edge, width, height and tag of every button, from the first made to the last.
template <class Dialog>
QStringList buttonsOf()
{
    const DialogStage<Dialog> stage;
    QStringList rows;
    for (const HoverButton *button : stage.view->template findChildren<HoverButton *>()) {
        const UpRect frame = button->frame();
        rows << QStringLiteral("%1 %2 %3 %4 %5 %6 %7")
                    .arg(button->objectName())
                    .arg(frame.x)
                    .arg(frame.y)
                    .arg(frame.width)
                    .arg(frame.height)
                    .arg(button->tag())
                    .arg(button->captionText());
    }
    return rows;
}

/// `picture` with golden text of 12 points in a rectangle whose y goes upwards.
void drawText(QImage &picture, const QString &text, UpRect place, int flags, int size = 12)
{
    QPainter painter(&picture);
    painter.setFont(systemFont(size));
    painter.setPen(kGold);
    painter.drawText(UpHost(picture.height()).down(place),
                     flags | Qt::AlignHCenter | Qt::TextDontClip, text);
}

constexpr int kMessageFlags = Qt::AlignTop | Qt::TextWordWrap;

void drawTitle(QImage &picture, const QString &text, UpRect place)
{
    QPainter painter(&picture);
    painter.setPen(kGold);
    writeLine(painter, text, UpHost(picture.height()).down(place), 12, Qt::AlignHCenter);
}

void drawMessage(QImage &picture, const QString &text, UpRect box)
{
    const TextFit fit = fitText(text, box, 12);
    drawText(picture, text, fit.rect, kMessageFlags, fit.fontSize);
}

QString accessibleText(QWidget &widget, QAccessible::Text what)
{
    return QAccessible::queryAccessibleInterface(&widget)->text(what);
}

} // namespace

void tst_dialoglooks::theButtonsStandInTheirPlaces_data()
{
    QTest::addColumn<QStringList>("buttons");
    QTest::addColumn<QStringList>("expected");
    const QString close = QStringLiteral("ButtonClose 354 144 23 23 4096 ");
    QTest::newRow("warning") << buttonsOf<WarnOneView>()
                             << QStringList{close,
                                            QStringLiteral("ButtonOK 135 16 117 31 4097 OK")};
    QTest::newRow("question") << buttonsOf<WarnTwoView>()
                              << QStringList{
                                     close, QStringLiteral("ButtonOK 66 16 117 31 4097 OK"),
                                     QStringLiteral("ButtonCancel 204 16 117 31 4098 Cancel")};
    QTest::newRow("about") << buttonsOf<AboutView>()
                           << QStringList{QStringLiteral("ButtonClose 225 144 23 23 4096 ")};
}

void tst_dialoglooks::theButtonsStandInTheirPlaces()
{
    QFETCH(QStringList, buttons);
    QFETCH(QStringList, expected);
    QCOMPARE(buttons, expected);
}

void tst_dialoglooks::everyButtonIsNamed()
{
    const QuestionStage stage;
    const auto nameOf = [&](const char *button) {
        return accessibleText(stage.button(button), QAccessible::Name);
    };
    QCOMPARE(nameOf("ButtonClose"), QStringLiteral("Close"));
    QCOMPARE(nameOf("ButtonOK"), QStringLiteral("OK"));
    QCOMPARE(nameOf("ButtonCancel"), QStringLiteral("Cancel"));
}

void tst_dialoglooks::theTextsAreDrawn_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("short") << QStringLiteral("Would you like to save changes?");
    QTest::newRow("wrapped") << QStringLiteral(
        "There are changes to this profile that the mouse does not have yet. "
        "Would you like to save changes?");
    QTest::newRow("longest") << kLongest;
    QTest::newRow("longer than any") << kLongest + kLongest + kLongest;
}

void tst_dialoglooks::theTextsAreDrawn()
{
    QFETCH(QString, text);
    constexpr UpRect box{24, 56, 339, 82};
    QuestionStage stage;
    QImage expected = shown(*stage.view);
    const QImage empty = expected;
    drawTitle(expected, QStringLiteral("Warning"), {33, 146, 320, 18});
    drawMessage(expected, text, box);
    stage.view->setDisplayString(QStringLiteral("Warning"), text);
    const QImage picture = shown(*stage.view);
    QVERIFY(picture != empty);
    QCOMPARE(picture, expected);
    WarningStage warning;
    QImage wanted = shown(*warning.view);
    drawTitle(wanted, QStringLiteral("Warning"), {33, 146, 320, 18});
    drawMessage(wanted, text, box);
    warning.view->setDisplayString(QStringLiteral("Warning"), text);
    QCOMPARE(shown(*warning.view), wanted);
}

void tst_dialoglooks::theVersionsAreDrawn()
{
    const AboutStage stage;
    stage.view->setFWNumber(0x0102);
    // The close button is cut from the same picture.
    QImage expected =
        SkinImage::named("About_n").pixmap().toImage().convertToFormat(QImage::Format_ARGB32);
    drawTitle(expected, QStringLiteral("About"), {34, 146, 190, 18});
    drawMessage(expected, QStringLiteral("Software Version:1.02"), {20, 62, 218, 18});
    drawMessage(expected, QStringLiteral("Firmware Version:2.1"), {20, 38, 218, 18});
    QCOMPARE(shown(*stage.view), expected);
}

void tst_dialoglooks::theFirmwareVersionIsLowByteFirst_data()
{
    QTest::addColumn<std::uint32_t>("number");
    QTest::addColumn<QString>("version");
    const auto row = [](std::uint32_t number, const char *version) {
        QTest::addRow("0x%x", number) << number << QString::fromLatin1(version);
    };
    row(0, "N/A");
    row(1, "1.0");
    row(0x0102, "2.1");
    row(0xFF, "ff.0");
    row(0x100, "0.1");
    row(0x1A2B, "2b.1a");
    row(0x123456, "56.1234");
    row(0x80000000, "0.800000");
    row(0xFFFFFFFF, "ff.ffffff");
}

void tst_dialoglooks::theFirmwareVersionIsLowByteFirst()
{
    QFETCH(std::uint32_t, number);
    QFETCH(QString, version);
    const AboutStage stage;
    const QString software = QStringLiteral("Software Version:1.02\nFirmware Version:");
    QCOMPARE(stage.view->strText(), software + QStringLiteral("N/A"));
    stage.view->setFWNumber(number);
    QCOMPARE(stage.view->strText(), software + version);
    QCOMPARE(stage.view->strCaption(), QStringLiteral("About"));
}

void tst_dialoglooks::theWindowIsCalledWhatTheDialogIs()
{
    const AboutStage about;
    QCOMPARE(about.window->windowTitle(), QStringLiteral("About"));
    const WarningStage warning;
    warning.view->setDisplayString(QStringLiteral("Warning"), kLongest);
    QCOMPARE(warning.window->windowTitle(), QStringLiteral("Warning"));
    const QuestionStage question;
    question.view->setDisplayString(QStringLiteral("Save & close"), kLongest);
    QCOMPARE(question.window->windowTitle(), QStringLiteral("Save & close"));
}

void tst_dialoglooks::assistiveTechnologyReadsTheMessage()
{
    const QuestionStage stage;
    stage.view->setDisplayString(QStringLiteral("Warning"), kLongest);
    QCOMPARE(accessibleText(*stage.view, QAccessible::Name), QStringLiteral("Warning"));
    QCOMPARE(accessibleText(*stage.view, QAccessible::Description), kLongest);
    QCOMPARE(accessibleText(*stage.window, QAccessible::Name), QStringLiteral("Warning"));
    QCOMPARE(accessibleText(*stage.window, QAccessible::Description), kLongest);
}

void tst_dialoglooks::newTextsTakeTheOldOnesPlace()
{
    QuestionStage stage;
    const QImage empty = shown(*stage.view);
    stage.view->setDisplayString(QStringLiteral("Warning"), kLongest);
    QVERIFY(shown(*stage.view) != empty);
    stage.view->setDisplayString({}, {});
    QCOMPARE(shown(*stage.view), empty);
    QCOMPARE(stage.view->strCaption(), QString());
    QCOMPARE(stage.view->strText(), QString());
}

KYR_GUI_TEST(tst_dialoglooks)
#include "tst_dialoglooks.moc"
