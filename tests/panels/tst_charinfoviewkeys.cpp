#include "charinfostage.h"
#include "support/suite.h"

/// The keys of the character dialog.
class tst_charinfoviewkeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void returnIsOkAndEscapeIsCancelEverywhere_data();
    void returnIsOkAndEscapeIsCancelEverywhere();
    void returnGoesToTheFieldThatIsEmpty();
    void theKeypadsEnterIsNothing();
    void everyReleaseIsLogged_data();
    void everyReleaseIsLogged();
    void aModifierIsNotLogged();
    void aHeldKeyAnswersWhenItComesUp();
    void aKeyThatWentDownElsewhereAnswersNothing_data();
    void aKeyThatWentDownElsewhereAnswersNothing();
};

namespace {

const keystroke::HardwareKey kKeypadEnter{96, Qt::Key_Enter, QStringLiteral("\r")};

} // namespace

void tst_charinfoviewkeys::returnIsOkAndEscapeIsCancelEverywhere_data()
{
    QTest::addColumn<QByteArray>("control");
    for (const char *name : {"pTextfieldRealm", "pTextfieldName", "ButtonRegion", "ButtonOK",
                             "ButtonCancel", "ButtonClose"})
        QTest::newRow(name) << QByteArray(name);
}

void tst_charinfoviewkeys::returnIsOkAndEscapeIsCancelEverywhere()
{
    QFETCH(QByteArray, control);
    const std::pair<keystroke::HardwareKey, int> answers[] = {{keystroke::kReturn, 0x1001},
                                                              {keystroke::kEscape, 0x1002}};
    for (const auto &[key, code] : answers) {
        const CharInfoStage stage;
        stage.fill();
        keyboard::tabTo(stage.find(control.constData()));
        keystroke::press(key);
        QVERIFY(stage.stays());
        keystroke::release(key);
        QCOMPARE(stage.target.came, std::vector{code});
        QCOMPARE(stage.isUnchanged(), code == 0x1002);
        QVERIFY(openLists().empty());
    }
}

void tst_charinfoviewkeys::returnGoesToTheFieldThatIsEmpty()
{
    const CharInfoStage stage;
    stage.type(stage.realm(), "Realm");
    keystroke::tap(keystroke::kReturn);
    QVERIFY(stage.stays());
    QCOMPARE(stage.focused(), QStringLiteral("pTextfieldName"));
    stage.type(stage.name(), "Name");
    keystroke::tap(keystroke::kReturn);
    QCOMPARE(stage.target.came, std::vector{0x1001});
}

void tst_charinfoviewkeys::theKeypadsEnterIsNothing()
{
    const CharInfoStage stage;
    stage.fill();
    keystroke::tap(kKeypadEnter);
    QVERIFY(stage.stays());
    QVERIFY(stage.isUnchanged());
    QCOMPARE(stage.focused(), QStringLiteral("pTextfieldName"));
}

void tst_charinfoviewkeys::everyReleaseIsLogged_data()
{
    QTest::addColumn<keystroke::HardwareKey>("key");
    QTest::addColumn<QByteArray>("line");
    const auto row = [](const char *name, const keystroke::HardwareKey &key, const char *line) {
        QTest::newRow(name) << key << "Get keyUp Event:keycode:" + QByteArray(line);
    };
    row("a letter", keystroke::kA, "0,type:b,a");
    row("another letter", keystroke::kB, "b,type:b,b");
    row("a letter of no ASCII", {30, Qt::Key_Adiaeresis, QStringLiteral("ä")}, "0,type:b, ");
    row("Tab", keystroke::kTab, "30,type:b, ");
    row("Return", keystroke::kReturn, "24,type:b, ");
    row("Enter", kKeypadEnter, "4c,type:b, ");
    row("an arrow", {105, Qt::Key_Left}, "7b,type:b, ");
}

void tst_charinfoviewkeys::everyReleaseIsLogged()
{
    QFETCH(keystroke::HardwareKey, key);
    QFETCH(QByteArray, line);
    for (const char *control : {"pTextfieldRealm", "ButtonClose"}) {
        CharInfoStage stage;
        keyboard::tabTo(stage.find(control));
        stage.log.lines.clear();
        keystroke::press(key);
        QVERIFY(stage.log.lines.empty());
        keystroke::release(key);
        QCOMPARE(stage.log.lines, std::vector{line.toStdString()});
    }
}

void tst_charinfoviewkeys::aModifierIsNotLogged()
{
    const CharInfoStage stage;
    keystroke::tap(keystroke::kLeftShift);
    keystroke::tap(keystroke::kCapsLock);
    QVERIFY(stage.log.lines.empty());
    QVERIFY(stage.stays());
}

void tst_charinfoviewkeys::aHeldKeyAnswersWhenItComesUp()
{
    CharInfoStage stage;
    stage.fill();
    stage.log.lines.clear();
    keystroke::press(keystroke::kReturn);
    keystroke::repeat(keystroke::kReturn, 3);
    keystroke::repeatPresses(keystroke::kReturn, 3);
    QVERIFY(stage.stays());
    QVERIFY(stage.log.lines.empty());
    keystroke::release(keystroke::kReturn);
    QCOMPARE(stage.target.came, std::vector{0x1001});
    QCOMPARE(stage.log.lines.size(), std::size_t{1});
}

void tst_charinfoviewkeys::aKeyThatWentDownElsewhereAnswersNothing_data()
{
    QTest::addColumn<keystroke::HardwareKey>("key");
    QTest::newRow("Return") << keystroke::kReturn;
    QTest::newRow("Escape") << keystroke::kEscape;
}

void tst_charinfoviewkeys::aKeyThatWentDownElsewhereAnswersNothing()
{
    QFETCH(keystroke::HardwareKey, key);
    const CharInfoStage stage;
    stage.fill();
    keystroke::release(key);
    // Held down elsewhere, and still so when it comes here.
    keystroke::repeat(key, 2);
    keystroke::release(key);
    QVERIFY(stage.stays());
    QVERIFY(stage.isUnchanged());
    keystroke::tap(key);
    QCOMPARE(stage.target.came.size(), std::size_t{1});
}

KYR_GUI_TEST(tst_charinfoviewkeys)
#include "tst_charinfoviewkeys.moc"
