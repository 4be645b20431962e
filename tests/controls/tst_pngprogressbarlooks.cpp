#include "progressbarstage.h"
#include "progressbarstyles.h"
#include "support/pictures.h"
#include "support/suite.h"

/// How the bar is drawn.
class tst_pngprogressbarlooks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theOverPictureIsUncoveredAsFarAsThePosition_data();
    void theOverPictureIsUncoveredAsFarAsThePosition();
    void theOverPictureIsShownFromItsOwnLowerLeft();
    void aRangeWithoutExtentUncoversNothing();
    void theKeyboardsFrameShowsAfterTheTabKeyOnly_data();
    void theKeyboardsFrameShowsAfterTheTabKeyOnly();
};

void tst_pngprogressbarlooks::theOverPictureIsUncoveredAsFarAsThePosition_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<double>("least");
    QTest::addColumn<double>("most");
    QTest::addColumn<int>("position");
    QTest::addColumn<QRect>("uncovered");
    const auto row = [](const char *name, int style, double least, double most, int position,
                        QRect uncovered) {
        QTest::newRow(name) << style << least << most << position << uncovered;
    };
    row("nothing", kHorizontal, 0, 100, 0, {});
    row("half", kHorizontal, 0, 100, 50, {0, 0, 45, 30});
    row("cut to whole points", kHorizontal, 0, 64, 63, {0, 0, 88, 30});
    row("less than a point", kHorizontal, 0, 100, 1, {});
    row("all", kHorizontal, 0, 100, 100, {0, 0, 90, 30});
    row("range from 1, lowest", kHorizontal, 1, 10, 1, {0, 0, 10, 30});
    row("range from 1, highest", kHorizontal, 1, 10, 10, {0, 0, 90, 30});
    row("nothing, upright", kVertical, 0, 100, 0, {});
    row("half, upright", kVertical, 0, 100, 50, {0, 15, 90, 15});
    row("cut, upright", kVertical, 0, 64, 63, {0, 1, 90, 29});
    row("another style is upright", 2, 0, 100, 50, {0, 15, 90, 15});
}

void tst_pngprogressbarlooks::theOverPictureIsUncoveredAsFarAsThePosition()
{
    QFETCH(int, style);
    QFETCH(double, least);
    QFETCH(double, most);
    QFETCH(int, position);
    pngProgressBar bar(nullptr, {0, 0, 90, 30});
    bar.setBKImage(plainPicture(bar.size(), Qt::blue));
    bar.setOverImage(plainPicture(bar.size(), Qt::red));
    bar.setDirStyle(style);
    bar.setposRange(least, most);
    bar.setPos(position);
    QTEST(extentOf(shown(bar), Qt::red), "uncovered");
    QCOMPARE(extentOf(shown(bar), Qt::blue).isEmpty(), position == 100 || position == 10);
}

void tst_pngprogressbarlooks::theOverPictureIsShownFromItsOwnLowerLeft()
{
    pngProgressBar bar(nullptr, {0, 0, 90, 30});
    bar.setBKImage(plainPicture(bar.size(), Qt::blue));
    const QRect mark(20, 20, 10, 10);
    bar.setOverImage(markedPicture(bar.size(), Qt::red, mark, Qt::yellow));
    bar.setPos(50);
    QCOMPARE(extentOf(shown(bar), Qt::yellow), mark);
    bar.setDirStyle(kVertical);
    QCOMPARE(extentOf(shown(bar), Qt::yellow), mark);
}

void tst_pngprogressbarlooks::aRangeWithoutExtentUncoversNothing()
{
    pngProgressBar bar(nullptr, {0, 0, 90, 30});
    bar.setBKImage(plainPicture(bar.size(), Qt::blue));
    bar.setOverImage(plainPicture(bar.size(), Qt::red));
    bar.setposRange(7, 7);
    QCOMPARE(bar.getPos(), 7);
    QCOMPARE(extentOf(shown(bar), Qt::blue), bar.rect());
    QVERIFY(extentOf(shown(bar), Qt::red).isEmpty());
}

void tst_pngprogressbarlooks::theKeyboardsFrameShowsAfterTheTabKeyOnly_data()
{
    QTest::addColumn<int>("style");
    QTest::newRow("horizontal") << kHorizontal;
    QTest::newRow("upright") << kVertical;
}

void tst_pngprogressbarlooks::theKeyboardsFrameShowsAfterTheTabKeyOnly()
{
    QFETCH(int, style);
    BarStage stage({90, 30});
    stage.bar.setDirStyle(style);
    stage.bar.setBKImage(plainPicture(stage.bar.size(), Qt::blue));
    stage.bar.setOverImage(plainPicture(stage.bar.size(), Qt::red));
    stage.window.setFocusPolicy(Qt::StrongFocus);
    stage.window.setFocus();
    QVERIFY(extentOf(shown(stage.bar), kWhite).isEmpty());
    QTest::keyClick(stage.window.windowHandle(), Qt::Key_Tab);
    QVERIFY(stage.bar.hasFocus());
    QImage framed = shown(stage.bar);
    QCOMPARE(extentOf(framed, kWhite), stage.bar.rect());
    // A line of one point around the bar.
    const QRect inside = stage.bar.rect().adjusted(1, 1, -1, -1);
    QVERIFY(extentOf(framed.copy(inside), kWhite).isEmpty());
    QPainter(&framed).fillRect(inside, kWhite);
    QVERIFY(extentOfOther(framed, kWhite).isEmpty());

    stage.window.setFocus();
    QVERIFY(extentOf(shown(stage.bar), kWhite).isEmpty());
    pointer::click(stage.bar, {45, 15});
    QVERIFY(stage.bar.hasFocus());
    QVERIFY(extentOf(shown(stage.bar), kWhite).isEmpty());
}

KYR_GUI_TEST(tst_pngprogressbarlooks)
#include "tst_pngprogressbarlooks.moc"
