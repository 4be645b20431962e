#include "daemon/driverprocess.h"
#include "daemon/onboardprofile.h"
#include "daemon/virtualmouse.h"
#include "driver/driverlink.h"
#include "support/localnotificationcenter.h"
#include "support/logcapture.h"
#include "support/suite.h"
#include "support/testsettings.h"

#include <QtCore/QDir>

using driver::RequestType;

namespace {

/// A virtual mouse and its driver in this process, with a settings file of their own.
struct Mouse
{
    explicit Mouse(const MouseStore &store = MouseStore()) : mouse(store)
    {
        files.setConfigfileName(settings.path());
        files.InitialConfigData();
        link.observe(driver::kProgressReport, [this](int percent) {
            progress.append(percent);
            if (onProgress)
                onProgress(percent);
        });
    }

    /// Puts a settings file whose current profile has `code` on button 5.
    void save(FunctionCode code)
    {
        CurrentProfile().BUTTON[4] = code;
        files.WriteConfigFile();
    }
    bool holds(FunctionCode code) const
    {
        return driver.describe().find("BUTTON_5=" + std::to_string(code) + ' ') !=
               std::string::npos;
    }

    TestSettings settings;
    xmlconfig files;
    LogCapture log;
    LocalNotificationCenter center;
    VirtualMouse mouse;
    DriverProcess driver{center, mouse};
    driver::DriverLink link{center};
    QList<int> progress;
    std::function<void(int percent)> onProgress;
};

const QList<int> kWholeWrite = {5,  10, 15, 20, 25, 30, 35, 40, 45, 50,
                                55, 60, 65, 70, 75, 80, 85, 90, 95, 100};

} // namespace

class tst_virtualmouse : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aWriteRunsFromTheEventLoopAndTakesEffectAtItsEnd();
    void aRequestInTheMiddleOfAWriteStartsAnew();
    void aBadFileInTheMiddleOfAWriteLetsItFinish();
    void aRequestAtTheEndOfAWriteIsCarriedOut();
    void aProfileNumberOutOfRangeMeansTheFirst();
    void theMacrosThatButtonsPlayGoOnBoard();
    void anEmptyMemoryShowsNothing();
    void storedValuesOutOfRangeAreNotTaken();
    void brokenStateStartsAsDelivered();
    void anUnwritableFolderIsNamedAndTheMouseWorks();
};

void tst_virtualmouse::aWriteRunsFromTheEventLoopAndTakesEffectAtItsEnd()
{
    Mouse mouse;
    mouse.save(4);
    mouse.onProgress = [&mouse](int percent) { QCOMPARE(mouse.holds(4), percent == 100); };
    mouse.link.request(RequestType::TakeSettings);
    QCOMPARE(mouse.progress, QList<int>());
    QTRY_COMPARE(mouse.progress, kWholeWrite);
    QCOMPARE(mouse.log.count("profile 1 is on board"), 1);
}

void tst_virtualmouse::aRequestInTheMiddleOfAWriteStartsAnew()
{
    Mouse mouse;
    mouse.save(4);
    mouse.onProgress = [&mouse](int percent) {
        if (percent != 50 || mouse.progress.size() > 10)
            return;
        mouse.save(5);
        mouse.link.request(RequestType::TakeSettings);
    };
    mouse.link.request(RequestType::TakeSettings);
    QTRY_COMPARE(mouse.progress, kWholeWrite.first(10) + kWholeWrite);
    QVERIFY(mouse.holds(5));
    QCOMPARE(mouse.log.count("profile 1 is on board"), 1);
}

void tst_virtualmouse::aBadFileInTheMiddleOfAWriteLetsItFinish()
{
    Mouse mouse;
    mouse.save(4);
    mouse.onProgress = [&mouse](int percent) {
        if (percent != 50)
            return;
        mouse.settings.put("broken");
        mouse.link.request(RequestType::TakeSettings);
    };
    mouse.link.request(RequestType::TakeSettings);
    QTRY_COMPARE(mouse.progress, kWholeWrite);
    QVERIFY(mouse.holds(4));
    QVERIFY(mouse.log.contains(mouse.settings.path() +
                               " is not a property list: the mouse stays as it is"));
}

void tst_virtualmouse::aRequestAtTheEndOfAWriteIsCarriedOut()
{
    Mouse mouse;
    mouse.save(4);
    mouse.onProgress = [&mouse](int percent) {
        if (percent != 100 || mouse.holds(5))
            return;
        mouse.save(5);
        mouse.link.request(RequestType::TakeSettings);
    };
    mouse.link.request(RequestType::TakeSettings);
    QTRY_COMPARE(mouse.progress, kWholeWrite + kWholeWrite);
    QVERIFY(mouse.holds(5));
}

