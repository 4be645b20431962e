#include "fullsettings.h"
#include "progressstage.h"
#include "support/dialogs.h"
#include "support/drop.h"
#include "support/menukeys.h"
#include "support/suite.h"

/// The main window without a mouse: controls, menus and dialogs.
class tst_keyboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void spacePressesEveryProfileKey_data();
    void spacePressesEveryProfileKey();
    void theQuestionIsAnsweredByKey_data();
    void theQuestionIsAnsweredByKey();
    void afterTheQuestionTheKeyboardIsWhereItWas();
    void theQuestionKeepsTheKeyboardToItself();
    void theMessageOfSaveOnBoardIsClosedByKey();
    void theAboutBoxIsOpenedAndClosedByKey();
    void afterEscapeInAMenuTheKeyboardGoesOn();
    void spaceSelectsAMouseButton();
    void spaceSwitchesTheInGameMode();
    void escapeInTheMainWindowClosesNothing();
};

namespace {

using Keys = std::vector<Qt::Key>;

struct KeyStage : ProgressStage
{
    KeyStage() : ProgressStage(fullSettings()) {}

    void edit() const { dropText(mouseButton(5), QStringLiteral("11")); }
    void pressSpaceOn(const HoverButton &control) const
    {
        keyboard::tabTo(control);
        keyboard::press(Qt::Key_Space);
    }
    bool isFileUntouched() const { return settings.bytes() == fullSettings(); }

    keyboard::GivenBack givenBack;
};

void press(const Keys &keys)
{
    for (const Qt::Key key : keys)
        keyboard::press(key);
}

} // namespace

void tst_keyboard::spacePressesEveryProfileKey_data()
{
    QTest::addColumn<int>("key");
    for (int key = 1; key <= 10; ++key)
        QTest::addRow("%d", key) << key;
}

void tst_keyboard::spacePressesEveryProfileKey()
{
    QFETCH(int, key);
    const KeyStage stage;
    stage.pressSpaceOn(stage.profileKey(key));
    QCOMPARE(stage.profileKeysOn(), std::vector{key});
    QCOMPARE(stage.mouseButton(14).captionText(), QStringLiteral("Profile %1").arg(key));
    QVERIFY(stage.profileKey(key).hasFocus());
}

void tst_keyboard::theQuestionIsAnsweredByKey_data()
{
    QTest::addColumn<Keys>("keys");
    QTest::addColumn<bool>("saves");
    QTest::addColumn<bool>("drops");
    const auto row = [](const char *name, const Keys &keys, bool saves, bool drops) {
        QTest::newRow(name) << keys << saves << drops;
    };
    row("Return", {Qt::Key_Return}, true, false);
    row("Space", {Qt::Key_Space}, true, false);
    row("Escape", {Qt::Key_Escape}, false, false);
    row("right to Cancel", {Qt::Key_Right, Qt::Key_Return}, false, true);
    row("down to Cancel", {Qt::Key_Down, Qt::Key_Space}, false, true);
    row("Tab to Cancel", {Qt::Key_Tab, Qt::Key_Enter}, false, true);
    row("left to the close button", {Qt::Key_Left, Qt::Key_Return}, false, false);
    row("there and back", {Qt::Key_Right, Qt::Key_Left, Qt::Key_Return}, true, false);
    row("around to Cancel", {Qt::Key_Left, Qt::Key_Up, Qt::Key_Return}, false, true);
    row("Escape on Cancel", {Qt::Key_Right, Qt::Key_Escape}, false, false);
}

void tst_keyboard::theQuestionIsAnsweredByKey()
{
    QFETCH(Keys, keys);
    QFETCH(bool, saves);
    QFETCH(bool, drops);
    const KeyStage stage;
    stage.edit();
    const DialogVisitor visitor([&](const OpenDialog & /*question*/) { press(keys); });
    stage.pressSpaceOn(stage.profileKey(8));
    QCOMPARE(visitor.count(), 1);
    QCOMPARE(stage.profileKeysOn(), std::vector{8});
    QCOMPARE(!stage.isFileUntouched(), saves);
    QCOMPARE(m_Config.PROFILE[2].BUTTON[4], drops ? 34U : 11U);
}

