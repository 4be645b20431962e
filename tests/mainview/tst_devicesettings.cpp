#include "fullsettings.h"
#include "support/dialogs.h"
#include "support/drop.h"
#include "support/mainwindow.h"
#include "support/menus.h"
#include "support/suite.h"

/// The settings of the Tools menu: polling rate, lift distance and the warning before a macro is
/// deleted.
class tst_devicesettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPollingRateIsToldStoredAndWritten_data() { pollingRates(); }
    void aPollingRateIsToldStoredAndWritten();
    void aPollingRateIsToldFirst_data() { pollingRates(); }
    void aPollingRateIsToldFirst();
    void aLiftDistanceIsToldAndKept_data() { liftDistances(); }
    void aLiftDistanceIsToldAndKept();
    void aLiftDistanceIsToldFirst_data() { liftDistances(); }
    void aLiftDistanceIsToldFirst();
    void aLiftDistanceIsNeverWritten_data();
    void aLiftDistanceIsNeverWritten();
    void theDeletionWarningIsFlippedAndWritten_data();
    void theDeletionWarningIsFlippedAndWritten();
    void theChangeMarkIsLeftAlone_data();
    void theChangeMarkIsLeftAlone();
    void whatIsWrittenIncludesTheEdits_data();
    void whatIsWrittenIncludesTheEdits();

private:
    static void pollingRates();
    static void liftDistances();
};

namespace {

/// An item of the Tools menu, and of a submenu if `inSubmenu`.
struct Item
{
    const char *text = "";
    const char *inSubmenu = nullptr;
};

struct ToolStage : MainWindowStage
{
    using MainWindowStage::MainWindowStage;

    void choose(const Item &item) const
    {
        if (item.inSubmenu)
            chooseFromMenu(button("BtnToolsMenu"), {item.text, item.inSubmenu});
        else
            chooseFromMenu(button("BtnToolsMenu"), {item.text});
    }
    qlonglong writtenNumber(const char *key) const
    {
        return written()[QString::fromLatin1(key)].toLongLong();
    }
};

constexpr Item kDeletionWarning{"Show macro deletion confirmation"};

QVariantMap request(int type, const char *key, int value)
{
    return {{QStringLiteral("Kt7R4SettingChangeType"), type}, {QString::fromLatin1(key), value}};
}

void itemColumns()
{
    QTest::addColumn<Item>("item");
    QTest::addColumn<int>("code");
}

void itemRow(const Item &item, int code)
{
    QTest::newRow(item.inSubmenu ? item.inSubmenu : item.text) << item << code;
}

void allItems()
{
    QTest::addColumn<Item>("item");
    for (const Item &item :
         {Item{"Polling Rate", "500hz/ms"}, Item{"Lift Distance", "Lower"}, kDeletionWarning})
        QTest::newRow(item.text) << item;
}

} // namespace

void tst_devicesettings::pollingRates()
{
    itemColumns();
    itemRow({"Polling Rate", "1000hz/ms"}, 1);
    itemRow({"Polling Rate", "500hz/ms"}, 2);
    itemRow({"Polling Rate", "250hz/ms"}, 3);
}

void tst_devicesettings::liftDistances()
{
    itemColumns();
    itemRow({"Lift Distance", "Lowest"}, 0);
    itemRow({"Lift Distance", "Lower"}, 1);
    itemRow({"Lift Distance", "Default"}, 2);
}

void tst_devicesettings::aPollingRateIsToldStoredAndWritten()
{
    QFETCH(Item, item);
    QFETCH(int, code);
    const ToolStage stage(settingsWith({{"POLLING_RATE", 9}}));
    stage.choose(item);
    QCOMPARE(stage.requestsSinceStart(), std::vector{request(2, "PollingRate", code)});
    QCOMPARE(m_Config.POLLING_RATE, static_cast<std::uint32_t>(code));
    QCOMPARE(stage.writtenNumber("POLLING_RATE"), code);
}

void tst_devicesettings::aPollingRateIsToldFirst()
{
    QFETCH(Item, item);
    ToolStage stage(settingsWith({{"POLLING_RATE", 9}}));
    std::vector<qlonglong> whenTold;
    stage.center.addObserver(
        QStringLiteral("QuarnsetKt7R4"), QStringLiteral("Kt7R4SettingChange"),
        [&](const QVariantMap &) {
            whenTold = {m_Config.POLLING_RATE, stage.writtenNumber("POLLING_RATE")};
        });
    stage.choose(item);
    QCOMPARE(whenTold, (std::vector<qlonglong>{9, 9}));
}