void tst_virtualmouse::aProfileNumberOutOfRangeMeansTheFirst()
{
    for (const std::uint32_t outside : {10U, 0xFFFFFFFFU}) {
        Mouse mouse;
        m_Config.PROFILE_ID = outside;
        m_Config.PROFILE[0].BUTTON[4] = 21;
        mouse.files.WriteConfigFile();
        mouse.link.request(RequestType::TakeSettings);
        QTRY_COMPARE(mouse.progress, kWholeWrite);
        QVERIFY(mouse.holds(21));
        QVERIFY(mouse.log.contains("profile 1 is on board"));
        QCOMPARE(mouse.mouse.state().activeProfile, 1);
    }
}

void tst_virtualmouse::theMacrosThatButtonsPlayGoOnBoard()
{
    ProfileInfo &profile = m_Config.PROFILE[0];
    profile = {};
    profile.BUTTON[0] = 256;      // macro 1
    profile.BUTTON[1] = 256 + 49; // macro 50
    profile.BUTTON[2] = 256 + 50; // no such macro
    profile.MACRO[0].KEYMAP[0] = {11, 1, 3};
    profile.MACRO[1].KEYMAP[0] = {22, 1, 3};
    profile.MACRO[49].KEYMAP[0] = {33, 1, 3};
    const auto document = plist::Document::parse(encodeProfile(profile, 1));
    QVERIFY(document);
    const auto keymap = [&document](const char *macro) {
        return std::string(document->root().dictionary(macro).text("KEYMAP").value_or("none"));
    };
    QCOMPARE(keymap("MACRO_1"), std::string("11,1,3,"));
    QCOMPARE(keymap("MACRO_2"), std::string("none"));
    QCOMPARE(keymap("MACRO_50"), std::string("33,1,3,"));
    QCOMPARE(keymap("MACRO_51"), std::string("none"));
}

void tst_virtualmouse::anEmptyMemoryShowsNothing()
{
    const Mouse mouse;
    const std::string text = mouse.driver.describe();
    QVERIFY(text.starts_with("POLLING_RATE=1 LIFT_DISTANCE=2 ACTIVE_PROFILE=1 profile 0: "));
    QVERIFY(text.ends_with(" BUTTON_13=0 BUTTON_14=0"));
}

void tst_virtualmouse::storedValuesOutOfRangeAreNotTaken()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("mouse.xml")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<plist version=\"1.0\"><dict><key>POLLING_RATE</key><integer>4</integer>"
               "<key>LIFT_DISTANCE</key><integer>1</integer>"
               "<key>ACTIVE_PROFILE</key><integer>4294967297</integer></dict></plist>");
    file.close();
    const LogCapture log;
    const MouseState state = MouseStore(folder.path().toStdString()).loadState();
    QCOMPARE(state, (MouseState{.pollingRate = 1, .liftDistance = 1, .activeProfile = 1}));
    QVERIFY(log.contains("the mouse's stored POLLING_RATE is out of range"));
    QVERIFY(log.contains("the mouse's stored ACTIVE_PROFILE is out of range"));
    QCOMPARE(log.lines.size(), std::size_t{2});
}

void tst_virtualmouse::brokenStateStartsAsDelivered()
{
    const QTemporaryDir folder;
    const std::string path = folder.path().toStdString();
    QFile file(folder.filePath(QStringLiteral("mouse.xml")));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("broken") > 0);
    file.close();
    QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("onboard.xml")));
    const LogCapture log;
    const MouseStore store(path);
    QCOMPARE(store.loadState(), MouseState());
    QCOMPARE(store.loadMemory(), std::string());
    QVERIFY(log.contains(path + "/mouse.xml is not a property list"));
    QVERIFY(log.contains(path + "/onboard.xml cannot be read"));
}

void tst_virtualmouse::anUnwritableFolderIsNamedAndTheMouseWorks()
{
    const QTemporaryDir folder;
    const std::string path = folder.path().toStdString();
    Mouse mouse{MouseStore(path)};
    // No file can be put where folders of the same names are.
    QVERIFY(QDir(folder.path()).mkpath(QStringLiteral("mouse.xml/inside")));
    QVERIFY(QDir(folder.path()).mkpath(QStringLiteral("onboard.xml/inside")));
    mouse.save(4);
    mouse.link.request(RequestType::SetPollingRate, driver::kPollingRateKey, 2);
    mouse.link.request(RequestType::TakeSettings);
    QTRY_COMPARE(mouse.progress, kWholeWrite);
    QVERIFY(mouse.holds(4));
    QCOMPARE(mouse.mouse.state().pollingRate, 2);
    QVERIFY(mouse.log.contains(path + "/mouse.xml cannot be written"));
    QVERIFY(mouse.log.contains(path + "/onboard.xml cannot be written"));
}

KYR_CORE_TEST(tst_virtualmouse)
#include "tst_virtualmouse.moc"
