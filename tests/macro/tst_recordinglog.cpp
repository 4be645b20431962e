#include "displaystage.h"
#include "support/suite.h"

using keystroke::kA;
using keystroke::kCapsLock;
using keystroke::kLeftShift;
using Lines = std::vector<std::string>;

/// What the recording view logs of keys.
class tst_recordinglog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pressesAndReleasesAreLogged();
    void whatAKeyTypesIsLoggedAsOneCharacter_data();
    void whatAKeyTypesIsLoggedAsOneCharacter();
    void modifierKeysAreLoggedWithTheirFlag();
    void aModifierKeyIsLoggedWithItsOwnFlagOnly();
    void capsLockIsLoggedWithItsLock();
    void aHeldKeyIsLoggedAgainAndAgain();
    void aFullListStillLogsKeysButNoModifierKeys();
    void theReleaseOfInsertIsLogged();
    void aDisabledViewLogsNothing();
    void withoutTheKeyboardNothingIsLogged();
};

void tst_recordinglog::pressesAndReleasesAreLogged()
{
    DisplayStage stage;
    stage.click();
    keystroke::tap(kA);
    keystroke::tap(keystroke::kF12);
    const Lines lines{
        "Get Keydown Event:keycode:0,type:a",
        "Get keyUp Event:keycode:0,type:b,a",
        "Get Keydown Event:keycode:6f,type:a",
        "Get keyUp Event:keycode:6f,type:b, ",
    };
    QCOMPARE(stage.keyLog(), lines);
}

void tst_recordinglog::whatAKeyTypesIsLoggedAsOneCharacter_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("logged");
    QTest::newRow("a capital") << QStringLiteral("Q") << QStringLiteral("Q");
    QTest::newRow("a sign") << QStringLiteral("%") << QStringLiteral("%");
    QTest::newRow("the last that shows") << QStringLiteral("~") << QStringLiteral("~");
    QTest::newRow("several") << QStringLiteral("xyz") << QStringLiteral("x");
    QTest::newRow("nothing") << QString() << QStringLiteral(" ");
    QTest::newRow("a control character") << QStringLiteral("\x1b") << QStringLiteral(" ");
    QTest::newRow("a delete") << QStringLiteral("\x7f") << QStringLiteral(" ");
    QTest::newRow("an accent") << QString(QChar(0xe9)) << QStringLiteral(" ");
    QTest::newRow("another script") << QString(QChar(0x444)) << QStringLiteral(" ");
}

void tst_recordinglog::whatAKeyTypesIsLoggedAsOneCharacter()
{
    QFETCH(QString, text);
    QFETCH(QString, logged);
    DisplayStage stage;
    stage.click();
    keystroke::release({16, Qt::Key_Q, text});
    const Lines lines{"Get keyUp Event:keycode:c,type:b," + logged.toStdString()};
    QCOMPARE(stage.keyLog(), lines);
}

void tst_recordinglog::modifierKeysAreLoggedWithTheirFlag()
{
    DisplayStage stage;
    stage.click();
    keystroke::tap(kLeftShift);
    keystroke::tap({464});
    const Lines lines{
        "Get flagsChanged Event:keycode:38,type:c,Downup:20000",
        "Get flagsChanged Event:keycode:38,type:c,Downup:0",
        "Get flagsChanged Event:keycode:3f,type:c,Downup:800000",
        "Get flagsChanged Event:keycode:3f,type:c,Downup:0",
    };
    QCOMPARE(stage.keyLog(), lines);
}

void tst_recordinglog::aModifierKeyIsLoggedWithItsOwnFlagOnly()
{
    DisplayStage stage;
    stage.click();
    keystroke::press(kLeftShift);
    keystroke::tap(keystroke::kLeftControl);
    const Lines lines{
        "Get flagsChanged Event:keycode:38,type:c,Downup:20000",
        "Get flagsChanged Event:keycode:3b,type:c,Downup:40000",
        "Get flagsChanged Event:keycode:3b,type:c,Downup:0",
    };
    QCOMPARE(stage.keyLog(), lines);
}

void tst_recordinglog::capsLockIsLoggedWithItsLock()
{
    DisplayStage stage;
    stage.click();
    keystroke::tap(kCapsLock);
    keystroke::press(kCapsLock, {.modifiersBefore = 2, .modifiers = {}});
    const Lines lines{
        "Get flagsChanged Event:keycode:39,type:c,Downup:10000",
        "Get flagsChanged Event:keycode:39,type:c,Downup:0",
    };
    QCOMPARE(stage.keyLog(), lines);
}

void tst_recordinglog::aHeldKeyIsLoggedAgainAndAgain()
{
    DisplayStage stage;
    stage.click();
    keystroke::press(kA);
    keystroke::repeat(kA, 2);
    keystroke::release(kA);
    Lines lines(3, "Get Keydown Event:keycode:0,type:a");
    lines.emplace_back("Get keyUp Event:keycode:0,type:b,a");
    QCOMPARE(stage.keyLog(), lines);
}

void tst_recordinglog::aFullListStillLogsKeysButNoModifierKeys()
{
    DisplayStage stage;
    stage.display.setMaxKeymapEvent(0);
    stage.click();
    keystroke::tap(kA);
    keystroke::tap(kLeftShift);
    keystroke::tap(kCapsLock);
    const Lines lines{
        "Get Keydown Event:keycode:0,type:a",
        "Get keyUp Event:keycode:0,type:b,a",
    };
    QCOMPARE(stage.keyLog(), lines);
}

void tst_recordinglog::theReleaseOfInsertIsLogged()
{
    DisplayStage stage;
    stage.click();
    keystroke::release(keystroke::kInsert);
    QCOMPARE(stage.keyLog(), Lines{"Get keyUp Event:keycode:72,type:b, "});
}

void tst_recordinglog::aDisabledViewLogsNothing()
{
    DisplayStage stage;
    stage.display.enablewindow(false);
    stage.display.setFocus();
    keystroke::tap(kA);
    keystroke::tap(kLeftShift);
    keystroke::tap(kCapsLock);
    QCOMPARE(stage.keyLog(), Lines());
}

void tst_recordinglog::withoutTheKeyboardNothingIsLogged()
{
    DisplayStage stage;
    stage.other.setFocus();
    keystroke::tap(kA);
    keystroke::tap(kLeftShift);
    QCOMPARE(stage.keyLog(), Lines());
}

KYR_GUI_TEST(tst_recordinglog)
#include "tst_recordinglog.moc"
