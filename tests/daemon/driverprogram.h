#pragma once

#include "support/privatebus.h"

#include <QtCore/QStringList>
#include <QtTest/QTest>

/// The driver process, run as a program on a test's bus.
class DriverProgram
{
public:
    DriverProgram(const QProcessEnvironment &environment, const QStringList &arguments)
    {
        m_process.setProcessEnvironment(environment);
        m_process.setProgram(QStringLiteral(KT7R4D));
        m_process.setArguments(arguments);
        QObject::connect(&m_process, &QProcess::readyReadStandardError, &m_process,
                         [this] { m_log += m_process.readAllStandardError(); });
        m_process.start();
    }
    ~DriverProgram()
    {
        m_process.kill();
        m_process.waitForFinished();
    }
    DriverProgram(const DriverProgram &) = delete;
    DriverProgram &operator=(const DriverProgram &) = delete;

    /// The whole log lines so far.
    QStringList lines() const
    {
        auto lines = QString::fromUtf8(m_log).split(QLatin1Char('\n'));
        lines.removeLast();
        return lines;
    }
    bool says(const QString &line) const { return lines().contains(line); }
    bool isReady() const { return says(QStringLiteral("kt7r4d: ready")); }

    qint64 id() const { return m_process.processId(); }
    bool isRunning() const { return m_process.state() == QProcess::Running; }
    /// Whether it has ended by itself with this exit code.
    bool hasEnded(int exitCode) const
    {
        return m_process.state() == QProcess::NotRunning &&
               m_process.exitStatus() == QProcess::NormalExit && m_process.exitCode() == exitCode;
    }
    QByteArray standardOutput() { return m_process.readAllStandardOutput(); }

private:
    QProcess m_process;
    QByteArray m_log;
};
