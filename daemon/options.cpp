#include "daemon/options.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QDir>

namespace {

const QString kDefaultSettings = QStringLiteral("/Users/Shared/KT7R4/KT7R4Setting.xml");

QString defaultStateFolder()
{
    const QString base = qEnvironmentVariable("XDG_STATE_HOME");
    const bool usable = QDir::isAbsolutePath(base);
    return (usable ? base : QDir::homePath() + QStringLiteral("/.local/state")) +
           QStringLiteral("/kt7r4d");
}

} // namespace

Options parseOptions(const QCoreApplication &application)
{
    const QCommandLineOption settings(QStringLiteral("settings"),
                                      QStringLiteral("The settings file."), QStringLiteral("PATH"),
                                      kDefaultSettings);
    const QCommandLineOption stateFolder(
        QStringLiteral("state-dir"), QStringLiteral("The folder of the virtual mouse's memory."),
        QStringLiteral("DIR"), defaultStateFolder());
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("The mouse's driver process, with a virtual mouse."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({settings, stateFolder});
    parser.process(application);
    return {parser.value(settings).toStdString(), parser.value(stateFolder).toStdString()};
}
