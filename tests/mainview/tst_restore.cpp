#include "fullsettings.h"
#include "support/dialogs.h"
#include "support/drop.h"
#include "support/mainwindow.h"
#include "support/paintwatch.h"
#include "support/pictures.h"
#include "support/suite.h"

/// Restore Defaults.
class tst_restore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyTheSettingsOfThatProfileChange_data();
    void onlyTheSettingsOfThatProfileChange();
    void theCaptionsAreRefreshed();
    void theColourLineIsRefreshed();
    void applyIsEnabled();
    void nothingIsWrittenOrSent();
    void applyWritesAndTells();
    void theGaugeIsKeptUntilTheNextRecount_data();
    void theGaugeIsKeptUntilTheNextRecount();
    void whatWasRestoredCanBeDropped();
};

namespace {

struct RestoreStage : MainWindowStage
{
    RestoreStage() : MainWindowStage(fullSettings()) {}
    void restore() const { pointer::click(button("ButtonRestore")); }
};

void putFactorySettings(ProfileInfo &profile)
{
    putDefaults(profile, {0x0001, 0x0002, 0x0006, 0x4010, 0x5007, 0x5011, 0x4001, 0x0005, 0x0004,
                          0x4003, 0x400F, 0x4014, 0x5014, 0x4005});
}

} // namespace

void tst_restore::onlyTheSettingsOfThatProfileChange_data()
{
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("restored");
    for (int number = 1; number <= 10; ++number)
        QTest::addRow("%d", number) << number << number;
    QTest::newRow("one outside") << 11 << 1;
}

void tst_restore::onlyTheSettingsOfThatProfileChange()
{
    QFETCH(int, current);
    QFETCH(int, restored);
    RestoreStage stage;
    stage.reportProfile(current);
    const Record expected = copyOf();
    putFactorySettings(expected->PROFILE[restored - 1]);
    QVERIFY(!isRecord(*expected));
    stage.restore();
    QVERIFY(isRecord(*expected));
}

void tst_restore::theCaptionsAreRefreshed()
{
    const RestoreStage stage;
    QCOMPARE(stage.mouseButton(1).captionText(), QStringLiteral("Profile 3"));
    stage.restore();
    QCOMPARE(stage.mouseButton(1).captionText(), QStringLiteral("Left-Click"));
    QCOMPARE(stage.mouseButton(8).captionText(), QStringLiteral("Button 5"));
    QCOMPARE(stage.mouseButton(9).captionText(), QStringLiteral("Button 4"));
}

void tst_restore::theColourLineIsRefreshed()
{
    const RestoreStage stage;
    const QPoint onTheLine(260, 640 - 504);
    QVERIFY(shownAt(stage.window(), onTheLine) != QColor(255, 60, 0));
    const PaintWatch watch(stage.view());
    stage.restore();
    QTRY_VERIFY(watch.hasPainted(onTheLine));
    QCOMPARE(shownAt(stage.window(), onTheLine), QColor(255, 60, 0));
}

void tst_restore::applyIsEnabled()
{
    const RestoreStage stage;
    QVERIFY(!stage.applyIsEnabled());
    stage.restore();
    QVERIFY(stage.applyIsEnabled());
}

void tst_restore::nothingIsWrittenOrSent()
{
    const RestoreStage stage;
    stage.restore();
    QCOMPARE(stage.settings.bytes(), fullSettings());
    QVERIFY(stage.requestsSinceStart().empty());
}

void tst_restore::applyWritesAndTells()
{
    const RestoreStage stage;
    stage.restore();
    pointer::click(stage.button("ButtonApply"));
    QVERIFY(isInFile(stage.settings.bytes(), m_Config));
    QCOMPARE(stage.requestsSinceStart(), std::vector{takeSettings()});
}

using Recount = std::function<void(MainWindowStage &stage)>;

void tst_restore::theGaugeIsKeptUntilTheNextRecount_data()
{
    QTest::addColumn<Recount>("recount");
    QTest::newRow("an assignment") << Recount(
        [](MainWindowStage &stage) { dropText(stage.mouseButton(1), QStringLiteral("9")); });
    QTest::newRow("a switch") << Recount([](MainWindowStage &stage) {
        const DialogVisitor visitor([](const OpenDialog &question) { question.click("ButtonOK"); });
        pointer::click(stage.profileKey(3));
    });
}

void tst_restore::theGaugeIsKeptUntilTheNextRecount()
{
    QFETCH(Recount, recount);
    MainWindowStage stage;
    const auto &gauge =
        *stage.view().findChild<pngProgressBar *>(QStringLiteral("MSMemoryUsageBar"));
    const auto usage = [&] { return static_cast<int>(stage.view().memoryUsage()); };
    stage.reportProfile(3);
    m_Config.PROFILE[2].MACRO[0].MODE = 0;
    std::memset(m_Config.PROFILE[2].MACRO[0].COPY_PASTER, 'x', 250);
    dropText(stage.mouseButton(1), QStringLiteral("256"));
    const int before = usage();
    QCOMPARE(before, (75 + 1002) * 8 / 1024);

    pointer::click(stage.button("ButtonRestore"));
    QCOMPARE(usage(), before);
    QCOMPARE(gauge.getPos(), before);
    recount(stage);
    QVERIFY(usage() < before);
    QCOMPARE(gauge.getPos(), usage());
}

void tst_restore::whatWasRestoredCanBeDropped()
{
    const RestoreStage stage;
    const Record before = copyOf();
    stage.restore();
    const DialogVisitor visitor([](const OpenDialog &question) { question.click("ButtonCancel"); });
    pointer::click(stage.profileKey(3));
    QCOMPARE(visitor.count(), 1);
    QVERIFY(isRecord(*before));
}

KYR_GUI_TEST(tst_restore)
#include "tst_restore.moc"
