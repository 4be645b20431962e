#include "progressstage.h"
#include "support/dialogs.h"
#include "support/drop.h"
#include "support/suite.h"

/// What the reports of the driver process do to the main view.
class tst_driverreports : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aProfileReportShowsThatProfile_data();
    void aProfileReportShowsThatProfile();
    void aProfileReportWithoutANumberDoesNothing_data();
    void aProfileReportWithoutANumberDoesNothing();
    void aProfileReportSavesAndAsksNothing();
    void aProfileReportKeepsTheChangeMark_data();
    void aProfileReportKeepsTheChangeMark();
    void progressIsIgnoredWhileNoWindowShowsIt();
    void progressMovesTheBar_data();
    void progressMovesTheBar();
    void progressMayComeInAnyOrder();
    void firmwareAndLiftDistanceAreKept_data();
    void firmwareAndLiftDistanceAreKept();
    void aReportUnderAnotherObjectIsNotReceived();
    void reportsAfterTheEndGoNowhere();
};

void tst_driverreports::aProfileReportShowsThatProfile_data()
{
    QTest::addColumn<QVariant>("number");
    QTest::addColumn<std::uint32_t>("stored");
    QTest::addColumn<int>("key");
    for (int number = 1; number <= 10; ++number)
        QTest::addRow("%d", number) << QVariant(number) << std::uint32_t(number - 1) << number;
    const auto row = [](const QVariant &number, std::uint32_t stored) {
        QTest::newRow(qPrintable(number.toString())) << number << stored << 1;
    };
    row(0, 0xFFFFFFFF);
    row(11, 10);
    row(-1, 0xFFFFFFFE);
    row(INT_MAX, 0x7FFFFFFE);
    row(INT_MIN, 0x7FFFFFFF);
    row(4294967295U, 0xFFFFFFFE);
    row(qlonglong{0x100000001}, 0);
}

void tst_driverreports::aProfileReportShowsThatProfile()
{
    QFETCH(QVariant, number);
    QFETCH(int, key);
    ProgressStage stage;
    for (unsigned index = 0; index < kProfileCount; ++index)
        m_Config.PROFILE[index].BUTTON[6] = 32 + index;
    stage.reportProfile(number);
    QTEST(m_Config.PROFILE_ID, "stored");
    QCOMPARE(stage.profileKeysOn(), std::vector{key});
    QCOMPARE(stage.mouseButton(7).captionText(), QStringLiteral("Profile %1").arg(key));
}

void tst_driverreports::aProfileReportWithoutANumberDoesNothing_data()
{
    QTest::addColumn<QVariantMap>("userInfo");
    const QString key = QStringLiteral("ProfileNumber");
    QTest::newRow("missing") << QVariantMap();
    QTest::newRow("text") << QVariantMap{{key, QStringLiteral("5")}};
    QTest::newRow("fraction") << QVariantMap{{key, 5.0}};
    QTest::newRow("another key") << QVariantMap{{QStringLiteral("PosNumber"), 5}};
}

void tst_driverreports::aProfileReportWithoutANumberDoesNothing()
{
    QFETCH(QVariantMap, userInfo);
    ProgressStage stage;
    stage.reportProfile(3);
    stage.center.post(QStringLiteral("QuarnsetKt7R4"), QStringLiteral("Kt7R4ProfileChange"),
                      userInfo);
    QCOMPARE(m_Config.PROFILE_ID, 2U);
    QCOMPARE(stage.profileKeysOn(), std::vector{3});
}

void tst_driverreports::aProfileReportSavesAndAsksNothing()
{
    ProgressStage stage;
    dropText(stage.mouseButton(3), QStringLiteral("11"));
    stage.reportProfile(2);
    QCOMPARE(stage.profileKeysOn(), std::vector{2});
    QVERIFY(stage.settings.bytes().isEmpty());
    QVERIFY(stage.requestsSinceStart().empty());
    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(m_Config.PROFILE[0].BUTTON[2], 11U); // still there, still unsaved
}

void tst_driverreports::aProfileReportKeepsTheChangeMark_data()
{
    QTest::addColumn<bool>("changed");
    QTest::newRow("changed") << true;
    QTest::newRow("unchanged") << false;
}

void tst_driverreports::aProfileReportKeepsTheChangeMark()
{
    QFETCH(bool, changed);
    ProgressStage stage;
    if (changed)
        dropText(stage.mouseButton(3), QStringLiteral("11"));
    stage.reportProfile(2);
    QCOMPARE(stage.applyIsEnabled(), changed);
    const DialogVisitor visitor([](const OpenDialog &question) { question.click("ButtonClose"); });
    pointer::click(stage.profileKey(3));
    QCOMPARE(visitor.count(), changed ? 1 : 0);
}

