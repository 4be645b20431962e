#include "app/skinpalette.h"
#include "support/contrast.h"
#include "support/suite.h"

#include <QtGui/QPalette>
#include <QtWidgets/QApplication>
#include <QtWidgets/QToolTip>

/// The colours of what the toolkit draws by itself.
class tst_skinpalette : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyTextCanBeReadOnItsGround_data();
    void everyTextCanBeReadOnItsGround();
};

void tst_skinpalette::everyTextCanBeReadOnItsGround_data()
{
    QTest::addColumn<QPalette::ColorRole>("text");
    QTest::addColumn<QPalette::ColorRole>("ground");
    const auto row = [](const char *name, QPalette::ColorRole text, QPalette::ColorRole ground) {
        QTest::newRow(name) << text << ground;
    };
    row("window", QPalette::WindowText, QPalette::Window);
    row("field", QPalette::Text, QPalette::Base);
    row("every second row", QPalette::Text, QPalette::AlternateBase);
    row("what a field asks for", QPalette::PlaceholderText, QPalette::Base);
    row("button", QPalette::ButtonText, QPalette::Button);
    row("selection", QPalette::HighlightedText, QPalette::Highlight);
    row("tooltip", QPalette::ToolTipText, QPalette::ToolTipBase);
    row("address", QPalette::Link, QPalette::Base);
}

void tst_skinpalette::everyTextCanBeReadOnItsGround()
{
    QFETCH(QPalette::ColorRole, text);
    QFETCH(QPalette::ColorRole, ground);
    const QPalette before = QApplication::palette();
    useSkinPalette();
    const QPalette palette = QApplication::palette();
    QApplication::setPalette(before);
    for (const QPalette::ColorGroup group :
         {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const double found = contrast(palette.color(group, text), palette.color(group, ground));
        QVERIFY2(found >= 4.5, qPrintable(QStringLiteral("%1 in group %2").arg(found).arg(group)));
    }
}

KYR_GUI_TEST(tst_skinpalette)
#include "tst_skinpalette.moc"
