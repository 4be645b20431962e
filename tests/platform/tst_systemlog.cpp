#include "platform/systemlog.h"
#include "support/logcapture.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryFile>
#include <QtTest/QTest>

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

class TestSystemLog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aLineIsFormattedAsPrintfDoes();
    void aLongLineIsKeptWhole();
    void perCentSignsInArgumentsAreKept();
    void aLineGoesToStandardErrorAtOnce();
    void aSinkTakesTheLinesUntilItIsTakenAway();
    void aNamedProgramSaysItsNameFirst();
};

void TestSystemLog::aLineIsFormattedAsPrintfDoes()
{
    const LogCapture log;
    systemLog("changed:%x %d %s %%", 0x4010U, -3, "text");
    systemLog("plain");
    QCOMPARE(log.lines, (std::vector<std::string>{"changed:4010 -3 text %", "plain"}));
}

void TestSystemLog::aLongLineIsKeptWhole()
{
    const LogCapture log;
    const std::string text(100'000, 'x');
    systemLog("<%s>", text.c_str());
    QCOMPARE(log.lines.front(), '<' + text + '>');
}

void TestSystemLog::perCentSignsInArgumentsAreKept()
{
    const QByteArray written = standardErrorOf([] { systemLog("%s", "100%s%n"); });
    QCOMPARE(written, QByteArray("100%s%n\n"));
}

void TestSystemLog::aLineGoesToStandardErrorAtOnce()
{
    const QByteArray written = standardErrorOf([] { systemLog("line %d", 1); });
    QCOMPARE(written, QByteArray("line 1\n"));
}

void TestSystemLog::aSinkTakesTheLinesUntilItIsTakenAway()
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

void TestSystemLog::aNamedProgramSaysItsNameFirst()
{
    // The name stays for the rest of the process: this function is the last one.
    setSystemLogName("program");
    const QByteArray written = standardErrorOf([] { systemLog("ready"); });
    QCOMPARE(written, QByteArray("program: ready\n"));
    const LogCapture log;
    systemLog("ready");
    QVERIFY(log.contains("ready"));
}

QTEST_GUILESS_MAIN(TestSystemLog)
#include "tst_systemlog.moc"