void tst_driverreports::progressIsIgnoredWhileNoWindowShowsIt()
{
    ProgressStage stage;
    stage.progress(50);
    stage.progress(100);
    QVERIFY(!stage.progressWindow());
    stage.saveOnBoard();
    QCOMPARE(stage.progressView().progressPos(), 0);
    stage.progress(100);
    stage.progress(30); // the window is closed by now
    QCOMPARE(stage.progressView().progressPos(), 100);
    QVERIFY(!stage.showsProgress());
}

void tst_driverreports::progressMovesTheBar_data()
{
    QTest::addColumn<QVariant>("position");
    QTest::addColumn<int>("shown");
    QTest::addColumn<bool>("open");
    const auto row = [](const char *name, const QVariant &position, int shown, bool open) {
        QTest::newRow(name) << position << shown << open;
    };
    row("0", 0, 0, true);
    row("1", 1, 1, true);
    row("50", 50, 50, true);
    row("99", 99, 99, true);
    row("100", 100, 100, false);
    row("101", 101, 100, false);
    row("largest", INT_MAX, 100, false);
    row("below 0", -1, 0, true);
    row("smallest", INT_MIN, 0, true);
    row("text", QStringLiteral("70"), 10, true);
    row("nothing", QVariant(), 10, true);
}

void tst_driverreports::progressMovesTheBar()
{
    QFETCH(QVariant, position);
    QFETCH(int, shown);
    ProgressStage stage;
    stage.saveOnBoard();
    stage.progress(10);
    stage.progress(position);
    QCOMPARE(stage.progressView().progressPos(), shown);
    const auto *const bar = stage.progressView().findChild<pngProgressBar *>();
    QCOMPARE(bar->getPos(), shown);
    QTEST(stage.showsProgress(), "open");
}

void tst_driverreports::progressMayComeInAnyOrder()
{
    ProgressStage stage;
    stage.saveOnBoard();
    for (const int position : {50, 20, 99, 0, 98}) {
        stage.progress(position);
        QVERIFY(stage.showsProgress());
        QCOMPARE(stage.progressView().progressPos(), position);
    }
    stage.progress(INT_MAX);
    for (const int position : {30, INT_MIN, 100}) {
        QVERIFY(!stage.showsProgress());
        QCOMPARE(stage.progressView().progressPos(), 100);
        stage.progress(position);
    }
}

void tst_driverreports::firmwareAndLiftDistanceAreKept_data()
{
    QTest::addColumn<int>("value");
    for (int value : {0, 1, 2, 102, -1, INT_MAX})
        QTest::addRow("%d", value) << value;
}

void tst_driverreports::firmwareAndLiftDistanceAreKept()
{
    QFETCH(int, value);
    ProgressStage stage;
    stage.report("Kt7R4DeviceFWVersion", "Kt7R4FWNumber", 7);
    stage.report("Kt7R4LiftDistance", "Kt7R4LiftDistance", 1);
    stage.report("Kt7R4DeviceFWVersion", "Kt7R4FWNumber", value);
    QCOMPARE(stage.view().firmwareNumber(), static_cast<std::uint32_t>(value));
    QCOMPARE(stage.view().liftDistance(), 1U);
    stage.report("Kt7R4LiftDistance", "Kt7R4LiftDistance", value);
    QCOMPARE(stage.view().liftDistance(), static_cast<std::uint32_t>(value));
    stage.report("Kt7R4DeviceFWVersion", "Kt7R4LiftDistance", 5); // keys of the other one
    stage.report("Kt7R4LiftDistance", "Kt7R4FWNumber", 5);
    QCOMPARE(stage.view().firmwareNumber(), static_cast<std::uint32_t>(value));
    QCOMPARE(stage.view().liftDistance(), static_cast<std::uint32_t>(value));
}

void tst_driverreports::aReportUnderAnotherObjectIsNotReceived()
{
    ProgressStage stage;
    stage.report("Kt7R4Lift", "Kt7R4LiftDistance", 2);
    stage.report("", "ProfileNumber", 4);
    QCOMPARE(stage.view().liftDistance(), 0U);
    QCOMPARE(stage.profileKeysOn(), std::vector{1});
}

void tst_driverreports::reportsAfterTheEndGoNowhere()
{
    ProgressStage stage;
    stage.interface.reset();
    stage.reportProfile(4);
    stage.progress(50);
    QCOMPARE(m_Config.PROFILE_ID, 0U);
}

KYR_GUI_TEST(tst_driverreports)
#include "tst_driverreports.moc"
