#include "dialogs/textfit.h"
#include "platform/canvas.h"
#include "support/suite.h"

/// Fitting a message into its box.
class tst_textfit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aShortTextKeepsItsSizeInTheMiddle();
    void aLongTextWrapsAtWords();
    void aTextThatDoesNotFitGetsSmaller_data();
    void aTextThatDoesNotFitGetsSmaller();
    void theSizeIsTheLargestThatFits();
    void theLongestMessageFitsItsBox();
    void aTextThatNeverFitsHasTheSmallestSize();
};

namespace {

constexpr UpRect kBox{24, 56, 339, 82};

/// The size of `text` as the toolkit lays it out in the box.
QSize laidOut(const QString &text, int fontSize)
{
    const QRect page(0, 0, kBox.width, 100000);
    return QFontMetrics(systemFont(fontSize)).boundingRect(page, Qt::TextWordWrap, text).size();
}

bool fits(const QString &text, int fontSize)
{
    const QSize size = laidOut(text, fontSize);
    return size.width() <= kBox.width && size.height() <= kBox.height;
}

int lines(const TextFit &fit)
{
    const QFontMetrics metrics(systemFont(fit.fontSize));
    return (fit.rect.height - metrics.height()) / metrics.lineSpacing() + 1;
}

/// The texts that stand in for all others: nothing of them may be outside the box.
void isInside(const QString &text)
{
    const TextFit fit = fitText(text, kBox, 12);
    QVERIFY(fits(text, fit.fontSize));
    QCOMPARE(fit.rect.x, kBox.x);
    QCOMPARE(fit.rect.width, kBox.width);
    QCOMPARE(fit.rect.height, laidOut(text, fit.fontSize).height());
    QVERIFY(fit.rect.y >= kBox.y);
    QVERIFY(fit.rect.y + fit.rect.height <= kBox.y + kBox.height);
}

} // namespace

void tst_textfit::aShortTextKeepsItsSizeInTheMiddle()
{
    const QString text = QStringLiteral("Would you like to save changes?");
    isInside(text);
    const TextFit fit = fitText(text, kBox, 12);
    QCOMPARE(fit.fontSize, 12);
    QCOMPARE(lines(fit), 1);
    const int below = fit.rect.y - kBox.y;
    const int above = kBox.height - fit.rect.height - below;
    QVERIFY(std::abs(above - below) <= 1);
}

void tst_textfit::aLongTextWrapsAtWords()
{
    const QString text = QStringLiteral("Would you like to save changes? ").repeated(3).trimmed();
    isInside(text);
    const TextFit fit = fitText(text, kBox, 12);
    QCOMPARE(fit.fontSize, 12);
    QVERIFY(lines(fit) >= 2);
}

void tst_textfit::aTextThatDoesNotFitGetsSmaller_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("too high") << QStringLiteral("word ").repeated(150);
    QTest::newRow("too wide") << QString(60, u'M');
    QTest::newRow("too many lines") << QStringLiteral("line\n").repeated(9);
}

void tst_textfit::aTextThatDoesNotFitGetsSmaller()
{
    QFETCH(QString, text);
    QVERIFY(!fits(text, 12));
    isInside(text);
    QVERIFY(fitText(text, kBox, 12).fontSize < 12);
}

void tst_textfit::theSizeIsTheLargestThatFits()
{
    const QString text = QStringLiteral("word ").repeated(150);
    const int size = fitText(text, kBox, 12).fontSize;
    QVERIFY(fits(text, size));
    QVERIFY(!fits(text, size + 1));
}

void tst_textfit::theLongestMessageFitsItsBox()
{
    const QString text = QStringLiteral(
        "The \"Copy & Paste\" macros found in this profile can not be saved on-board. Please "
        "delete all \"Copy & Paste\" macros and use a \"Text / Record Delay / No Delay\" macro "
        "modes to recreate these macros if you want to store them on the mouse and use without "
        "the driver.");
    isInside(text);
    // Readable, whatever font the desktop has.
    QVERIFY(fitText(text, kBox, 12).fontSize >= 10);
}

void tst_textfit::aTextThatNeverFitsHasTheSmallestSize()
{
    QCOMPARE(fitText(QStringLiteral("line\n").repeated(1000), kBox, 12).fontSize, 1);
}

KYR_GUI_TEST(tst_textfit)
#include "tst_textfit.moc"
