#include "fullsettings.h"
#include "support/dialogs.h"
#include "support/mainwindow.h"
#include "support/menukeys.h"
#include "support/suite.h"

/// The Profile, Tools and Help menus.
class tst_menus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aMenuHasItsItems_data();
    void aMenuHasItsItems();
    void aMenuStandsAtItsButtonsLowerLeftCorner_data() { menuRows(); }
    void aMenuStandsAtItsButtonsLowerLeftCorner();
    void anItemThatIsClickedDoesWhatItSays_data() { choiceRows(); }
    void anItemThatIsClickedDoesWhatItSays();
    void anItemChosenByKeyDoesWhatItSays_data() { choiceRows(); }
    void anItemChosenByKeyDoesWhatItSays();
    void theHelpButtonOpensTheGuideToo();
    void theAboutBoxTellsTheVersions_data();
    void theAboutBoxTellsTheVersions();
    void theAboutBoxIsADialogOfItsSize();
    void theMarksStandWhereTheSettingsSay_data();
    void theMarksStandWhereTheSettingsSay();
    void everyPressBuildsTheMenuAnew();
    void theMarksOfAnOpenMenuStay();
    void escapeClosesTheMenuAndChangesNothing_data() { menuRows(); }
    void escapeClosesTheMenuAndChangesNothing();
    void escapeLeavesASubmenuFirst();
    void aClickBesideTheMenuOnlyClosesIt_data() { menuRows(); }
    void aClickBesideTheMenuOnlyClosesIt();
    void thereIsOneMenuAtATime();
    void theProfilePageIsOpenedAsAnAddress();

private:
    static void menuRows();
    static void choiceRows();
};

namespace {

constexpr const char *kMenuButtons[] = {"BtnProfileMenu", "BtnToolsMenu", "BtnHelpMenu"};
constexpr std::uint32_t kOldRate = 7;
constexpr std::uint32_t kOldLift = 99;

using Path = std::vector<const char *>;

QMenu &menuOnTop()
{
    return detail::menuOnTop(QStringLiteral("ContextMenu"));
}

QString inWords(const LocalNotificationCenter::Posted &posted)
{
    QString words = posted.name + u' ' + posted.object;
    for (auto entry = posted.userInfo.begin(); entry != posted.userInfo.end(); ++entry)
        words += QStringLiteral(" %1=%2").arg(entry.key()).arg(entry->toInt());
    return words;
}

QString inWords(const FakeFilePanels::Question &asked)
{
    const char *const kind = asked.kind == FakeFilePanels::Question::Kind::Save ? "save" : "open";
    return QStringLiteral("%1 panel \"%2\" \"%3\" %4")
        .arg(QLatin1String(kind), QString::fromStdString(asked.title),
             QString::fromStdString(asked.proposedName), QString::fromStdString(asked.fileType));
}

/// The program on full settings that differ from the file, without a valid polling rate or lift
/// distance; and in words what has come of using it.
struct MenuStage : MainWindowStage
{
    MenuStage() : MainWindowStage(fullSettings())
    {
        report("Kt7R4LiftDistance", "Kt7R4LiftDistance", kOldLift);
        m_Config.POLLING_RATE = kOldRate;
        m_Config.MACRODEL_CONFIRM = 0;
        m_Config.PROFILE[9].MACRO[49].MACRO_LOOP ^= 1U;
        m_before = copyOf();
        m_posted = center.posted.size();
    }

    QMenu &open(const char *name) const
    {
        pointer::click(button(name));
        return menuOnTop();
    }