void tst_devicesettings::aLiftDistanceIsToldAndKept()
{
    QFETCH(Item, item);
    QFETCH(int, code);
    ToolStage stage;
    stage.report("Kt7R4LiftDistance", "Kt7R4LiftDistance", 7);
    stage.choose(item);
    QCOMPARE(stage.requestsSinceStart(), std::vector{request(12, "SetLiftDistance", code)});
    QCOMPARE(stage.view().liftDistance(), static_cast<std::uint32_t>(code));
}

void tst_devicesettings::aLiftDistanceIsToldFirst()
{
    QFETCH(Item, item);
    ToolStage stage;
    stage.report("Kt7R4LiftDistance", "Kt7R4LiftDistance", 7);
    std::uint32_t whenTold = 0;
    stage.center.addObserver(QStringLiteral("QuarnsetKt7R4"), QStringLiteral("Kt7R4SettingChange"),
                             [&](const QVariantMap &) { whenTold = stage.view().liftDistance(); });
    stage.choose(item);
    QCOMPARE(whenTold, 7U);
}

using Change = std::function<void(ToolStage &stage, int code)>;

void tst_devicesettings::aLiftDistanceIsNeverWritten_data()
{
    QTest::addColumn<Change>("change");
    QTest::newRow("chosen") << Change([](ToolStage &stage, int code) {
        constexpr const char *items[] = {"Lowest", "Lower", "Default"};
        stage.choose({"Lift Distance", items[code]});
    });
    QTest::newRow("reported") << Change([](ToolStage &stage, int code) {
        stage.report("Kt7R4LiftDistance", "Kt7R4LiftDistance", code);
    });
}

void tst_devicesettings::aLiftDistanceIsNeverWritten()
{
    QFETCH(Change, change);
    ToolStage stage;
    const auto commit = [&] { pointer::click(stage.button("ButtonOK")); };
    commit();
    const QByteArray before = stage.settings.bytes();
    QVERIFY(!before.isEmpty());
    const Record record = copyOf();
    for (const int code : {2, 1, 0}) {
        change(stage, code);
        QVERIFY(isRecord(*record));
        QCOMPARE(stage.settings.bytes(), before); // not at once
        commit();
        QCOMPARE(stage.settings.bytes(), before); // and not by a commit
    }
    QCOMPARE(stage.quits, 4); // every commit was one
}

void tst_devicesettings::theDeletionWarningIsFlippedAndWritten_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("after");
    QTest::newRow("off") << 0 << 1;
    QTest::newRow("on") << 1 << 0;
    QTest::newRow("on by another number") << 7 << 0;
}

void tst_devicesettings::theDeletionWarningIsFlippedAndWritten()
{
    QFETCH(int, before);
    QFETCH(int, after);
    const ToolStage stage(settingsWith({{"MACRODEL_CONFIRM", before}}));
    for (const int value : {after, 1 - after, after}) {
        stage.choose(kDeletionWarning);
        QCOMPARE(m_Config.MACRODEL_CONFIRM, static_cast<std::uint32_t>(value));
        QVERIFY(stage.written().contains(QStringLiteral("PROFILE_10"))); // by the program
        QCOMPARE(stage.writtenNumber("MACRODEL_CONFIRM"), value);
    }
    QVERIFY(stage.requestsSinceStart().empty());
}

void tst_devicesettings::theChangeMarkIsLeftAlone_data()
{
    allItems();
}

void tst_devicesettings::theChangeMarkIsLeftAlone()
{
    QFETCH(Item, item);
    const ToolStage stage;
    stage.choose(item);
    QVERIFY(!stage.applyIsEnabled());
    dropText(stage.mouseButton(3), QStringLiteral("11"));
    stage.choose(item);
    QVERIFY(stage.applyIsEnabled());
    const DialogVisitor visitor([](const OpenDialog &question) { question.click("ButtonClose"); });
    pointer::click(stage.profileKey(7));
    QCOMPARE(visitor.count(), 1);
    stage.choose(item);
    pointer::click(stage.profileKey(3));
    QCOMPARE(visitor.count(), 1);
}

void tst_devicesettings::whatIsWrittenIncludesTheEdits_data()
{
    QTest::addColumn<Item>("item");
    QTest::newRow("polling rate") << Item{"Polling Rate", "500hz/ms"};
    QTest::newRow("deletion warning") << kDeletionWarning;
}

/// The whole record goes into the file, as ever.
void tst_devicesettings::whatIsWrittenIncludesTheEdits()
{
    QFETCH(Item, item);
    const ToolStage stage(fullSettings());
    dropText(stage.mouseButton(3), QStringLiteral("11"));
    stage.choose(item);
    QVERIFY(isInFile(stage.settings.bytes(), m_Config));
    QCOMPARE(m_Config.PROFILE[2].BUTTON[2], 11U);
}

KYR_GUI_TEST(tst_devicesettings)
#include "tst_devicesettings.moc"
