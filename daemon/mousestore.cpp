#include "daemon/mousestore.h"

#include "platform/files.h"
#include "platform/plist.h"
#include "platform/systemlog.h"

#include <filesystem>

namespace {

constexpr char kStateFile[] = "mouse.xml";
constexpr char kMemoryFile[] = "onboard.xml";
/// Far above an on-board memory with all fifty macros full.
constexpr std::size_t kMostBytes = 16U << 20U;

struct StateField
{
    const char *key;
    std::int32_t MouseState::*member;
    bool (*isValid)(std::int32_t value);
};

constexpr StateField kStateFields[] = {
    {"POLLING_RATE", &MouseState::pollingRate, MouseState::isPollingRate},
    {"LIFT_DISTANCE", &MouseState::liftDistance, MouseState::isLiftDistance},
    {"ACTIVE_PROFILE", &MouseState::activeProfile, MouseState::isProfileNumber},
};

void readField(const StateField &field, plist::Dictionary from, MouseState &state)
{
    const auto stored = from.integer(field.key);
    if (!stored)
        return;
    const auto value = static_cast<std::int32_t>(*stored);
    if (value == *stored && field.isValid(value))
        state.*field.member = value;
    else
        systemLog("the mouse's stored %s is out of range", field.key);
}

} // namespace

MouseStore::MouseStore(const std::string &folder) : m_folder(folder)
{
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (!error)
        return;
    systemLog("%s cannot be made (%s): the mouse forgets its memory when the program ends",
              folder.c_str(), error.message().c_str());
    m_folder.clear();
}

MouseState MouseStore::loadState() const
{
    MouseState state;
    const std::string bytes = load(kStateFile);
    if (bytes.empty())
        return state;
    const auto document = plist::Document::parse(bytes);
    if (!document)
        systemLog("%s/%s is not a property list", m_folder.c_str(), kStateFile);
    for (const StateField &field : kStateFields)
        readField(field, document ? document->root() : plist::Dictionary(), state);
    return state;
}

std::string MouseStore::loadMemory() const
{
    return load(kMemoryFile);
}

void MouseStore::saveState(const MouseState &state) const
{
    const plist::Document document;
    for (const StateField &field : kStateFields)
        document.root().setInteger(field.key, state.*field.member);
    save(kStateFile, document.toXml());
}

void MouseStore::saveMemory(std::string_view bytes) const
{
    save(kMemoryFile, bytes);
}

std::string MouseStore::load(const char *name) const
{
    std::string bytes;
    if (m_folder.empty())
        return bytes;
    const std::string path = m_folder + '/' + name;
    if (readFile(path, kMostBytes, bytes) == ReadStatus::Unreadable)
        systemLog("%s cannot be read", path.c_str());
    return bytes;
}

void MouseStore::save(const char *name, std::string_view bytes) const
{
    if (m_folder.empty())
        return;
    const std::string path = m_folder + '/' + name;
    if (!writeFileAtomically(path, bytes))
        systemLog("%s cannot be written", path.c_str());
}
