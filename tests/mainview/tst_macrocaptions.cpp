#include "model/fixedtext.h"
#include "support/drop.h"
#include "support/mainwindow.h"
#include "support/suite.h"

/// The names of macros on the mouse buttons.
class tst_macrocaptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theStoredProfilesMacroIsNamed();
    void theNamesAreThoseOfTheProfileThatIsReported_data();
    void theNamesAreThoseOfTheProfileThatIsReported();
    void anAssignedMacroIsNamed_data();
    void anAssignedMacroIsNamed();
    void aNameIsShownAsItStands_data();
    void aNameIsShownAsItStands();
    void changedMacrosAreNamedAnew_data();
    void changedMacrosAreNamedAnew();
    void changedMacrosAreThoseOfTheCurrentProfile();
    void changedMacrosEnableApplyAndAreMeasured();
};

namespace {

QByteArray macroNamed(const QByteArray &key, const QByteArray &name)
{
    return plistEntry(key,
                      plistDictionary(plistEntry("MACRO_NAME", "<string>" + name + "</string>")));
}

/// A profile with names of its own in the first and the last slot, both on buttons.
QByteArray profileNamed(const QByteArray &name)
{
    return plistDictionary(macroNamed("MACRO_1", name + " one") +
                           macroNamed("MACRO_50", name + " fifty") +
                           plistEntry("BUTTON_5", "<integer>256</integer>") +
                           plistEntry("BUTTON_6", "<integer>305</integer>"));
}

/// A main window at the third profile; the others but the first and the tenth are empty.
struct NamedStage : MainWindowStage
{
    NamedStage()
        : MainWindowStage(plistOf(plistEntry("PROFILE_ID", "<integer>2</integer>") +
                                  plistEntry("PROFILE_1", profileNamed("First")) +
                                  plistEntry("PROFILE_3", profileNamed("Third")) +
                                  plistEntry("PROFILE_10", profileNamed("Tenth"))))
    {
    }
    QString caption(int number) const { return mouseButton(number).captionText(); }
};

using Assign = void (*)(const MainWindowStage &stage, int number, FunctionCode code);

void assignToSelected(const MainWindowStage &stage, int number, FunctionCode code)
{
    pointer::click(stage.mouseButton(number));
    stage.view().changeCurrentButtonFunction(code);
}

void drop(const MainWindowStage &stage, int number, FunctionCode code)
{
    dropText(stage.mouseButton(number), QString::number(code));
}

} // namespace

void tst_macrocaptions::theStoredProfilesMacroIsNamed()
{
    const NamedStage stage;
    QCOMPARE(stage.caption(5), QStringLiteral("Third one"));
    QCOMPARE(stage.caption(6), QStringLiteral("Third fifty"));
}

void tst_macrocaptions::theNamesAreThoseOfTheProfileThatIsReported_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("one");
    QTest::addColumn<QString>("fifty");
    QTest::newRow("first") << 1 << QStringLiteral("First one") << QStringLiteral("First fifty");
    QTest::newRow("empty") << 2 << QString() << QString();
    QTest::newRow("tenth") << 10 << QStringLiteral("Tenth one") << QStringLiteral("Tenth fifty");
    // One that does not exist shows the first.
    QTest::newRow("beyond") << 11 << QStringLiteral("First one") << QStringLiteral("First fifty");
}

void tst_macrocaptions::theNamesAreThoseOfTheProfileThatIsReported()
{
    QFETCH(int, number);
    NamedStage stage;
    stage.reportProfile(number);
    QTEST(stage.caption(5), "one");
    QTEST(stage.caption(6), "fifty");
    stage.reportProfile(3);
    QCOMPARE(stage.caption(5), QStringLiteral("Third one"));
}

void tst_macrocaptions::anAssignedMacroIsNamed_data()
{
    QTest::addColumn<Assign>("assign");
    QTest::addColumn<FunctionCode>("code");
    QTest::addColumn<int>("profile");
    QTest::addColumn<QString>("expected");
    const auto rows = [](const char *name, FunctionCode code, int profile, const char *expected) {
        QTest::addRow("selected, %s", name)
            << Assign(assignToSelected) << code << profile << QString::fromLatin1(expected);
        QTest::addRow("dropped, %s", name)
            << Assign(drop) << code << profile << QString::fromLatin1(expected);
    };
    rows("first slot", 256, 3, "Third one");
    rows("last slot", 305, 3, "Third fifty");
    rows("another profile", 256, 10, "Tenth one");
    rows("without a name", 257, 3, "");
    rows("no such slot", 306, 3, "");
}

