#include "platform/systemlog.h"
#include "support/logcapture.h"
#include "support/suite.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryFile>

#include <unistd.h>

namespace {

/// Takes standard error while `write` runs.
QByteArray standardErrorOf(const std::function<void()> &write)
{
    QTemporaryFile file;
    if (!file.open())
        return "no temporary file";
    const int saved = ::dup(STDERR_FILENO);
    ::dup2(file.handle(), STDERR_FILENO);
    write();
    ::dup2(saved, STDERR_FILENO);
    ::close(saved);
    // Read by another descriptor: what is there now was flushed.
    QFile reader(file.fileName());
    return reader.open(QIODevice::ReadOnly) ? reader.readAll() : QByteArray("not read");
}

} // namespace

class tst_systemlog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aLineIsFormattedAsPrintfDoes();
    void aLongLineIsKeptWhole();
    void perCentSignsInArgumentsAreKept();
    void controlCharactersBecomeBlanks_data();
    void controlCharactersBecomeBlanks();
    void aLineGoesToStandardErrorAtOnce();
    void aSinkTakesTheLinesUntilItIsTakenAway();
    void aNamedProgramSaysItsNameFirst();
};

void tst_systemlog::aLineIsFormattedAsPrintfDoes()
{
    const LogCapture log;
    systemLog("changed:%x %d %s %%", 0x4010U, -3, "text");
    systemLog("plain");
    QCOMPARE(log.lines, (std::vector<std::string>{"changed:4010 -3 text %", "plain"}));
}

void tst_systemlog::aLongLineIsKeptWhole()
{
    const LogCapture log;
    const std::string text(100'000, 'x');
    systemLog("<%s>", text.c_str());
    QCOMPARE(log.lines.front(), '<' + text + '>');
}

void tst_systemlog::perCentSignsInArgumentsAreKept()
{
    const QByteArray written = standardErrorOf([] { systemLog("%s", "100%s%n"); });
    QCOMPARE(written, QByteArray("100%s%n\n"));
}

void tst_systemlog::controlCharactersBecomeBlanks_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("logged");
    const auto row = [](const char *name, const char *text, const char *logged) {
        QTest::newRow(name) << QByteArray(text) << QByteArray(logged);
    };
    row("lines", "a\nb\r\nc\n", "a b  c ");
    row("an escape", "\x1b[2Ja\x07", " [2Ja ");
    row("the first and the last", "\x01\x1F\x7F", "   ");
    row("no control", " !~", " !~");
    row("those of Latin 1",
        "a\xC2\x80\xC2\x9F"
        "b",
        "a  b");
    row("letters of Latin 1", "\xC2\xA0\xC2\xBF\xC3\x80\xC3\x9F",
        "\xC2\xA0\xC2\xBF\xC3\x80\xC3\x9F");
    row("other letters", "\xE7\x81\xAB \xF0\x9F\x90\x89 \xD0\x82",
        "\xE7\x81\xAB \xF0\x9F\x90\x89 \xD0\x82");
    row("half a character", "a\xC2", "a\xC2");
    row("no text", "\xFF\x80\x9B", "\xFF\x80\x9B");
}

void tst_systemlog::controlCharactersBecomeBlanks()
{
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, logged);
    {
        const LogCapture log;
        systemLog("%s", text.constData());
        QCOMPARE(QByteArray::fromStdString(log.lines.front()), logged);
    }
    const QByteArray written = standardErrorOf([&] { systemLog("%s", text.constData()); });
    QCOMPARE(written, logged + '\n');
}

void tst_systemlog::aLineGoesToStandardErrorAtOnce()
{
    const QByteArray written = standardErrorOf([] { systemLog("line %d", 1); });
    QCOMPARE(written, QByteArray("line 1\n"));
}

void tst_systemlog::aSinkTakesTheLinesUntilItIsTakenAway()
{
    const QByteArray written = standardErrorOf([] {
        {
            const LogCapture log;
            systemLog("taken");
            QVERIFY(log.contains("taken"));
        }
        systemLog("not taken");
    });
    QCOMPARE(written, QByteArray("not taken\n"));
}

void tst_systemlog::aNamedProgramSaysItsNameFirst()
{
    // The name stays for the rest of the process: this function is the last one.
    setSystemLogName("program");
    const QByteArray written = standardErrorOf([] { systemLog("ready"); });
    QCOMPARE(written, QByteArray("program: ready\n"));
    const LogCapture log;
    systemLog("ready");
    QVERIFY(log.contains("ready"));
}

KYR_CORE_TEST(tst_systemlog)
#include "tst_systemlog.moc"
