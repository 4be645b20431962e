#include "model/fixedtext.h"
#include "progressstage.h"
#include "support/dialogs.h"
#include "support/suite.h"

/// Save On Board refuses what the mouse cannot store, and says why.
class tst_validation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aProfileIsStoredOrRefused_data();
    void aProfileIsStoredOrRefused();
    void everyButtonIsLookedAt_data();
    void everyButtonIsLookedAt();
    void theLowestButtonDecidesWhatIsSaid_data();
    void theLowestButtonDecidesWhatIsSaid();
    void theInGameModeMakesNoDifference();
    void aFullGaugeIsNoObstacle();
    void onlyTheCurrentProfileIsLookedAt();
    void anUnknownCurrentProfileIsTheFirst();
    void theMacrosAreThoseOfTheProfileAskedAbout();
    void theMessageCanBeClosedInAnyWay_data();
    void theMessageCanBeClosedInAnyWay();
    void theMessageIsADialogOfItsSize();
    void nothingIsChangedByIt();
};

namespace {

const QString kCopyPasteError = QStringLiteral(
    "The \"Copy & Paste\" macros found in this profile can not be saved on-board. Please delete "
    "all \"Copy & Paste\" macros and use a \"Text / Record Delay / No Delay\" macro modes to "
    "recreate these macros if you want to store them on the mouse and use without the driver.");
const QString kLoopError = QStringLiteral(
    "Please reduce loop times of macro less than 256 times if you want to store them on the mouse "
    "and use without the driver.");
const QString kProfileChangeError = QStringLiteral(
    "The Change Profile functions found in this profile can not be saved on-board. Please remove "
    "all Change Profile functions if you want to store them on the mouse and use without the "
    "driver.");

constexpr std::uint32_t kCopyPaste = 0;
constexpr std::uint32_t kNoDelay = 3;

ProfileInfo &profile(unsigned index = 0)
{
    return m_Config.PROFILE[index];
}

/// Gives a mouse button of the first profile, counted from 1, a macro.
void putMacro(int number, unsigned slot, std::uint32_t mode, std::uint32_t loops)
{
    profile().BUTTON[number - 1] = 256 + slot;
    profile().MACRO[slot].MODE = mode;
    profile().MACRO[slot].MACRO_LOOP = loops;
}

/// The program with all buttons of its profile on "Left-Click".
struct ValidationStage : ProgressStage
{
    ValidationStage() { std::ranges::fill(profile().BUTTON, 1U); }

    /// Clicks on Save On Board; what is said then, each message with its caption.
    QStringList saveAndListen() const
    {
        QStringList said;
        const DialogVisitor visitor([&](const OpenDialog &dialog) {
            said << dialog.caption() + u' ' + dialog.text();
            dialog.click("ButtonOK");
        });
        saveOnBoard();
        return said;
    }
    bool isStored() const
    {
        return showsProgress() && !settings.bytes().isEmpty() &&
               requestsSinceStart() == std::vector{takeSettings()};
    }
    bool isUntouched() const
    {
        return !showsProgress() && settings.bytes().isEmpty() && requestsSinceStart().empty();
    }
};

/// What is said about an error; nothing about none.
QStringList message(const QString &error)
{
    return error.isEmpty() ? QStringList() : QStringList(QStringLiteral("Error! ") + error);
}

using Setup = std::function<void()>;

Setup code(FunctionCode code)
{
    return [code] { profile().BUTTON[6] = code; };
}

/// A macro that the mouse can store but for its loops.
Setup loops(std::uint32_t count, std::uint32_t isOn)
{
    return [=] {
        putMacro(7, 12, kNoDelay, count);
        profile().MACRO[12].bLOOP = isOn;
    };
}

Setup macro(unsigned slot, std::uint32_t mode)
{
    return [=] { putMacro(7, slot, mode, 1); };
}

} // namespace