void tst_keyboard::afterTheQuestionTheKeyboardIsWhereItWas()
{
    const KeyStage stage;
    stage.edit();
    const DialogVisitor visitor(
        [](const OpenDialog & /*question*/) { keyboard::press(Qt::Key_Escape); });
    stage.pressSpaceOn(stage.profileKey(8));
    QTRY_VERIFY(stage.profileKey(8).hasFocus());
    keyboard::press(Qt::Key_Tab);
    QVERIFY(stage.profileKey(9).hasFocus());
    keyboard::press(Qt::Key_Space);
    QCOMPARE(stage.profileKeysOn(), std::vector{9});
    QCOMPARE(visitor.count(), 1); // the edits stay, but are asked about only once
}

void tst_keyboard::theQuestionKeepsTheKeyboardToItself()
{
    const KeyStage stage;
    stage.edit();
    const DialogVisitor visitor([&](const OpenDialog &question) {
        for (int step = 0; step < 7; ++step) {
            keyboard::press(Qt::Key_Tab);
            QVERIFY(question.window().isAncestorOf(QApplication::focusWidget()));
        }
        question.click("ButtonClose");
    });
    stage.pressSpaceOn(stage.profileKey(8));
    QCOMPARE(visitor.count(), 1);
}

void tst_keyboard::theMessageOfSaveOnBoardIsClosedByKey()
{
    const KeyStage stage; // full of profile changes, which are refused
    int messages = 0;
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_Escape}) {
        const DialogVisitor visitor(
            [key](const OpenDialog & /*message*/) { keyboard::press(key); });
        stage.pressSpaceOn(stage.button("ButtonSaveToDevice"));
        messages += visitor.count();
        QTRY_VERIFY(stage.button("ButtonSaveToDevice").hasFocus());
    }
    QCOMPARE(messages, 4);
    QVERIFY(!stage.showsProgress());
    QVERIFY(stage.isFileUntouched());
}

void tst_keyboard::theAboutBoxIsOpenedAndClosedByKey()
{
    const KeyStage stage;
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space, Qt::Key_Escape}) {
        const DialogVisitor visitor([key](const OpenDialog &about) {
            QCOMPARE(about.caption(), QStringLiteral("About"));
            keyboard::press(key);
        });
        keyboard::chooseFromMenu(stage.button("BtnHelpMenu"), {"About"});
        QCOMPARE(visitor.count(), 1);
        QTRY_VERIFY(stage.button("BtnHelpMenu").hasFocus());
    }
    QVERIFY(!QApplication::activeModalWidget());
}

void tst_keyboard::afterEscapeInAMenuTheKeyboardGoesOn()
{
    const KeyStage stage;
    keyboard::openMenu(stage.button("BtnProfileMenu"));
    press({Qt::Key_Down, Qt::Key_Escape});
    QVERIFY(!QApplication::activePopupWidget());
    QTRY_VERIFY(stage.button("BtnProfileMenu").hasFocus());
    press({Qt::Key_Tab, Qt::Key_Space}); // the next menu
    QCOMPARE(QApplication::activePopupWidget()->windowTitle(), QStringLiteral("Tools menu"));
    QVERIFY(stage.panels.questions.empty());
}

void tst_keyboard::spaceSelectsAMouseButton()
{
    const KeyStage stage;
    stage.pressSpaceOn(stage.mouseButton(6));
    QCOMPARE(stage.buttonsOn(), std::vector{6});
    QCOMPARE(stage.view().currentButton(), 5);
    press({Qt::Key_Tab, Qt::Key_Space});
    QCOMPARE(stage.buttonsOn(), std::vector{7});
}

void tst_keyboard::spaceSwitchesTheInGameMode()
{
    const KeyStage stage;
    stage.pressSpaceOn(stage.button("chkGameMode"));
    QCOMPARE(m_Config.GAME_MODE, 1U);
    keyboard::press(Qt::Key_Space);
    QCOMPARE(m_Config.GAME_MODE, 0U);
}

void tst_keyboard::escapeInTheMainWindowClosesNothing()
{
    const KeyStage stage;
    stage.edit();
    keyboard::press(Qt::Key_Escape);
    keyboard::tabTo(stage.button("BtnClose"));
    press({Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter});
    QCOMPARE(stage.quits, 0);
    QVERIFY(stage.window().isVisible());
    QVERIFY(stage.isFileUntouched());
}

KYR_GUI_TEST(tst_keyboard)
#include "tst_keyboard.moc"
