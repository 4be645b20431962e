#include "support/mainwindow.h"

#include <cstring>

/// The lift distance stays between the program and the driver process: it is no setting of the
/// file.
class tst_liftdistance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itIsNeverWritten_data();
    void itIsNeverWritten();
};

using Change = void (*)(MainWindowStage &stage, int code);

void tst_liftdistance::itIsNeverWritten_data()
{
    QTest::addColumn<Change>("change");
    const auto set = [](MainWindowStage &stage, int code) { stage.view().SendLiftDistance(code); };
    const auto report = [](MainWindowStage &stage, int code) {
        stage.report("Kt7R4LiftDistance", "Kt7R4LiftDistance", code);
    };
    QTest::newRow("set") << Change(set);
    QTest::newRow("reported") << Change(report);
}

void tst_liftdistance::itIsNeverWritten()
{
    QFETCH(Change, change);
    MainWindowStage stage;
    const auto commit = [&] { pointer::click(stage.button("ButtonOK")); };
    commit();
    const QByteArray before = stage.settings.bytes();
    QVERIFY(!before.isEmpty());
    const auto record = std::make_unique<ConfigData>(m_Config);
    for (const int code : {2, 1, 0, 77}) {
        change(stage, code);
        QCOMPARE(std::memcmp(&m_Config, record.get(), sizeof m_Config), 0);
        QCOMPARE(stage.settings.bytes(), before); // not at once
        commit();
        QCOMPARE(stage.settings.bytes(), before); // and not by a commit
    }
    QCOMPARE(stage.quits, 5); // every commit was one
}

QTEST_MAIN(tst_liftdistance)
#include "tst_liftdistance.moc"