void tst_validation::aProfileIsStoredOrRefused_data()
{
    QTest::addColumn<Setup>("setUp");
    QTest::addColumn<QString>("error");
    const auto row = [](const char *name, const Setup &setUp, const QString &error = {}) {
        QTest::newRow(name) << setUp << error;
    };
    row("plain buttons", [] {});
    row("nothing", code(0));
    row("Disable/Clear", code(9));
    row("CPI DOWN", code(23));
    row("before the profile changes", code(31));
    for (FunctionCode change = 32; change <= 43; ++change)
        row(qPrintable(QStringLiteral("profile change %1").arg(change)), code(change),
            kProfileChangeError);
    row("after the profile changes", code(44));
    row("before the macros", code(255));
    row("an empty macro", code(256), kCopyPasteError);
    row("the last macro, empty", code(305), kCopyPasteError);
    row("one past the macros", code(306), kCopyPasteError);
    row("far past the macros", code(4095), kCopyPasteError);
    row("after the macro codes", code(4096));
    row("a game command", code(0x2009));
    row("a code without a meaning", code(0x8001));
    row("a macro in its low bits", code(0x10100));
    row("a profile change in its low bits", code(0x10020));
    row("negative", code(0xFFFFFFFF));
    row("negative, a macro in its low bits", code(0x80000100));
    row("the least number", code(0x80000000));
    row("negative, a profile change in its low bits", code(0x80000020));
    row("Copy & Paste", macro(12, kCopyPaste), kCopyPasteError);
    row("Text", macro(12, 1));
    row("Record Delay", macro(12, 2));
    row("No Delay", macro(12, kNoDelay));
    row("another mode", macro(12, 77));
    row("a negative mode", macro(12, 0xFFFFFFFF));
    row("the first macro", macro(0, kNoDelay));
    row("the last macro", macro(49, kNoDelay));
    row("no loops", loops(0, 1));
    row("256 loops", loops(256, 1));
    row("257 loops", loops(257, 1), kLoopError);
    row("256 loops, off", loops(256, 0));
    row("257 loops, off", loops(257, 0), kLoopError);
    row("a negative number of loops", loops(0xFFFFFFFF, 1), kLoopError);
    row(
        "Copy & Paste with too many loops", [] { putMacro(7, 12, kCopyPaste, 257); },
        kCopyPasteError);
}

void tst_validation::aProfileIsStoredOrRefused()
{
    QFETCH(Setup, setUp);
    QFETCH(QString, error);
    const ValidationStage stage;
    setUp();
    QCOMPARE(stage.saveAndListen(), message(error));
    QVERIFY(error.isEmpty() ? stage.isStored() : stage.isUntouched());
}

void tst_validation::everyButtonIsLookedAt_data()
{
    QTest::addColumn<int>("number");
    for (int number = 1; number <= 14; ++number)
        QTest::addRow("%d", number) << number;
}

void tst_validation::everyButtonIsLookedAt()
{
    QFETCH(int, number);
    const ValidationStage stage;
    putMacro(number, 5, kNoDelay, 257);
    QCOMPARE(stage.saveAndListen(), message(kLoopError));
}

void tst_validation::theLowestButtonDecidesWhatIsSaid_data()
{
    QTest::addColumn<int>("change");
    QTest::addColumn<int>("copyPaste");
    QTest::addColumn<int>("loops");
    QTest::addColumn<QString>("error");
    QTest::newRow("a profile change, then Copy & Paste") << 3 << 7 << 14 << kProfileChangeError;
    QTest::newRow("Copy & Paste, then a profile change") << 7 << 3 << 14 << kCopyPasteError;
    QTest::newRow("loops, then the others") << 14 << 2 << 1 << kLoopError;
}

void tst_validation::theLowestButtonDecidesWhatIsSaid()
{
    QFETCH(int, change);
    QFETCH(int, copyPaste);
    QFETCH(int, loops);
    const ValidationStage stage;
    profile().BUTTON[change - 1] = 42;
    putMacro(copyPaste, 40, kCopyPaste, 1);
    putMacro(loops, 41, kNoDelay, 1000);
    QFETCH(QString, error);
    QCOMPARE(stage.saveAndListen(), message(error));
}

void tst_validation::theInGameModeMakesNoDifference()
{
    const ValidationStage stage;
    pointer::click(stage.button("chkGameMode"));
    profile().BUTTON[13] = 43;
    QCOMPARE(stage.saveAndListen(), message(kProfileChangeError));
    profile().BUTTON[13] = 1;
    QCOMPARE(stage.saveAndListen(), QStringList());
}

