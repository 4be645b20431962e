#include "dialogs/AboutView.h"
#include "dialogs/WarnOneView.h"
#include "dialogs/WarnTwoView.h"
#include "macro/MacroDelWarn.h"
#include "macro/macrolayout.h"
#include "macro/MacroView.h"
#include "panels/charInfoView.h"
#include "support/mainwindow.h"
#include "support/suite.h"

/// What is written in the windows fits its place.
class tst_lettering : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyCaptionFitsItsButton();
    void everyValueFitsItsButton_data();
    void everyValueFitsItsButton();
    void everyLabelFitsItsPlace_data();
    void everyLabelFitsItsPlace();
    void everyMacroLabelFitsItsPlace();
};

namespace {

/// What a caption keeps clear of at each side, in points.
constexpr int kClear = 4;
constexpr int kCaptionSize = 10;

bool fits(const QString &text, int size, UpRect place)
{
    const QFontMetricsF metrics(systemFont(size));
    return metrics.horizontalAdvance(text) <= place.width && metrics.height() <= place.height;
}

bool captionFits(const QString &caption, const HoverButton &button)
{
    const UpRect place = button.captionRect();
    return place.x >= kClear && place.x + place.width <= button.width() - kClear &&
           fits(caption, kCaptionSize, place);
}

/// The program's windows, and the dialogs that it makes when they are asked for.
struct Windows
{
    Windows()
    {
        new charInfoView(&dialogs);
        new MacroView(&dialogs);
        new AboutView(&dialogs);
        new WarnOneView(&dialogs);
        new WarnTwoView(&dialogs);
        new MacroDelWarn(&dialogs);
    }

    std::vector<HoverButton *> buttons() const
    {
        std::vector<HoverButton *> found;
        for (QAbstractButton *const any : program.window().findChildren<QAbstractButton *>() +
                                              dialogs.findChildren<QAbstractButton *>()) {
            if (auto *const button = dynamic_cast<HoverButton *>(any))
                found.push_back(button);
        }
        return found;
    }
    HoverButton &button(const QString &name) const
    {
        for (HoverButton *const found : buttons()) {
            if (found->objectName() == name)
                return *found;
        }
        qFatal("no button %s", qPrintable(name));
    }

    MainWindowStage program;
    QWidget dialogs;
};

} // namespace

void tst_lettering::everyCaptionFitsItsButton()
{
    const Windows windows;
    int written = 0;
    for (const HoverButton *const button : windows.buttons()) {
        if (button->captionText().isEmpty())
            continue;
        QVERIFY2(captionFits(button->captionText(), *button), qPrintable(button->captionText()));
        ++written;
    }
    QVERIFY2(written >= 30, qPrintable(QString::number(written)));
}

void tst_lettering::everyValueFitsItsButton_data()
{
    QTest::addColumn<QStringList>("values");
    const auto row = [](const char *button, const QString &values) {
        QTest::newRow(button) << values.split(u',');
    };
    row("btnDPI", QStringLiteral(" 800, 1600, 2400, 3200, 4000, 5000"));
    row("btnIntensity", QStringLiteral("High,Medium,Low,Off"));
    row("btnPulsation", QStringLiteral("Fast,Medium,Low,Off"));
    row("ButtonRegion", QStringLiteral("US&Oceanic,Europe,Korea,Taiwan,China"));
}

/// Beside the field of the arrow.
void tst_lettering::everyValueFitsItsButton()
{
    QFETCH(QStringList, values);
    const Windows windows;
    const HoverButton &button = windows.button(QLatin1String(QTest::currentDataTag()));
    const UpRect place = button.captionRect();
    QVERIFY(place.x + place.width <= button.width() - 20 - kClear);
    for (const QString &value : values)
        QVERIFY2(captionFits(value, button), qPrintable(value));
}

void tst_lettering::everyLabelFitsItsPlace_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<UpRect>("place");
    const auto row = [](const char *text, int size, UpRect place) {
        QTest::newRow(text) << size << place;
    };
    row("PROFILE", 11, {70, 520, 70, 15});
    row("Enable in-game mode", 10, {80, 395, 120, 15});
    row("Mouse Memory usage", 10, {60, 368, 138, 15});
    row("100%", 10, {154, 350, 45, 15});
    row("Mouse Properties", 12, {70, 430, 130, 20});
    row("CPI Value:", 11, {25, 360, 70, 20});
    row("Double-Click Speed:", 11, {30, 320, 150, 15});
    row("Scroll Speed:", 11, {30, 280, 150, 15});
    row("Pointer Speed:", 11, {25, 240, 150, 15});
    row("Advanced Sensitivity:", 11, {25, 200, 150, 15});
    row("X-Axis:", 11, {65, 180, 40, 15});
    row("Y-Axis:", 11, {125, 180, 40, 15});
    row("Button Functions", 12, {28, 426, 130, 20});
    row("Illumination Settings", 12, {185, 81, 200, 15});
    row("Color", 11, {20, 56, 125, 15});
    row("Intensity", 11, {167, 56, 125, 15});
    row("Pulsation", 11, {315, 56, 125, 15});
    row("Change Profile", 11, {9, 4, 145, 15});
    row("Add a Kyr Character", 11, {15, 192, 250, 15});
    row("Realm:", 11, {10, 120, 100, 20});
    row("Character Name:", 11, {15, 92, 100, 20});
    row("Region:", 11, {296, 145, 85, 15});
    row("About", 12, {34, 146, 190, 18});
    row("Firmware Version:ff.ff", 12, {20, 38, 218, 18});
    row("Warning", 12, {17, 148, 80, 15});
    row("Are you sure you want to delete this macro?", 12, {10, 100, 350, 15});
    row("Don't show it again.", 12, {40, 66, 250, 15});
    row("Applying profile to on-board memory...", 11, {12, 44, 232, 15});
}

void tst_lettering::everyLabelFitsItsPlace()
{
    QFETCH(int, size);
    QFETCH(UpRect, place);
    QVERIFY(fits(QLatin1String(QTest::currentDataTag()), size, place));
}

void tst_lettering::everyMacroLabelFitsItsPlace()
{
    using namespace macrolayout;
    const auto labelFits = [](const LabelRow &label) {
        const auto fitsIn = [&](UpRect place) {
            return place == UpRect{} || fits(QLatin1String(label.text), 11, place);
        };
        return fitsIn(label.places.copyPaste) && fitsIn(label.places.events);
    };
    QVERIFY(labelFits(kTitle) && labelFits(kName));
    for (const ChoiceRow &choice : kChoices)
        QVERIFY2(labelFits(choice.label), choice.label.text);
}

KYR_GUI_TEST(tst_lettering)
#include "tst_lettering.moc"