    QStringList effects() const
    {
        QStringList found;
        for (std::size_t i = m_posted; i < center.posted.size(); ++i)
            found << inWords(center.posted[i]);
        found << inTheRecord();
        if (view().liftDistance() != kOldLift)
            found << QStringLiteral("lift distance %1").arg(view().liftDistance());
        if (settings.bytes() != fullSettings())
            found << QStringLiteral("written");
        return found + beside();
    }

private:
    QStringList inTheRecord() const
    {
        QStringList found;
        const Record expected = copyOf(*m_before);
        expected->POLLING_RATE = m_Config.POLLING_RATE;
        expected->MACRODEL_CONFIRM = m_Config.MACRODEL_CONFIRM;
        if (m_Config.POLLING_RATE != m_before->POLLING_RATE)
            found << QStringLiteral("POLLING_RATE %1").arg(m_Config.POLLING_RATE);
        if (m_Config.MACRODEL_CONFIRM != m_before->MACRODEL_CONFIRM)
            found << QStringLiteral("MACRODEL_CONFIRM %1").arg(m_Config.MACRODEL_CONFIRM);
        if (!isRecord(*expected))
            found << QStringLiteral("more in the record");
        return found;
    }
    QStringList beside() const
    {
        QStringList found;
        for (const FakeFilePanels::Question &asked : panels.questions)
            found << inWords(asked);
        for (const std::string &file : openedFiles)
            found << QStringLiteral("opened ") + QString::fromStdString(file);
        for (const std::string &address : openedAddresses)
            found << QStringLiteral("opened ") + QString::fromStdString(address);
        for (const QString &caption : m_dialogs)
            found << QStringLiteral("dialog ") + caption;
        for (int quit = 0; quit < quits; ++quit)
            found << QStringLiteral("quit");
        return found;
    }

    keyboard::GivenBack m_givenBack;
    Record m_before;
    std::size_t m_posted = 0; ///< before the window was used
    QStringList m_dialogs;
    DialogVisitor m_visitor{[this](const OpenDialog &dialog) {
        m_dialogs << dialog.caption();
        dialog.click("ButtonClose");
    }};
};

/// An item as it can be seen, with the items of its submenu.
QString inWords(const QAction &item)
{
    QString words = item.isSeparator() ? QStringLiteral("-") : item.text();
    if (!item.isSeparator() && !item.isEnabled())
        words += QStringLiteral(" disabled");
    if (!item.shortcut().isEmpty())
        words += QStringLiteral(" with a key");
    if (!item.menu())
        return words;
    QStringList inner;
    for (const QAction *action : item.menu()->actions())
        inner << inWords(*action);
    return words + u'[' + inner.join(u',') + u']';
}

QStringList itemsOf(const QMenu &menu)
{
    QStringList items;
    for (const QAction *action : menu.actions())
        items << inWords(*action);
    return items;
}

/// Where the check marks stand: index by index.
QStringList marksOf(const QMenu &menu)
{
    QStringList marks;
    for (qsizetype index = 0; index < menu.actions().size(); ++index) {
        const QAction &action = *menu.actions().at(index);
        if (action.isChecked())
            marks << QString::number(index);
        if (!action.menu())
            continue;
        for (const QString &inner : marksOf(*action.menu()))
            marks << QStringLiteral("%1.%2").arg(index).arg(inner);
    }
    return marks;
}

QList<QMenu *> openMenus()
{
    QList<QMenu *> menus;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        auto *const menu = qobject_cast<QMenu *>(window);
        if (menu && menu->isVisible())
            menus << menu;
    }
    return menus;
}

} // namespace

void tst_menus::menuRows()
{
    QTest::addColumn<QByteArray>("button");
    for (const char *name : kMenuButtons)
        QTest::newRow(name) << QByteArray(name);
}

void tst_menus::aMenuHasItsItems_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<QStringList>("items");
    const auto row = [](const char *button, const char *items) {
        QTest::newRow(button) << QByteArray(button) << QString::fromLatin1(items).split(u';');
    };
    row("BtnProfileMenu", "Export Profile;-;Import Profile");
    row("BtnToolsMenu", "Polling Rate[250hz/ms,-,500hz/ms,-,1000hz/ms];-;"
                        "Lift Distance[Default,-,Lower,-,Lowest];-;"
                        "Show macro deletion confirmation");
    row("BtnHelpMenu", "User Guide;-;About");
}

void tst_menus::aMenuHasItsItems()
{
    QFETCH(QByteArray, button);
    const MenuStage stage;
    QTEST(itemsOf(stage.open(button.constData())), "items");
    QCOMPARE(stage.effects(), QStringList());
}

