#include "model/xmlconfig.h"
#include "settingskeys.h"

#include "model/fixedtext.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>

/// storetool write-sample PATH: writes a settings file with a value of its own under every key.
/// storetool dump PATH: prints what the store reads from a settings file, a line "WHERE.KEY=VALUE"
/// for every key: integers as decimals, texts as the bytes in hexadecimal, event lists as
/// "keycode/kind/delay" for every slot up to the last one that is not all zero.
/// storetool copy FROM TO: reads a settings file and writes another.
/// storetool export PATH INDEX PROFILE: writes one profile (0-based) of a settings file to a file
/// of its own. storetool import PATH INDEX PROFILE: reads one profile of a settings file from a
/// file of its own.

namespace {

template <class Function>
void forEveryMember(Function function)
{
    for (const Key &key : kSettingsKeys) {
        const unsigned profiles = key.level == Level::Root ? 1 : kProfileCount;
        const unsigned macros = key.level == Level::Macro ? kMacroCount : 1;
        for (unsigned i = 0; i < profiles * macros; ++i)
            function(key, Place{i / macros, i % macros});
    }
}

std::string where(const Key &key, Place place)
{
    std::string profile = "PROFILE_" + std::to_string(place.profile + 1) + '.';
    switch (key.level) {
    case Level::Root:
        return {};
    case Level::Profile:
        return profile;
    case Level::Character:
        return profile + "CHARACTER_INFO.";
    case Level::Macro:
        break;
    }
    return profile + "MACRO_" + std::to_string(place.macro + 1) + '.';
}

void putSample(const Key &key, Place place)
{
    const auto member = memberAt(m_Config, key, place);
    const auto index = static_cast<std::uint32_t>(&key - kSettingsKeys.data());
    const std::uint32_t number = place.profile * 100'000 + place.macro * 1000 + index;
    // "é", "€" and a character beyond the basic plane, and what XML must escape.
    const std::string text = std::string(key.name) +
                             " \xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80 <&>\"' \t\n" +
                             std::to_string(number) + ' ';
    const KeymapEvent events[] = {{number, 1, index}, {place.macro, 2, place.profile}};
    if (key.holds == Holds::Integer)
        std::memcpy(member.data(), &number, sizeof number);
    else if (key.holds == Holds::Text)
        SetText(member, text);
    else
        std::memcpy(member.data(), events, sizeof events);
}

void printText(std::string_view text)
{
    for (const char byte : text)
        std::printf("%02x", static_cast<unsigned>(static_cast<unsigned char>(byte)));
}

void printEvents(std::span<const char> member)
{
    std::vector<KeymapEvent> events(member.size() / sizeof(KeymapEvent));
    std::memcpy(events.data(), member.data(), member.size());
    const auto isZero = [](const KeymapEvent &e) { return !e.keycode && !e.kind && !e.delay; };
    while (!events.empty() && isZero(events.back()))
        events.pop_back();
    for (const KeymapEvent &event : events)
        std::printf("%u/%u/%u ", event.keycode, event.kind, event.delay);
}

void printMember(const Key &key, Place place)
{
    const auto member = memberAt(m_Config, key, place);
    std::printf("%s%s=", where(key, place).c_str(), key.name);
    if (key.holds == Holds::Text) {
        printText(GetText(member));
    } else if (key.holds == Holds::Events) {
        printEvents(member);
    } else {
        std::uint32_t number = 0;
        std::memcpy(&number, member.data(), sizeof number);
        std::printf("%u", number);
    }
    std::putchar('\n');
}

std::uint32_t indexFrom(const char *argument)
{
    return static_cast<std::uint32_t>(std::strtoul(argument, nullptr, 10));
}

} // namespace

int main(int argc, char **argv)
{
    const std::string_view command = argc > 2 ? argv[1] : "";
    xmlconfig store;
    store.setConfigfileName(argc > 2 ? argv[2] : "");
    if (command == "write-sample") {
        forEveryMember(putSample);
        store.WriteConfigFile();
        return 0;
    }
    if (command == "dump") {
        store.LoadConfigFile();
        forEveryMember(printMember);
        return 0;
    }
    if (command == "copy" && argc > 3) {
        store.LoadConfigFile();
        store.setConfigfileName(argv[3]);
        store.WriteConfigFile();
        return 0;
    }
    if (command == "export" && argc > 4) {
        store.LoadConfigFile();
        store.WriteProfileToFile(indexFrom(argv[3]), argv[4]);
        return 0;
    }
    if (command == "import" && argc > 4) {
        store.LoadConfigFile();
        store.ReadProfileFromFile(indexFrom(argv[3]), argv[4]);
        store.WriteConfigFile();
        return 0;
    }
    std::fputs("usage: storetool write-sample PATH | dump PATH | copy FROM TO |\n"
               "       export PATH INDEX PROFILE | import PATH INDEX PROFILE\n",
               stderr);
    return 2;
}
