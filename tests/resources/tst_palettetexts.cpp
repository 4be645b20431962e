#include "app/skinpalette.h"
#include "support/lightness.h"
#include "support/suite.h"

#include <QtWidgets/QToolTip>

/// Whether texts that the toolkit draws by itself, as in file panels, can be read.
class tst_palettetexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { useSkinPalette(); }
    void everyTextStandsOut_data();
    void everyTextStandsOut();
    void tooltipsStandOut();
};

void tst_palettetexts::everyTextStandsOut_data()
{
    QTest::addColumn<QPalette::ColorRole>("text");
    QTest::addColumn<QPalette::ColorRole>("ground");
    QTest::newRow("labels") << QPalette::WindowText << QPalette::Window;
    QTest::newRow("lists") << QPalette::Text << QPalette::Base;
    QTest::newRow("every other row") << QPalette::Text << QPalette::AlternateBase;
    QTest::newRow("buttons") << QPalette::ButtonText << QPalette::Button;
    QTest::newRow("selections") << QPalette::HighlightedText << QPalette::Highlight;
    QTest::newRow("placeholders") << QPalette::PlaceholderText << QPalette::Base;
    QTest::newRow("links") << QPalette::Link << QPalette::Base;
}

void tst_palettetexts::everyTextStandsOut()
{
    QFETCH(const QPalette::ColorRole, text);
    QFETCH(const QPalette::ColorRole, ground);
    const QPalette palette = QApplication::palette();
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        const double found = contrast(luminance(palette.color(group, text).rgb()),
                                      luminance(palette.color(group, ground).rgb()));
        QVERIFY2(found >= 4.5, qPrintable(QString::number(found)));
    }
}

void tst_palettetexts::tooltipsStandOut()
{
    const QPalette palette = QToolTip::palette();
    const double found = contrast(luminance(palette.color(QPalette::ToolTipText).rgb()),
                                  luminance(palette.color(QPalette::ToolTipBase).rgb()));
    QVERIFY2(found >= 4.5, qPrintable(QString::number(found)));
}

KYR_GUI_TEST(tst_palettetexts)
#include "tst_palettetexts.moc"