void tst_menus::aMenuStandsAtItsButtonsLowerLeftCorner()
{
    QFETCH(QByteArray, button);
    const MenuStage stage;
    const QMenu &menu = stage.open(button.constData());
    const HoverButton &pressed = stage.button(button.constData());
    QCOMPARE(menu.pos(), pressed.mapToGlobal(QPoint(0, pressed.height())));
    QVERIFY(menu.height() > 2 * pressed.height());
}

void tst_menus::choiceRows()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<Path>("path");
    QTest::addColumn<QStringList>("effects");
    const auto row = [](const char *button, const Path &path, const QByteArray &effects) {
        QTest::newRow(path.back())
            << QByteArray(button) << path << QString::fromLatin1(effects).split(u';');
    };
    row("BtnProfileMenu", {"Export Profile"}, "save panel \"Export Profile\" \"Profile2\" XML");
    row("BtnProfileMenu", {"Import Profile"}, "written;open panel \"Import Profile\" \"\" XML");
    const QByteArray told = "QuarnsetKt7R4 Kt7R4SettingChange Kt7R4SettingChangeType=";
    const auto rateRow = [&](const char *rate, const QByteArray &code) {
        row("BtnToolsMenu", {"Polling Rate", rate},
            told + "2 PollingRate=" + code + ";POLLING_RATE " + code + ";written");
    };
    rateRow("250hz/ms", "3");
    rateRow("500hz/ms", "2");
    rateRow("1000hz/ms", "1");
    const auto liftRow = [&](const char *lift, const QByteArray &code) {
        row("BtnToolsMenu", {"Lift Distance", lift},
            told + "12 SetLiftDistance=" + code + ";lift distance " + code);
    };
    liftRow("Default", "2");
    liftRow("Lower", "1");
    liftRow("Lowest", "0");
    row("BtnToolsMenu", {"Show macro deletion confirmation"}, "MACRODEL_CONFIRM 1;written");
    row("BtnHelpMenu", {"User Guide"},
        "opened /Applications/Brenvik Kyr Torvane MMO Gaming Mouse/UserGuide.pdf");
    row("BtnHelpMenu", {"About"}, "dialog About");
}

void tst_menus::anItemThatIsClickedDoesWhatItSays()
{
    QFETCH(QByteArray, button);
    QFETCH(Path, path);
    QFETCH(QStringList, effects);
    const MenuStage stage;
    chooseFromMenu(stage.button(button.constData()), path);
    QCOMPARE(stage.effects(), effects);
    QCOMPARE(openMenus(), QList<QMenu *>());
    if (effects.contains(QStringLiteral("written")))
        QVERIFY(isInFile(stage.settings.bytes(), m_Config));
}

void tst_menus::anItemChosenByKeyDoesWhatItSays()
{
    QFETCH(QByteArray, button);
    QFETCH(Path, path);
    QFETCH(QStringList, effects);
    const MenuStage stage;
    keyboard::chooseFromMenu(stage.button(button.constData()), path);
    QCOMPARE(stage.effects(), effects);
    QCOMPARE(openMenus(), QList<QMenu *>());
    QTRY_VERIFY(stage.button(button.constData()).hasFocus());
}

void tst_menus::theHelpButtonOpensTheGuideToo()
{
    const QString guide =
        QStringLiteral("opened /Applications/Brenvik Kyr Torvane MMO Gaming Mouse/UserGuide.pdf");
    const MenuStage stage;
    pointer::click(stage.button("BtnHelp"));
    QCOMPARE(stage.effects(), QStringList(guide));
    keyboard::tabTo(stage.button("BtnHelp"));
    keyboard::press(Qt::Key_Space);
    QCOMPARE(stage.effects(), QStringList({guide, guide}));
}

void tst_menus::theAboutBoxTellsTheVersions_data()
{
    QTest::addColumn<QVariant>("reported");
    QTest::addColumn<QString>("firmware");
    const auto row = [](const char *name, const QVariant &reported, const char *firmware) {
        QTest::newRow(name) << reported << QString::fromLatin1(firmware);
    };
    row("not reported", {}, "N/A");
    row("none", 0, "N/A");
    row("the low byte first", 0x0102, "2.1");
    row("hexadecimal", 0x1A0B, "b.1a");
    row("one byte", 0x7F, "7f.0");
    row("negative", -1, "ff.ffffff");
}

