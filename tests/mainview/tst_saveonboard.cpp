#include "progressstage.h"
#include "support/dialogs.h"
#include "support/drop.h"
#include "support/suite.h"

/// Save On Board: what it does first and last, and when it is refused.
class tst_saveonboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aProfileThatTheMouseCannotStoreIsRefused_data() { states(); }
    void aProfileThatTheMouseCannotStoreIsRefused();
    void theCurrentProfileCounts();
    void itWritesShowsAndTellsInThatOrder();
    void afterwardsNothingIsPending_data() { states(); }
    void afterwardsNothingIsPending();
    void everythingIsWritten();
    void aSecondClickWritesAndTellsAgain();
    void aSecondClickKeepsTheProgress();
    void theMainWindowCanBeUsedMeanwhile();
    void anotherProfileMayBeSavedMeanwhile();
    void withoutADriverProcessTheWindowStays();

private:
    static void states()
    {
        QTest::addColumn<bool>("edited");
        QTest::newRow("edited") << true;
        QTest::newRow("unedited") << false;
    }
};

namespace {

constexpr FunctionCode kProfileUp = 42; // no on-board function

/// Calls when the progress window comes up.
class WindowWatch : public QObject
{
public:
    explicit WindowWatch(std::function<void()> shown) : m_shown(std::move(shown))
    {
        qApp->installEventFilter(this);
    }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show && watched->isWidgetType() &&
            watched->objectName() == QLatin1String("pPopUpBarWindow"))
            m_shown();
        return false;
    }

private:
    std::function<void()> m_shown;
};

} // namespace

void tst_saveonboard::aProfileThatTheMouseCannotStoreIsRefused()
{
    QFETCH(bool, edited);
    const ProgressStage stage;
    if (edited)
        dropText(stage.mouseButton(7), QString::number(kProfileUp));
    else
        m_Config.PROFILE[0].BUTTON[6] = kProfileUp;
    const DialogVisitor visitor([](const OpenDialog &message) {
        QCOMPARE(message.caption(), QStringLiteral("Error!"));
        QVERIFY(message.text().startsWith(QLatin1String("The Change Profile functions found")));
        message.click("ButtonOK");
    });
    stage.saveOnBoard();
    QCOMPARE(visitor.count(), 1);
    QVERIFY(stage.settings.bytes().isEmpty());
    QVERIFY(stage.requestsSinceStart().empty());
    QVERIFY(!stage.progressWindow());
    QCOMPARE(stage.applyIsEnabled(), edited);
    QCOMPARE(m_Config.PROFILE[0].BUTTON[6], kProfileUp);
}

void tst_saveonboard::theCurrentProfileCounts()
{
    ProgressStage stage;
    m_Config.PROFILE[4].BUTTON[6] = kProfileUp;
    const DialogVisitor visitor([](const OpenDialog &message) { message.click("ButtonClose"); });
    stage.saveOnBoard();
    QCOMPARE(visitor.count(), 0);
    stage.reportProfile(5);
    stage.saveOnBoard();
    QCOMPARE(visitor.count(), 1);
}

void tst_saveonboard::itWritesShowsAndTellsInThatOrder()
{
    ProgressStage stage;
    dropText(stage.mouseButton(3), QStringLiteral("11"));
    QStringList order;
    const auto happens = [&](const char *what) {
        order << QString::fromLatin1(what);
        QVERIFY(stage.applyIsEnabled()); // is disabled last
    };
    const WindowWatch watch([&] {
        QCOMPARE(stage.requestsSinceStart().size(), std::size_t{0});
        const QVariantMap profile = stage.written()[QStringLiteral("PROFILE_1")].toMap();
        if (profile[QStringLiteral("BUTTON_3")] == 11)
            happens("written and shown");
    });
    stage.center.addObserver(QStringLiteral("QuarnsetKt7R4"), QStringLiteral("Kt7R4SettingChange"),
                             [&](const QVariantMap &request) {
                                 QCOMPARE(request, takeSettings());
                                 happens("told");
                             });
    stage.saveOnBoard();
    QCOMPARE(order, (QStringList{QStringLiteral("written and shown"), QStringLiteral("told")}));
    QVERIFY(stage.showsProgress());
}

void tst_saveonboard::afterwardsNothingIsPending()
{
    QFETCH(bool, edited);
    const ProgressStage stage;
    if (edited)
        dropText(stage.mouseButton(3), QStringLiteral("11"));
    stage.saveOnBoard();
    QVERIFY(!stage.applyIsEnabled());
    QCOMPARE(stage.quits, 0);
    const DialogVisitor visitor([](const OpenDialog &question) { question.click("ButtonClose"); });
    pointer::click(stage.profileKey(2));
    QCOMPARE(visitor.count(), 0);
}

void tst_saveonboard::everythingIsWritten()
{
    ProgressStage stage;
    stage.reportProfile(8);
    m_Config.PROFILE[9].MACRO[49].MACRO_LOOP = 77;
    stage.saveOnBoard();
    const QVariantMap root = stage.written();
    QCOMPARE(root[QStringLiteral("PROFILE_ID")], 7);
    const QVariantMap last = root[QStringLiteral("PROFILE_10")].toMap();
    QCOMPARE(last[QStringLiteral("MACRO_50")].toMap()[QStringLiteral("MACRO_LOOP")], 77);
}

void tst_saveonboard::aSecondClickWritesAndTellsAgain()
{
    const ProgressStage stage;
    stage.saveOnBoard();
    stage.settings.put("something else");
    stage.saveOnBoard();
    QVERIFY(!stage.written().isEmpty());
    QCOMPARE(stage.requestsSinceStart(), (std::vector{takeSettings(), takeSettings()}));
}

void tst_saveonboard::aSecondClickKeepsTheProgress()
{
    ProgressStage stage;
    stage.saveOnBoard();
    stage.progress(40);
    stage.saveOnBoard();
    QVERIFY(stage.showsProgress());
    QCOMPARE(stage.progressView().progressPos(), 40);
    stage.progress(41);
    QCOMPARE(stage.progressView().progressPos(), 41);
}

void tst_saveonboard::theMainWindowCanBeUsedMeanwhile()
{
    const ProgressStage stage;
    stage.saveOnBoard();
    QVERIFY(!QApplication::activeModalWidget());
    pointer::click(stage.profileKey(4));
    QCOMPARE(stage.profileKeysOn(), std::vector{4});
    pointer::click(stage.button("ButtonApply"));
    QVERIFY(!stage.applyIsEnabled());
    QVERIFY(stage.showsProgress());
}

void tst_saveonboard::anotherProfileMayBeSavedMeanwhile()
{
    ProgressStage stage;
    stage.saveOnBoard();
    stage.progress(70);
    pointer::click(stage.profileKey(4));
    stage.saveOnBoard();
    QCOMPARE(stage.progressView().progressPos(), 70);
    QCOMPARE(stage.written()[QStringLiteral("PROFILE_ID")], 3);
    stage.progress(5); // of the second one
    QCOMPARE(stage.progressView().progressPos(), 5);
    stage.progress(100);
    QVERIFY(!stage.showsProgress());
}

void tst_saveonboard::withoutADriverProcessTheWindowStays()
{
    const ProgressStage stage;
    stage.saveOnBoard();
    pointer::click(stage.button("ButtonOK"));
    QCOMPARE(stage.quits, 1);
    QVERIFY(stage.showsProgress());
    QCOMPARE(stage.progressView().progressPos(), 0);
}

KYR_GUI_TEST(tst_saveonboard)
#include "tst_saveonboard.moc"
