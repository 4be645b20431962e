#include "platform/virtualkeys.h"
#include "support/suite.h"

#include <linux/input-event-codes.h>

#include <QtGui/QKeyEvent>

#include <set>

/// Keys by their number on the hardware.
class tst_virtualkeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aKeyHasItsCode_data();
    void aKeyHasItsCode();
    void noKeyIsMissing();
    void everyNumberStandsInOneRow();
    void aKeyWithoutACodeHasNone_data();
    void aKeyWithoutACodeHasNone();
    void whatAKeyTypesDoesNotMatter_data() { aKeyHasItsCode_data(); }
    void whatAKeyTypesDoesNotMatter();
};

namespace {

struct NumberedKey
{
    const char *name;
    quint32 scanCode;
    int keyCode;
};

/// By kind of key rather than by number, so that a slip in one table is not repeated in the other.
constexpr NumberedKey kNumberedKeys[] = {
    {"A", KEY_A, 0x00},
    {"B", KEY_B, 0x0b},
    {"C", KEY_C, 0x08},
    {"D", KEY_D, 0x02},
    {"E", KEY_E, 0x0e},
    {"F", KEY_F, 0x03},
    {"G", KEY_G, 0x05},
    {"H", KEY_H, 0x04},
    {"I", KEY_I, 0x22},
    {"J", KEY_J, 0x26},
    {"K", KEY_K, 0x28},
    {"L", KEY_L, 0x25},
    {"M", KEY_M, 0x2e},
    {"N", KEY_N, 0x2d},
    {"O", KEY_O, 0x1f},
    {"P", KEY_P, 0x23},
    {"Q", KEY_Q, 0x0c},
    {"R", KEY_R, 0x0f},
    {"S", KEY_S, 0x01},
    {"T", KEY_T, 0x11},
    {"U", KEY_U, 0x20},
    {"V", KEY_V, 0x09},
    {"W", KEY_W, 0x0d},
    {"X", KEY_X, 0x07},
    {"Y", KEY_Y, 0x10},
    {"Z", KEY_Z, 0x06},
    {"0", KEY_0, 0x1d},
    {"1", KEY_1, 0x12},
    {"2", KEY_2, 0x13},
    {"3", KEY_3, 0x14},
    {"4", KEY_4, 0x15},
    {"5", KEY_5, 0x17},
    {"6", KEY_6, 0x16},
    {"7", KEY_7, 0x1a},
    {"8", KEY_8, 0x1c},
    {"9", KEY_9, 0x19},
    {"grave", KEY_GRAVE, 0x32},
    {"minus", KEY_MINUS, 0x1b},
    {"equal", KEY_EQUAL, 0x18},
    {"left bracket", KEY_LEFTBRACE, 0x21},
    {"right bracket", KEY_RIGHTBRACE, 0x1e},
    {"backslash", KEY_BACKSLASH, 0x2a},
    {"semicolon", KEY_SEMICOLON, 0x29},
    {"apostrophe", KEY_APOSTROPHE, 0x27},
    {"comma", KEY_COMMA, 0x2b},
    {"full stop", KEY_DOT, 0x2f},
    {"slash", KEY_SLASH, 0x2c},
    {"key of the 102", KEY_102ND, 0x0a},
    {"space", KEY_SPACE, 0x31},
    {"tab", KEY_TAB, 0x30},
    {"return", KEY_ENTER, 0x24},
    {"backspace", KEY_BACKSPACE, 0x33},
    {"escape", KEY_ESC, 0x35},
    {"left command", KEY_LEFTMETA, 0x37},
    {"right command", KEY_RIGHTMETA, 0x36},
    {"left shift", KEY_LEFTSHIFT, 0x38},
    {"right shift", KEY_RIGHTSHIFT, 0x3c},
    {"left option", KEY_LEFTALT, 0x3a},
    {"right option", KEY_RIGHTALT, 0x3d},
    {"left control", KEY_LEFTCTRL, 0x3b},
    {"right control", KEY_RIGHTCTRL, 0x3e},
    {"caps lock", KEY_CAPSLOCK, 0x39},
    {"function", KEY_FN, 0x3f},
    {"F1", KEY_F1, 0x7a},
    {"F2", KEY_F2, 0x78},
    {"F3", KEY_F3, 0x63},
    {"F4", KEY_F4, 0x76},
    {"F5", KEY_F5, 0x60},
    {"F6", KEY_F6, 0x61},
    {"F7", KEY_F7, 0x62},
    {"F8", KEY_F8, 0x64},
    {"F9", KEY_F9, 0x65},
    {"F10", KEY_F10, 0x6d},
    {"F11", KEY_F11, 0x67},
    {"F12", KEY_F12, 0x6f},
    {"F13", KEY_F13, 0x69},
    {"F14", KEY_F14, 0x6b},
    {"F15", KEY_F15, 0x71},
    {"F16", KEY_F16, 0x6a},
    {"F17", KEY_F17, 0x40},
    {"F18", KEY_F18, 0x4f},
    {"F19", KEY_F19, 0x50},
    {"F20", KEY_F20, 0x5a},
    {"insert", KEY_INSERT, 0x72},
    {"delete", KEY_DELETE, 0x75},
    {"home", KEY_HOME, 0x73},
    {"end", KEY_END, 0x77},
    {"page up", KEY_PAGEUP, 0x74},
    {"page down", KEY_PAGEDOWN, 0x79},
    {"left", KEY_LEFT, 0x7b},
    {"right", KEY_RIGHT, 0x7c},
    {"down", KEY_DOWN, 0x7d},
    {"up", KEY_UP, 0x7e},
    {"menu", KEY_COMPOSE, 0x6e},
    {"keypad 0", KEY_KP0, 0x52},
    {"keypad 1", KEY_KP1, 0x53},
    {"keypad 2", KEY_KP2, 0x54},
    {"keypad 3", KEY_KP3, 0x55},
    {"keypad 4", KEY_KP4, 0x56},
    {"keypad 5", KEY_KP5, 0x57},
    {"keypad 6", KEY_KP6, 0x58},
    {"keypad 7", KEY_KP7, 0x59},
    {"keypad 8", KEY_KP8, 0x5b},
    {"keypad 9", KEY_KP9, 0x5c},
    {"keypad point", KEY_KPDOT, 0x41},
    {"keypad asterisk", KEY_KPASTERISK, 0x43},
    {"keypad plus", KEY_KPPLUS, 0x45},
    {"keypad clear", KEY_NUMLOCK, 0x47},
    {"keypad slash", KEY_KPSLASH, 0x4b},
    {"keypad enter", KEY_KPENTER, 0x4c},
    {"keypad minus", KEY_KPMINUS, 0x4e},
    {"keypad equal", KEY_KPEQUAL, 0x51},
    {"keypad comma", KEY_KPCOMMA, 0x5f},
    {"volume up", KEY_VOLUMEUP, 0x48},
    {"volume down", KEY_VOLUMEDOWN, 0x49},
    {"mute", KEY_MUTE, 0x4a},
    {"yen", KEY_YEN, 0x5d},
    {"underscore", KEY_RO, 0x5e},
    {"eisu", KEY_HANJA, 0x66},
    {"kana", KEY_HANGEUL, 0x68},
};

/// The code of the key of that number, as the display tells it, typing `key`.
int codeOf(quint32 nativeScanCode, QEvent::Type type = QEvent::KeyPress,
           Qt::Key key = Qt::Key_unknown)
{
    const QKeyEvent event(type, key, {}, nativeScanCode, 0, 0);
    const auto code = virtualKeyCode(event);
    return code ? *code : -1;
}

constexpr quint32 kDisplaysOffset = 8;

} // namespace