void tst_menus::theAboutBoxTellsTheVersions()
{
    QFETCH(QVariant, reported);
    QFETCH(QString, firmware);
    MainWindowStage stage;
    if (reported.isValid())
        stage.report("Kt7R4DeviceFWVersion", "Kt7R4FWNumber", reported);
    QString told;
    const DialogVisitor visitor([&](const OpenDialog &about) {
        told = about.text();
        about.click("ButtonClose");
    });
    chooseFromMenu(stage.button("BtnHelpMenu"), {"About"});
    QCOMPARE(told, QStringLiteral("Software Version:1.02\nFirmware Version:") + firmware);
}

void tst_menus::theAboutBoxIsADialogOfItsSize()
{
    const MainWindowStage stage;
    const DialogVisitor visitor([&](const OpenDialog &about) {
        QCOMPARE(about.window().size(), QSize(258, 176));
        QVERIFY(about.window().windowFlags().testFlag(Qt::FramelessWindowHint));
        QVERIFY(dynamic_cast<custumwindow &>(about.window()).bCanDragWindow());
        pointer::click(stage.button("ButtonOK")); // behind it: takes nothing
        about.click("ButtonClose");
    });
    chooseFromMenu(stage.button("BtnHelpMenu"), {"About"});
    QCOMPARE(visitor.count(), 1);
    QCOMPARE(stage.quits, 0);
    QVERIFY(!QApplication::activeModalWidget());
}

void tst_menus::theMarksStandWhereTheSettingsSay_data()
{
    QTest::addColumn<std::uint32_t>("rate");
    QTest::addColumn<int>("lift");
    QTest::addColumn<std::uint32_t>("confirm");
    QTest::addColumn<QString>("marks");
    const auto row = [](const char *name, std::uint32_t rate, int lift, std::uint32_t confirm,
                        const char *marks) {
        QTest::newRow(name) << rate << lift << confirm << QString::fromLatin1(marks);
    };
    row("nothing valid", 0, 3, 0, "");
    row("1000 Hz", 1, 3, 0, "0.4");
    row("500 Hz", 2, 3, 0, "0.2");
    row("250 Hz", 3, 3, 0, "0.0");
    row("rate beyond", 4, 3, 0, "");
    row("rate far beyond", 0xFFFFFFFF, 3, 0, "");
    row("rate in other bits", 0x10001, 3, 0, "");
    row("lowest", 0, 0, 0, "2.4");
    row("lower", 0, 1, 0, "2.2");
    row("default", 0, 2, 0, "2.0");
    row("negative lift", 0, -1, 0, "");
    row("lift far beyond", 0, INT_MAX, 0, "");
    row("lift in other bits", 0, 0x10000, 0, "");
    row("confirmation", 0, 3, 1, "2");
    row("confirmation by another number", 0, 3, 2, "2");
    row("confirmation by a negative number", 0, 3, 0xFFFFFFFF, "2");
    row("all", 1, 2, 1, "0.4 2 2.0");
}

void tst_menus::theMarksStandWhereTheSettingsSay()
{
    QFETCH(std::uint32_t, rate);
    QFETCH(int, lift);
    QFETCH(std::uint32_t, confirm);
    MainWindowStage stage;
    m_Config.POLLING_RATE = rate;
    m_Config.MACRODEL_CONFIRM = confirm;
    stage.report("Kt7R4LiftDistance", "Kt7R4LiftDistance", lift);
    pointer::click(stage.button("BtnToolsMenu"));
    QTEST(marksOf(menuOnTop()).join(u' '), "marks");
    QCOMPARE(menuOnTop().actions().at(2)->text(), QStringLiteral("Lift Distance"));
}