void tst_validation::aFullGaugeIsNoObstacle()
{
    ValidationStage stage;
    for (int number = 1; number <= 14; ++number)
        putMacro(number, 0, 2, 1);
    std::ranges::fill(profile().MACRO[0].KEYMAP, KeymapEvent{4, 1, 1});
    stage.reportProfile(1);
    QCOMPARE(stage.view().memoryUsage(), 219U);
    QCOMPARE(stage.saveAndListen(), QStringList());
    QVERIFY(stage.isStored());
}

void tst_validation::onlyTheCurrentProfileIsLookedAt()
{
    ValidationStage stage;
    profile(1).BUTTON[0] = 32;
    QCOMPARE(stage.saveAndListen(), QStringList());
    stage.reportProfile(2);
    QCOMPARE(stage.saveAndListen(), message(kProfileChangeError));
}

void tst_validation::anUnknownCurrentProfileIsTheFirst()
{
    ValidationStage stage;
    profile().BUTTON[0] = 32;
    stage.reportProfile(99);
    QCOMPARE(stage.saveAndListen(), message(kProfileChangeError));
}

void tst_validation::theMacrosAreThoseOfTheProfileAskedAbout()
{
    const ValidationStage stage;
    putMacro(1, 3, kNoDelay, 1);
    ProfileInfo &other = profile(4);
    other.BUTTON[0] = 256 + 3;
    other.MACRO[3].MODE = kNoDelay;
    other.MACRO[3].MACRO_LOOP = 257;
    const DialogVisitor visitor([](const OpenDialog &dialog) { dialog.click("ButtonOK"); });
    QVERIFY(stage.view().CheckProfileNoError(0));
    QCOMPARE(visitor.count(), 0);
    QVERIFY(!stage.view().CheckProfileNoError(4));
    QCOMPARE(visitor.count(), 1);
}

void tst_validation::theMessageCanBeClosedInAnyWay_data()
{
    QTest::addColumn<DialogVisitor::Visit>("close");
    const auto row = [](const char *name, const DialogVisitor::Visit &close) {
        QTest::newRow(name) << close;
    };
    row("OK", [](const OpenDialog &message) { message.click("ButtonOK"); });
    row("close button", [](const OpenDialog &message) { message.click("ButtonClose"); });
    row("Escape", [](const OpenDialog &message) { message.key(Qt::Key_Escape); });
    row("Return", [](const OpenDialog &message) { message.key(Qt::Key_Return); });
    row("desktop", [](const OpenDialog &message) { message.closeByTheDesktop(); });
}

void tst_validation::theMessageCanBeClosedInAnyWay()
{
    QFETCH(DialogVisitor::Visit, close);
    const ValidationStage stage;
    profile().BUTTON[0] = 32;
    const DialogVisitor visitor(close);
    stage.saveOnBoard();
    QCOMPARE(visitor.count(), 1);
    QVERIFY(stage.isUntouched());
    QVERIFY(!QApplication::activeModalWidget());
}

void tst_validation::theMessageIsADialogOfItsSize()
{
    const ValidationStage stage;
    profile().BUTTON[0] = 32;
    const DialogVisitor visitor([&](const OpenDialog &message) {
        QCOMPARE(message.window().size(), QSize(387, 176));
        QVERIFY(message.window().windowFlags().testFlag(Qt::FramelessWindowHint));
        QVERIFY(dynamic_cast<custumwindow &>(message.window()).bCanDragWindow());
        QVERIFY(!message.window().findChild<QWidget *>(QStringLiteral("ButtonCancel")));
        message.click("ButtonOK");
    });
    stage.saveOnBoard();
    QCOMPARE(visitor.count(), 1);
}

void tst_validation::nothingIsChangedByIt()
{
    const ValidationStage stage;
    putMacro(2, 49, kNoDelay, 300);
    SetText(profile().MACRO[49].COPY_PASTER, "text");
    const auto before = std::make_unique<ConfigData>(m_Config);
    QCOMPARE(stage.saveAndListen(), message(kLoopError));
    QVERIFY(std::memcmp(&m_Config, before.get(), sizeof m_Config) == 0);
}

KYR_GUI_TEST(tst_validation)
#include "tst_validation.moc"
