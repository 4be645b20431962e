#pragma once

#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QProcessEnvironment>
#include <QtCore/QTemporaryDir>
#include <QtDBus/QDBusConnection>

/// A message bus of the test's own, which starts no services. It lives as long as the object.
class PrivateBus
{
public:
    PrivateBus()
    {
        QFile config(m_folder.filePath(QStringLiteral("bus.conf")));
        if (!config.open(QIODevice::WriteOnly) || config.write(configuration()) < 0)
            qFatal("cannot write the test bus's configuration");
        config.close();
        m_daemon.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_daemon.start(QStringLiteral("dbus-daemon"),
                       {QStringLiteral("--config-file=") + config.fileName(),
                        QStringLiteral("--nofork"), QStringLiteral("--print-address")});
        while (!m_daemon.canReadLine()) {
            if (!m_daemon.waitForReadyRead())
                qFatal("the test's bus does not start");
        }
        m_address = QString::fromLatin1(m_daemon.readLine()).trimmed();
    }
    ~PrivateBus() { stop(); }
    PrivateBus(const PrivateBus &) = delete;
    PrivateBus &operator=(const PrivateBus &) = delete;

    QString address() const { return m_address; }

    /// A connection of its own; `name` tells it from the test's others.
    QDBusConnection connection(const QString &name) const
    {
        return QDBusConnection::connectToBus(m_address, name);
    }

    /// The environment of a program that is to take this bus for the session's.
    QProcessEnvironment environment() const
    {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), m_address);
        return environment;
    }

    void stop()
    {
        m_daemon.terminate();
        m_daemon.waitForFinished();
    }

private:
    QByteArray configuration() const
    {
        return "<busconfig><type>session</type><listen>unix:path=" +
               m_folder.filePath(QStringLiteral("bus")).toUtf8() +
               "</listen><auth>EXTERNAL</auth><policy context=\"default\">"
               "<allow send_destination=\"*\" eavesdrop=\"true\"/><allow eavesdrop=\"true\"/>"
               "<allow own=\"*\"/></policy></busconfig>";
    }

    QTemporaryDir m_folder;
    QProcess m_daemon;
    QString m_address;
};
