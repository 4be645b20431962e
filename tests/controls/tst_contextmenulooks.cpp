#include "menustage.h"
#include "support/contrast.h"
#include "support/pictures.h"
#include "support/suite.h"

#include <QtGui/QAccessible>

/// How the menu is drawn.
class tst_contextmenulooks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theHighlightShows();
    void anAmpersandIsShownAndTold();
    void onlyCheckedItemsShowAMark();
    void everyTextIsShownWhole();
    void theRowsAreHighEnoughToHit();
    void theTextsCanBeReadOnTheirGround();
    void aDisabledItemIsGrey();
};

namespace {

QImage rowPicture(MenuStage &stage, const char *text)
{
    return shown(*stage.menu).copy(stage.row(text));
}

/// Where bright pixels, that is text and marks, stand in the picture of a row that is not lit.
QRect extentOfText(const QImage &row)
{
    const QImage bright =
        row.convertToFormat(QImage::Format_Mono, Qt::ThresholdDither | Qt::AvoidDither);
    return extentOf(bright.convertToFormat(QImage::Format_ARGB32), Qt::white);
}

/// The part of a row's picture that is left of its text.
QImage checkColumn(const QImage &row)
{
    return row.copy(0, 0, 26, row.height());
}

/// Of the text in a row's picture against the brightest ground inside the row's edge.
double contrastIn(const QImage &row)
{
    const QImage inside = row.copy(row.rect().adjusted(4, 2, -4, -2));
    const QImage ground = inside.copy(0, 0, 18, inside.height());
    return contrast(brightest(inside), brightest(ground));
}

} // namespace

void tst_contextmenulooks::theHighlightShows()
{
    MenuStage stage;
    stage.openByPointer();
    const QImage atRest = rowPicture(stage, "First");
    const QImage otherAtRest = rowPicture(stage, "Second");
    pointer::move(*stage.menu, stage.row("First").center());
    QTRY_COMPARE(activeName(*stage.menu), QStringLiteral("First"));
    // Smooth letters need not have a pixel that is all white.
    const QColor lit = brightest(rowPicture(stage, "First"));
    QVERIFY(lit.value() >= 245 && lit.hsvSaturation() <= 5);
    QVERIFY(rowPicture(stage, "First") != atRest);
    QCOMPARE(rowPicture(stage, "Second"), otherAtRest);
    stage.key(Qt::Key_Down);
    QCOMPARE(rowPicture(stage, "First"), atRest);
    QVERIFY(rowPicture(stage, "Second") != otherAtRest);
}

void tst_contextmenulooks::anAmpersandIsShownAndTold()
{
    MenuStage stage;
    stage.items = {{QStringLiteral("HH"), {}, {}, false}, {QStringLiteral("H&H"), {}, {}, false}};
    stage.openByPointer();
    const int without = extentOfText(rowPicture(stage, "HH")).width();
    const int with = extentOfText(rowPicture(stage, "H&H")).width();
    const int ampersand = QFontMetrics(stage.menu->font()).horizontalAdvance(u'&');
    QVERIFY2(qAbs(with - without - ampersand) <= 1,
             qPrintable(QStringLiteral("%1 and %2").arg(without).arg(with)));
    auto *const told = QAccessible::queryAccessibleInterface(stage.menu);
    QCOMPARE(told->child(2)->text(QAccessible::Name), QStringLiteral("H&H"));
}

void tst_contextmenulooks::onlyCheckedItemsShowAMark()
{
    MenuStage stage;
    stage.openByPointer();
    QVERIFY(!stage.item("First")->isChecked());
    QVERIFY(stage.item("Second")->isChecked());
    QVERIFY(stage.item("Inner")->isChecked());
    QVERIFY(stage.item("Inner")->menu());
    QVERIFY(extentOfText(checkColumn(rowPicture(stage, "First"))).isEmpty());
    const QRect mark = extentOfText(checkColumn(rowPicture(stage, "Second")));
    QVERIFY(mark.width() >= 7 && mark.height() >= 6);
    QCOMPARE(extentOfText(checkColumn(rowPicture(stage, "Inner"))), mark);
}

void tst_contextmenulooks::everyTextIsShownWhole()
{
    const char *const text = "WMwm fjJQ";
    MenuStage stage;
    const auto extentWith = [&](const char *second) {
        stage.items = {{QString::fromLatin1(text), {}, {}, false},
                       {QString::fromLatin1(second), {}, {}, false}};
        stage.openByPointer();
        const QRect extent = extentOfText(rowPicture(stage, text));
        stage.key(Qt::Key_Escape);
        return extent;
    };
    const QRect alone = extentWith("i");
    QVERIFY(alone.width() > 40);
    // Beside a wider item there is more room than needed.
    QCOMPARE(alone, extentWith("A text far longer than the other one"));
}

void tst_contextmenulooks::theRowsAreHighEnoughToHit()
{
    MenuStage stage;
    stage.openByPointer();
    for (const char *text : {"First", "Second", "Inner"}) {
        QVERIFY(stage.row(text).height() >= 22);
        QVERIFY(extentOfText(rowPicture(stage, text)).width() < stage.row(text).width() - 8);
    }
}

void tst_contextmenulooks::theTextsCanBeReadOnTheirGround()
{
    MenuStage stage;
    stage.openByPointer();
    QVERIFY(contrastIn(rowPicture(stage, "First")) >= 4.5);
    QCOMPARE(brightest(rowPicture(stage, "First")).hsvHue(), QColor(255, 180, 0).hsvHue());
    stage.key(Qt::Key_Down);
    QCOMPARE(activeName(*stage.menu), QStringLiteral("First"));
    QVERIFY(contrastIn(rowPicture(stage, "First")) >= 4.5);
}

void tst_contextmenulooks::aDisabledItemIsGrey()
{
    MenuStage stage;
    stage.openByPointer();
    stage.item("First")->setEnabled(false);
    const QImage row = rowPicture(stage, "First");
    QVERIFY(brightest(row).hsvSaturation() < 16);
    QVERIFY(contrastIn(row) >= 4.5);
}

KYR_GUI_TEST(tst_contextmenulooks)
#include "tst_contextmenulooks.moc"