void tst_virtualkeys::aKeyHasItsCode_data()
{
    QTest::addColumn<quint32>("scanCode");
    QTest::addColumn<int>("keyCode");
    for (const NumberedKey &key : kNumberedKeys)
        QTest::newRow(key.name) << key.scanCode << key.keyCode;
}

void tst_virtualkeys::aKeyHasItsCode()
{
    QFETCH(quint32, scanCode);
    QFETCH(int, keyCode);
    QCOMPARE(codeOf(scanCode + kDisplaysOffset), keyCode);
    QCOMPARE(codeOf(scanCode + kDisplaysOffset, QEvent::KeyRelease), keyCode);
}

void tst_virtualkeys::noKeyIsMissing()
{
    QCOMPARE(keyCodeRows().size(), std::size(kNumberedKeys));
}

void tst_virtualkeys::everyNumberStandsInOneRow()
{
    std::set<int> scanCodes;
    std::set<int> keyCodes;
    for (const KeyCodeRow &row : keyCodeRows()) {
        QVERIFY2(scanCodes.insert(row.scanCode).second, qPrintable(QString::number(row.scanCode)));
        QVERIFY2(keyCodes.insert(row.keyCode).second, qPrintable(QString::number(row.keyCode)));
        QVERIFY(row.keyCode < 127);
    }
}

void tst_virtualkeys::aKeyWithoutACodeHasNone_data()
{
    QTest::addColumn<quint32>("nativeScanCode");
    QTest::newRow("print") << kDisplaysOffset + KEY_SYSRQ;
    QTest::newRow("scroll lock") << kDisplaysOffset + KEY_SCROLLLOCK;
    QTest::newRow("pause") << kDisplaysOffset + KEY_PAUSE;
    QTest::newRow("play") << kDisplaysOffset + KEY_PLAYPAUSE;
    QTest::newRow("beyond all keys") << kDisplaysOffset + KEY_MAX;
    QTest::newRow("the same in its low bits") << kDisplaysOffset + 0x10000 + KEY_A;
    QTest::newRow("reserved") << kDisplaysOffset + KEY_RESERVED;
    QTest::newRow("none") << quint32{0};
    QTest::newRow("below the first") << kDisplaysOffset - 1;
    QTest::newRow("the largest") << ~quint32{0};
}

void tst_virtualkeys::aKeyWithoutACodeHasNone()
{
    QFETCH(quint32, nativeScanCode);
    QCOMPARE(codeOf(nativeScanCode), -1);
}

void tst_virtualkeys::whatAKeyTypesDoesNotMatter()
{
    QFETCH(quint32, scanCode);
    QFETCH(int, keyCode);
    for (Qt::Key key : {Qt::Key_Escape, Qt::Key_CapsLock, Qt::Key_Adiaeresis, Qt::Key_Shift})
        QCOMPARE(codeOf(scanCode + kDisplaysOffset, QEvent::KeyPress, key), keyCode);
}

KYR_GUI_TEST(tst_virtualkeys)
#include "tst_virtualkeys.moc"
