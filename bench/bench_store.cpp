#include "model/fixedtext.h"
#include "model/xmlconfig.h"
#include "platform/files.h"

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <plist/plist.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>

/// Loading and writing the settings file, beside the property-list library alone on the same bytes
/// and the disk alone with the same bytes.

namespace {

/// A settings file of its own, gone at the end.
class Folder
{
public:
    Folder()
    {
        if (!::mkdtemp(m_path.data()))
            std::abort();
    }
    ~Folder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path.data(), ignored);
    }
    Folder(const Folder &) = delete;
    Folder &operator=(const Folder &) = delete;

    std::string file() const { return std::string(m_path.data()) + "/settings.xml"; }

private:
    // Beside the program: /tmp may be memory, which knows no flushing.
    std::array<char, 20> m_path = std::to_array("bench_store.XXXXXX\0");
};

const std::string &settingsPath()
{
    static const Folder folder;
    static const std::string path = folder.file();
    return path;
}

void fillEvents(MacroInfo &macro, unsigned count, KeymapEvent event)
{
    for (unsigned slot = 0; slot < count; ++slot)
        macro.KEYMAP[slot] = event;
}

/// Every text and list full, every number as long as it gets.
void putFullest()
{
    constexpr std::uint32_t longest = INT32_MAX;
    for (ProfileInfo &profile : m_Config.PROFILE) {
        for (char *text : {profile.CHARACTER_INFO.SERVER, profile.CHARACTER_INFO.NAME,
                           profile.CHARACTER_INFO.CLASS, profile.CHARACTER_INFO.RACE})
            SetText({text, sizeof(CharacterInfo::NAME)}, std::string(200, 'a'));
        std::ranges::fill(profile.BUTTON, longest);
        for (MacroInfo &macro : profile.MACRO) {
            SetText(macro.MACRO_NAME, std::string(100, 'm'));
            SetText(macro.COPY_PASTER, std::string(260, 'c'));
            fillEvents(macro, kEventCount, {longest, longest, longest});
        }
    }
}

/// Three profiles with six macros of 20 to 60 events each.
void putTypical()
{
    xmlconfig().InitialConfigData();
    for (unsigned profile = 0; profile < 3; ++profile) {
        SetText(m_Config.PROFILE[profile].CHARACTER_INFO.NAME, "Aerith");
        for (unsigned slot = 0; slot < 6; ++slot) {
            MacroInfo &macro = m_Config.PROFILE[profile].MACRO[slot];
            SetText(macro.MACRO_NAME, "Rotation");
            fillEvents(macro, 20 + slot * 8, {56, 1, 3});
        }
    }
}

using Filler = void (*)();

/// The bytes of the settings file, which afterwards stands at settingsPath().
std::string writtenSettings(Filler fill)
{
    m_Config = {};
    fill();
    xmlconfig store;
    store.setConfigfileName(settingsPath());
    store.WriteConfigFile();
    std::string bytes;
    if (readFile(settingsPath(), SIZE_MAX, bytes) != ReadStatus::Ok)
        std::abort();
    return bytes;
}

void reportBytes(benchmark::State &state, const std::string &bytes)
{
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes.size()));
}

plist_t parsed(const std::string &bytes)
{
    plist_t root = nullptr;
    plist_from_xml(bytes.data(), static_cast<std::uint32_t>(bytes.size()), &root);
    return root;
}

void loadStore(benchmark::State &state, Filler fill)
{
    const std::string bytes = writtenSettings(fill);
    xmlconfig store;
    while (state.KeepRunning())
        store.LoadConfigFile();
    reportBytes(state, bytes);
}

void loadLibraryAlone(benchmark::State &state, Filler fill)
{
    const std::string bytes = writtenSettings(fill);
    while (state.KeepRunning())
        plist_free(parsed(bytes));
    reportBytes(state, bytes);
}

void loadFileAlone(benchmark::State &state, Filler fill)
{
    std::string bytes = writtenSettings(fill);
    while (state.KeepRunning())
        benchmark::DoNotOptimize(readFile(settingsPath(), SIZE_MAX, bytes));
    reportBytes(state, bytes);
}

void writeStore(benchmark::State &state, Filler fill)
{
    const std::string bytes = writtenSettings(fill);
    xmlconfig store;
    while (state.KeepRunning())
        store.WriteConfigFile();
    reportBytes(state, bytes);
}

/// The nodes that a write builds, made without looking up keys or forming numbers.
void buildLibraryAlone(benchmark::State &state, Filler fill)
{
    const std::string bytes = writtenSettings(fill);
    plist_t root = parsed(bytes);
    while (state.KeepRunning())
        plist_free(plist_copy(root));
    plist_free(root);
    reportBytes(state, bytes);
}

void writeLibraryAlone(benchmark::State &state, Filler fill)
{
    const std::string bytes = writtenSettings(fill);
    plist_t root = parsed(bytes);
    while (state.KeepRunning()) {
        char *xml = nullptr;
        std::uint32_t size = 0;
        plist_to_xml(root, &xml, &size);
        benchmark::DoNotOptimize(size);
        plist_to_xml_free(xml);
    }
    plist_free(root);
    reportBytes(state, bytes);
}

void writeFileAlone(benchmark::State &state, Filler fill)
{
    const std::string bytes = writtenSettings(fill);
    while (state.KeepRunning())
        benchmark::DoNotOptimize(writeFileAtomically(settingsPath(), bytes));
    reportBytes(state, bytes);
}

/// What of writeFileAlone() is waiting for the disk.
void flushAlone(benchmark::State &state, Filler fill)
{
    const std::string bytes = writtenSettings(fill);
    const int file = ::open(settingsPath().c_str(), O_WRONLY | O_CLOEXEC);
    while (state.KeepRunning()) {
        state.PauseTiming();
        const bool isWritten =
            ::pwrite(file, bytes.data(), bytes.size(), 0) == static_cast<ssize_t>(bytes.size());
        state.ResumeTiming();
        if (!isWritten || ::fsync(file) != 0)
            state.SkipWithError("cannot write");
    }
    ::close(file);
    reportBytes(state, bytes);
}

} // namespace

// Wall time: waiting for the disk is part of a write.
#define STORE_BENCHMARK(function)                                                                  \
    BENCHMARK_CAPTURE(function, typical, putTypical)                                               \
        ->Unit(benchmark::kMillisecond)                                                            \
        ->UseRealTime();                                                                           \
    BENCHMARK_CAPTURE(function, fullest, putFullest)->Unit(benchmark::kMillisecond)->UseRealTime()

STORE_BENCHMARK(loadStore);
STORE_BENCHMARK(loadLibraryAlone);
STORE_BENCHMARK(loadFileAlone);
STORE_BENCHMARK(writeStore);
STORE_BENCHMARK(buildLibraryAlone);
STORE_BENCHMARK(writeLibraryAlone);
STORE_BENCHMARK(writeFileAlone);
STORE_BENCHMARK(flushAlone);

BENCHMARK_MAIN();
