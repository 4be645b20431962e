#pragma once

#include "support/logcapture.h"
#include "support/testsettings.h"

#include <QtCore/QDir>

#include <cstring>
#include <filesystem>
#include <string>

inline const std::string kWriteFail = "write fail!";
/// The name of the settings file in the folder of a fixture.
inline const QString kSettingsName = QStringLiteral("KT7R4Setting.xml");

/// A store with a private settings file, its log lines taken.
struct StoreFixture
{
    StoreFixture() { store.setConfigfileName(settings.path()); }

    /// Loads `bytes` into a record full of something else, so that what is not read shows.
    void load(const QByteArray &bytes)
    {
        settings.put(bytes);
        load();
    }
    void load()
    {
        std::memset(&m_Config, 0xA5, sizeof m_Config);
        store.LoadConfigFile();
    }

    TestSettings settings;
    LogCapture log;
    xmlconfig store;
};

inline bool sameRecord(const ConfigData &a, const ConfigData &b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}

/// The names of all that is in the fixture's folder.
inline QStringList entries(const StoreFixture &fixture)
{
    return QDir(fixture.settings.folder())
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                   QDir::Name);
}

inline void setFolderMode(const StoreFixture &fixture, unsigned mode)
{
    std::filesystem::permissions(fixture.settings.folder().toStdString(),
                                 std::filesystem::perms{mode});
}
