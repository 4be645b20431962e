#include "controls/liststage.h"
#include "controls/tooltips.h"
#include "platform/canvas.h"
#include "support/suite.h"

/// Texts that are cut, told whole by a tooltip: here the rows of a list.
class tst_wholetext : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aCutRowIsToldByItsTooltip_data();
    void aCutRowIsToldByItsTooltip();
    void aRowAsWideAsTheListHasNoTooltip();
    void aRowIsToldAsItStands_data();
    void aRowIsToldAsItStands();
    void otherwiseTheListsOwnTooltipComesUp();
    void theTooltipComesUpAtThePointer();
};

namespace {

const QString kFirstLong = QStringLiteral("Whirling strike of the northern wind");
const QString kSecondLong = QStringLiteral("Shield of the southern sea, raised twice");

/// Its rows: one that fits, two that are cut, one that fits.
struct LongRowsStage : ListStage
{
    LongRowsStage()
    {
        list.clearAll();
        for (const QString &text :
             {QStringLiteral("one"), kFirstLong, kSecondLong, QStringLiteral("four")})
            list.AddString(text);
    }
};

} // namespace

void tst_wholetext::aCutRowIsToldByItsTooltip_data()
{
    QTest::addColumn<int>("fromTop");
    QTest::addColumn<QString>("told");
    QTest::newRow("a row that fits") << 19 << QString();
    QTest::newRow("top of the first cut one") << 20 << kFirstLong;
    QTest::newRow("its bottom") << 39 << kFirstLong;
    QTest::newRow("the second cut one") << 50 << kSecondLong;
    QTest::newRow("behind them") << 61 << QString();
    QTest::newRow("below the rows") << 80 << QString();
    QTest::newRow("at the list's end") << 139 << QString();
}

void tst_wholetext::aCutRowIsToldByItsTooltip()
{
    QFETCH(int, fromTop);
    LongRowsStage stage;
    QTEST(toolTipAt(stage.list, {20, fromTop}), "told");
}

void tst_wholetext::aRowAsWideAsTheListHasNoTooltip()
{
    LongRowsStage stage;
    const int width = qCeil(QFontMetricsF(systemFont(11)).horizontalAdvance(kFirstLong));
    stage.list.setFrame({0, 30, width, 140});
    QCOMPARE(toolTipAt(stage.list, {20, 30}), QString());
    stage.list.setFrame({0, 30, width - 1, 140});
    QCOMPARE(toolTipAt(stage.list, {20, 30}), kFirstLong);
}

void tst_wholetext::aRowIsToldAsItStands_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text :
         {"A macro <b>far</b> too long for its list", "\"Block\" & 'parry', then &amp; and &lt;",
          "Many   blanks   between   the   words"})
        QTest::newRow(text) << QString::fromLatin1(text);
}

void tst_wholetext::aRowIsToldAsItStands()
{
    QFETCH(QString, text);
    LongRowsStage stage;
    stage.list.clearAll();
    stage.list.AddString(text);
    QCOMPARE(toolTipAt(stage.list, {20, 10}), text);
}

void tst_wholetext::otherwiseTheListsOwnTooltipComesUp()
{
    LongRowsStage stage;
    stage.list.setToolTip(QStringLiteral("its own"));
    QCOMPARE(toolTipAt(stage.list, {20, 10}), QStringLiteral("its own"));
    QCOMPARE(toolTipAt(stage.list, {20, 30}), kFirstLong);
}

void tst_wholetext::theTooltipComesUpAtThePointer()
{
    LongRowsStage stage;
    stage.window.move(300, 200);
    askForToolTip(stage.list, {20, 30});
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto tip = std::ranges::find_if(windows, [](const QWidget *window) {
        return window->windowType() == Qt::ToolTip && window->isVisible();
    });
    QVERIFY(tip != windows.end());
    constexpr int kNear = 40;
    const QPoint off = (*tip)->pos() - stage.list.mapToGlobal(QPoint(20, 30));
    QVERIFY(qAbs(off.x()) < kNear && qAbs(off.y()) < kNear);
}

KYR_GUI_TEST(tst_wholetext)
#include "tst_wholetext.moc"