void tst_macrocaptions::anAssignedMacroIsNamed()
{
    QFETCH(Assign, assign);
    QFETCH(FunctionCode, code);
    QFETCH(int, profile);
    NamedStage stage;
    stage.reportProfile(profile);
    stage.mouseButton(9).setCaptionText(QStringLiteral("before"));
    assign(stage, 9, code);
    QTEST(stage.caption(9), "expected");
    QCOMPARE(CurrentProfile().BUTTON[8], code);
}

void tst_macrocaptions::aNameIsShownAsItStands_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("beyond ASCII") << QStringLiteral("Größe \U0001F5B1");
    QTest::newRow("ampersand") << QStringLiteral("Heal & &Run");
    QTest::newRow("per cent") << QStringLiteral("%s %d 100%");
    QTest::newRow("full") << QString(99, u'x');
}

void tst_macrocaptions::aNameIsShownAsItStands()
{
    QFETCH(QString, name);
    const NamedStage stage;
    SetText(CurrentProfile().MACRO[1].MACRO_NAME, name.toStdString());
    assignToSelected(stage, 9, 257);
    QCOMPARE(stage.caption(9), name);
}

void tst_macrocaptions::changedMacrosAreNamedAnew_data()
{
    QTest::addColumn<FunctionCode>("code");
    QTest::addColumn<QString>("after");
    const QString before = QStringLiteral("before");
    QTest::newRow("first slot") << FunctionCode{256} << QStringLiteral("Heal");
    QTest::newRow("last slot") << FunctionCode{305} << QStringLiteral("Third fifty");
    QTest::newRow("without a name") << FunctionCode{257} << QString();
    QTest::newRow("no such slot") << FunctionCode{306} << QString();
    QTest::newRow("the last code of macros") << FunctionCode{4095} << QString();
    QTest::newRow("mouse function") << FunctionCode{4} << before;
    QTest::newRow("CPI") << FunctionCode{16} << before;
    QTest::newRow("profile") << FunctionCode{43} << before;
    QTest::newRow("below the macros") << FunctionCode{255} << before;
    QTest::newRow("game command") << FunctionCode{4097} << before;
    QTest::newRow("top bit") << FunctionCode{0x80000100} << before;
}

/// Of functions that are no macros the captions stay as they are.
void tst_macrocaptions::changedMacrosAreNamedAnew()
{
    QFETCH(FunctionCode, code);
    const NamedStage stage;
    for (int number = 1; number <= 14; ++number) {
        CurrentProfile().BUTTON[number - 1] = code;
        stage.mouseButton(number).setCaptionText(QStringLiteral("before"));
    }
    SetText(CurrentProfile().MACRO[0].MACRO_NAME, "Heal");
    stage.view().macrosChanged();
    for (int number = 1; number <= 14; ++number) {
        QTEST(stage.caption(number), "after");
        QCOMPARE(CurrentProfile().BUTTON[number - 1], code);
    }
}

void tst_macrocaptions::changedMacrosAreThoseOfTheCurrentProfile()
{
    NamedStage stage;
    stage.reportProfile(10);
    stage.mouseButton(5).setCaptionText({});
    stage.view().macrosChanged();
    QCOMPARE(stage.caption(5), QStringLiteral("Tenth one"));
}

void tst_macrocaptions::changedMacrosEnableApplyAndAreMeasured()
{
    const NamedStage stage;
    QVERIFY(!stage.applyIsEnabled());
    const std::uint32_t before = stage.view().memoryUsage();
    MacroInfo &macro = CurrentProfile().MACRO[0];
    macro.MODE = kModeNoDelay;
    std::ranges::fill(macro.KEYMAP, KeymapEvent{4, 1, 0}); // 1002 bytes
    stage.view().macrosChanged();
    QVERIFY(stage.applyIsEnabled());
    QCOMPARE(stage.view().memoryUsage(), before + 8);
    QCOMPARE(stage.view().findChild<pngProgressBar *>(QStringLiteral("MSMemoryUsageBar"))->getPos(),
             static_cast<int>(before + 8));
}

KYR_GUI_TEST(tst_macrocaptions)
#include "tst_macrocaptions.moc"
