#pragma once

#include "model/randomrecord.h"
#include "support/testsettings.h"

#include <cstring>
#include <memory>

/// A settings file full of made-up content: every macro, every character. The third profile is
/// current, in-game mode is off, and every mouse button's caption is the name of its profile,
/// "Profile 1" and so on.
inline const QByteArray &fullSettings()
{
    static const QByteArray bytes = [] {
        const TestSettings scratch;
        fillRecord(21);
        m_Config.PROFILE_ID = 2;
        m_Config.GAME_MODE = 0;
        for (unsigned index = 0; index < kProfileCount; ++index)
            std::fill_n(m_Config.PROFILE[index].BUTTON, kButtonCount, 32 + index);
        xmlconfig store;
        store.setConfigfileName(scratch.path());
        store.WriteConfigFile();
        return scratch.bytes();
    }();
    return bytes;
}

using Record = std::unique_ptr<ConfigData>;

/// A copy of a record: at first of the program's own.
inline Record copyOf(const ConfigData &record = m_Config)
{
    return std::make_unique<ConfigData>(record);
}

/// A copy of a record with another current profile, counted from 1.
inline Record withProfile(const ConfigData &record, int number)
{
    Record copy = copyOf(record);
    copy->PROFILE_ID = static_cast<std::uint32_t>(number - 1);
    return copy;
}

inline bool isRecord(const ConfigData &record)
{
    return std::memcmp(&m_Config, &record, sizeof m_Config) == 0;
}

/// Whether what a settings file holds is this record. The program's own record is not touched.
inline bool isInFile(const QByteArray &file, const ConfigData &record)
{
    const Record own = copyOf();
    const std::string path = pConfigFileName;
    const TestSettings scratch;
    scratch.put(file);
    xmlconfig store;
    store.setConfigfileName(scratch.path());
    store.LoadConfigFile();
    const bool same = isRecord(record);
    store.setConfigfileName(path);
    m_Config = *own;
    return same;
}

/// Gives a profile the defaults, its buttons these codes; its character and macros stay.
inline void putDefaults(ProfileInfo &profile, const FunctionCode (&buttons)[kButtonCount])
{
    profile.DPI_VALUE = 2;
    profile.DBCLICK_SPEED = 10;
    profile.SCROLL_SPEED = 3;
    profile.SENSITIVITY = 6;
    profile.ADVANCED_SEN_X = 10;
    profile.ADVANCED_SEN_Y = 10;
    profile.LED_COLOR_R = 255;
    profile.LED_COLOR_G = 60;
    profile.LED_COLOR_B = 0;
    profile.LED_INTENSITY = 1;
    profile.LED_PULSATION = 1;
    std::ranges::copy(buttons, profile.BUTTON);
}
