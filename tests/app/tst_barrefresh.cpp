#include "app/fakebar.h"
#include "mainview/fullsettings.h"
#include "support/mainwindow.h"
#include "support/menus.h"
#include "support/suite.h"

/// What a player or the mouse does to the current profile reaches the views in the bars.
class tst_barrefresh : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anotherProfileReachesTheOpenBars_data();
    void anotherProfileReachesTheOpenBars();
    void defaultsReachEveryBar_data();
    void defaultsReachEveryBar();
};

namespace {

/// The program with watched contents in its bars, all shut.
struct WatchedStage : MainWindowStage
{
    WatchedStage() : MainWindowStage(fullSettings())
    {
        choose();
        interface->controller().setLeftContent(&left);
        interface->controller().setBottomContent(&bottom);
    }
    ~WatchedStage() { interface.reset(); }
    WatchedStage(const WatchedStage &) = delete;
    WatchedStage &operator=(const WatchedStage &) = delete;

    void choose()
    {
        const QString path = m_folder.filePath(QStringLiteral("Profile.XML"));
        QFile file(path);
        const QByteArray profile = plistOf(plistEntry("DPI_VALUE", "<integer>4</integer>"));
        if (!file.open(QIODevice::WriteOnly) || file.write(profile) != profile.size())
            qFatal("cannot write the profile file");
        panels.answer = path.toStdString();
    }
    void openBar(const char *name)
    {
        auto *const bar = window().findChild<custumwindow *>(QString::fromLatin1(name));
        pointer::click(*bar->findChild<HoverButton *>(QStringLiteral("btnToggle")));
    }
    /// What the bars were asked since the last call of this.
    QStringList asked() { return std::exchange(calls, {}); }

    QStringList calls;
    FakeBar left{calls, "left"};
    FakeBar bottom{calls, "bottom"};

private:
    QTemporaryDir m_folder;
};

using Act = std::function<void(WatchedStage &stage)>;

const QString kLeft = QStringLiteral("left InitSetting");
const QString kBottom = QStringLiteral("bottom InitSetting");

} // namespace

void tst_barrefresh::anotherProfileReachesTheOpenBars_data()
{
    QTest::addColumn<Act>("act");
    const auto row = [](const char *name, const Act &act) { QTest::newRow(name) << act; };
    row("a profile key", [](WatchedStage &stage) { pointer::click(stage.profileKey(7)); });
    row("the mouse", [](WatchedStage &stage) { stage.reportProfile(7); });
    row("an import", [](WatchedStage &stage) {
        chooseFromMenu(stage.button("BtnProfileMenu"), {"Import Profile"});
    });
}

void tst_barrefresh::anotherProfileReachesTheOpenBars()
{
    QFETCH(Act, act);
    WatchedStage stage;
    act(stage);
    QCOMPARE(stage.asked(), QStringList());
    stage.openBar("LeftBar");
    act(stage);
    QCOMPARE(stage.asked(), QStringList{kLeft});
    stage.openBar("BottomBar");
    act(stage);
    QCOMPARE(stage.asked(), (QStringList{kLeft, kBottom}));
    stage.openBar("LeftBar"); // shuts it
    act(stage);
    QCOMPARE(stage.asked(), QStringList{kBottom});
}

void tst_barrefresh::defaultsReachEveryBar_data()
{
    QTest::addColumn<bool>("isOpen");
    QTest::newRow("shut") << false;
    QTest::newRow("open") << true;
}

void tst_barrefresh::defaultsReachEveryBar()
{
    QFETCH(bool, isOpen);
    WatchedStage stage;
    for (const char *bar : {"LeftBar", "BottomBar"}) {
        if (isOpen)
            stage.openBar(bar);
    }
    pointer::click(stage.button("ButtonRestore"));
    QCOMPARE(stage.asked(), (QStringList{kLeft, kBottom}));
}

KYR_GUI_TEST(tst_barrefresh)
#include "tst_barrefresh.moc"
