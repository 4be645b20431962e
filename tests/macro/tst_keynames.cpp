#include "macro/keynames.h"
#include "macro/MacroDisplay.h"
#include "platform/virtualkeys.h"
#include "support/suite.h"

#include <map>

/// What keys are called in a macro.
class tst_keynames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyCodeHasItsName_data();
    void everyCodeHasItsName();
    void everyNamedKeyCanBeRecorded();
    void bothKeysOfAModifierShareAName();
};

namespace {

/// What all codes from `first` on are called, until the names end; "" for one without a name.
struct NamesInTurn
{
    int first;
    std::vector<const char *> names;
};

const NamesInTurn kNamesInTurn[] = {
    {0, {"A", "S", "D", "F", "H", "G", "Z", "X", "C", "V", "", "B"}},
    {12, {"Q", "W", "E", "R", "Y", "T", "1", "2", "3", "4", "6", "5"}},
    {24, {"=", "9", "7", "-", "8", "0", "]", "O", "U", "[", "I", "P"}},
    {36, {"Enter", "L", "J", "'", "K", ";", "\\", ",", "/", "N", "M", "."}},
    {48, {"Tab", "Space", "`", "Delete", "", "ESC"}},
    {54, {"Command", "Command", "Shift", "Capslock", "Alt", "Control"}},
    {60, {"Shift", "Alt", "Control", "Fn", "F17", "(.)", "", "(*)", "", "(+)", "", "clear"}},
    {72, {"", "", "", "(/)", "", "", "(-)", "F18", "F19", "(=)"}},
    {82, {"(0)", "(1)", "(2)", "(3)", "(4)", "(5)", "(6)", "(7)", "", "(8)", "(9)"}},
    {93, {"", "", "", "F5", "F6", "F7", "F3", "F8", "F9", "", "F11", "", "F13", "F16", "F14"}},
    {108, {"", "F10", "", "", "", "F15", "Ins", "Home", "Pageup", "Del", "F4", "End", "F2"}},
    {121, {"Pagedown", "F1", "Left", "Right", "Down", "Up"}},
};

std::map<int, const char *> namesByCode()
{
    std::map<int, const char *> names;
    for (const NamesInTurn &row : kNamesInTurn) {
        int code = row.first;
        for (const char *name : row.names) {
            if (!names.emplace(code++, name).second)
                qFatal("%d is named twice", code - 1);
        }
    }
    return names;
}

QString nameOf(int code)
{
    return MacroDisplay::GetKeycodeString(static_cast<std::uint8_t>(code));
}

} // namespace

void tst_keynames::everyCodeHasItsName_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("name");
    const std::map<int, const char *> names = namesByCode();
    for (int code = 0; code < 256; ++code) {
        const auto named = names.find(code);
        QTest::addRow("%d", code) << code
                                  << (named == names.end() ? QLatin1String("")
                                                           : QString::fromLatin1(named->second));
    }
}

void tst_keynames::everyCodeHasItsName()
{
    QFETCH(int, code);
    QFETCH(QString, name);
    QCOMPARE(nameOf(code), name);
    QCOMPARE(QString::fromLatin1(keyName(static_cast<std::uint8_t>(code))), name);
}

void tst_keynames::everyNamedKeyCanBeRecorded()
{
    for (const auto &[code, name] : namesByCode()) {
        const auto row = std::ranges::find(keyCodeRows(), code, &KeyCodeRow::keyCode);
        QVERIFY2(*name == '\0' || row != keyCodeRows().end(), name);
    }
}

void tst_keynames::bothKeysOfAModifierShareAName()
{
    for (const auto &[left, right] : {std::pair(55, 54), {56, 60}, {58, 61}, {59, 62}}) {
        QVERIFY(!nameOf(left).isEmpty());
        QCOMPARE(nameOf(left), nameOf(right));
    }
}

KYR_GUI_TEST(tst_keynames)
#include "tst_keynames.moc"