void tst_menus::everyPressBuildsTheMenuAnew()
{
    MenuStage stage;
    HoverButton &tools = stage.button("BtnToolsMenu");
    QCOMPARE(marksOf(stage.open("BtnToolsMenu")), QStringList());
    const QPointer<QMenu> first = &menuOnTop();
    keyboard::press(Qt::Key_Escape);
    QTRY_VERIFY(!first);
    const auto marksAfter = [&](const Path &choice) {
        chooseFromMenu(tools, choice);
        const QStringList marks = marksOf(stage.open("BtnToolsMenu"));
        keyboard::press(Qt::Key_Escape);
        return marks.join(u' ');
    };
    QCOMPARE(marksAfter({"Polling Rate", "500hz/ms"}), QStringLiteral("0.2"));
    QCOMPARE(marksAfter({"Polling Rate", "1000hz/ms"}), QStringLiteral("0.4"));
    QCOMPARE(marksAfter({"Lift Distance", "Lower"}), QStringLiteral("0.4 2.2"));
    QCOMPARE(marksAfter({"Show macro deletion confirmation"}), QStringLiteral("0.4 2 2.2"));
    QCOMPARE(marksAfter({"Lift Distance", "Lowest"}), QStringLiteral("0.4 2 2.4"));
    QCOMPARE(marksAfter({"Show macro deletion confirmation"}), QStringLiteral("0.4 2.4"));
    stage.report("Kt7R4LiftDistance", "Kt7R4LiftDistance", 2);
    QCOMPARE(marksOf(stage.open("BtnToolsMenu")).join(u' '), QStringLiteral("0.4 2.0"));
}

void tst_menus::theMarksOfAnOpenMenuStay()
{
    MenuStage stage;
    const QMenu &menu = stage.open("BtnToolsMenu");
    stage.report("Kt7R4LiftDistance", "Kt7R4LiftDistance", 1);
    QCOMPARE(openMenus().size(), 1);
    QCOMPARE(marksOf(menu), QStringList());
}

void tst_menus::escapeClosesTheMenuAndChangesNothing()
{
    QFETCH(QByteArray, button);
    const MenuStage stage;
    const QMenu &menu = keyboard::openMenu(stage.button(button.constData()));
    keyboard::moveTo(menu, menu.actions().last()->objectName());
    keyboard::press(Qt::Key_Escape);
    QCOMPARE(openMenus(), QList<QMenu *>());
    QCoreApplication::processEvents();
    QCOMPARE(stage.effects(), QStringList());
    QTRY_VERIFY(stage.button(button.constData()).hasFocus());
}

void tst_menus::escapeLeavesASubmenuFirst()
{
    const MenuStage stage;
    keyboard::openMenu(stage.button("BtnToolsMenu"));
    keyboard::press(Qt::Key_Right);
    QTRY_COMPARE(openMenus().size(), 2);
    keyboard::press(Qt::Key_Escape);
    QCOMPARE(openMenus().size(), 1);
    keyboard::press(Qt::Key_Escape);
    QCOMPARE(openMenus().size(), 0);
    QCoreApplication::processEvents();
    QCOMPARE(stage.effects(), QStringList());
}

void tst_menus::aClickBesideTheMenuOnlyClosesIt()
{
    QFETCH(QByteArray, button);
    const MenuStage stage;
    stage.open(button.constData());
    pointer::click(stage.profileKey(9));
    QCOMPARE(openMenus(), QList<QMenu *>());
    QCOMPARE(stage.profileKeysOn(), std::vector{3});
    QCOMPARE(stage.effects(), QStringList());
    pointer::click(stage.profileKey(9));
    QCOMPARE(stage.profileKeysOn(), std::vector{9});
}

void tst_menus::thereIsOneMenuAtATime()
{
    const MenuStage stage;
    stage.open("BtnToolsMenu");
    pointer::click(stage.button("BtnHelpMenu"));
    QCOMPARE(openMenus(), QList<QMenu *>()); // the first press only closes
    const QMenu &help = stage.open("BtnHelpMenu");
    QCOMPARE(openMenus().size(), 1);
    QCOMPARE(help.windowTitle(), QStringLiteral("Help menu"));
    pointer::click(stage.button("BtnHelpMenu"));
    QCOMPARE(openMenus(), QList<QMenu *>());
}

void tst_menus::theProfilePageIsOpenedAsAnAddress()
{
    const MainWindowStage stage;
    stage.view().OnlineStorage();
    QCOMPARE(stage.openedAddresses.size(), std::size_t{1});
    QVERIFY(stage.openedAddresses.front().starts_with("https://"));
    QVERIFY(stage.openedFiles.empty());
}

KYR_GUI_TEST(tst_menus)
#include "tst_menus.moc"
