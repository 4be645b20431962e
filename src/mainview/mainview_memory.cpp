#include "functions/functioncodes.h"
#include "mainview/MainView.h"
#include "model/fixedtext.h"

namespace {

constexpr std::uint32_t kProfileBytes = 75; ///< what every profile takes, whatever its buttons do

std::uint32_t eventBytes(const MacroInfo &macro)
{
    std::uint32_t bytes = 0;
    for (const KeymapEvent &event : macro.KEYMAP) {
        if (event.kind == 0)
            break;
        if (event.kind == kKeyPress || event.kind == kKeyRelease)
            bytes += 2;
        if (macro.MODE == kModeRecordDelay && event.delay != 0)
            bytes += 2;
    }
    return bytes;
}

std::uint32_t copyPasteBytes(const MacroInfo &macro)
{
    const auto length = static_cast<std::uint32_t>(GetText(macro.COPY_PASTER).size());
    return (macro.bSTARTKEY ? 4 : 0) + 4 * length + (macro.bSENDKEY ? 4 : 0);
}

std::uint32_t macroBytes(const MacroInfo &macro)
{
    const std::uint32_t bytes =
        macro.MODE == kModeCopyPaste ? copyPasteBytes(macro) : eventBytes(macro);
    return (bytes & 0xFFFFU) != 0 ? bytes + 2 : bytes;
}

constexpr FunctionCode kFirstProfileChange = 32;
constexpr FunctionCode kLastProfileChange = 43;
constexpr std::uint32_t kMostLoops = 256; // although the message says "less than 256"

constexpr const char *kCopyPasteError =
    "The \"Copy & Paste\" macros found in this profile can not be saved on-board. Please delete "
    "all \"Copy & Paste\" macros and use a \"Text / Record Delay / No Delay\" macro modes to "
    "recreate these macros if you want to store them on the mouse and use without the driver.";
constexpr const char *kLoopError =
    "Please reduce loop times of macro less than 256 times if you want to store them on the mouse "
    "and use without the driver.";
constexpr const char *kProfileChangeError =
    "The Change Profile functions found in this profile can not be saved on-board. Please remove "
    "all Change Profile functions if you want to store them on the mouse and use without the "
    "driver.";

/// Why the mouse cannot store a function of a profile; null when it can.
const char *storingError(FunctionCode code, const ProfileInfo &profile)
{
    if (code >= kFirstProfileChange && code <= kLastProfileChange)
        return kProfileChangeError;
    const auto slot = functions::macroSlot(code);
    if (!slot)
        return nullptr;
    const MacroInfo &macro = MacroAt(profile, *slot);
    if (macro.MODE == kModeCopyPaste)
        return kCopyPasteError;
    return macro.MACRO_LOOP > kMostLoops ? kLoopError : nullptr;
}

} // namespace

std::uint32_t MainView::GetMacroBlockInfo(FunctionCode code)
{
    const FunctionCode low = code & 0xFFFFU;
    if (const auto slot = functions::macroSlot(low))
        return macroBytes(MacroAt(CurrentProfile(), *slot));
    if (const functions::BasicFunction *basic = functions::basicFunction(low))
        return basic->size;
    const functions::GameCommand *command = functions::gameCommand(low);
    return command ? command->size : 0;
}

void MainView::CalcMouseMemoryUsage()
{
    std::uint32_t total = kProfileBytes;
    if (m_Config.GAME_MODE == 0) {
        for (const FunctionCode code : CurrentProfile().BUTTON)
            total += GetMacroBlockInfo(code & 0xFFFFU) & 0xFFFFU;
    }
    m_MSMemoryUsage = (total * 8) >> 10U;
    MSMemoryUsageBar->setPos(static_cast<int>(m_MSMemoryUsage));
    update();
}

bool MainView::CheckProfileNoError(std::uint32_t profile)
{
    const ProfileInfo &checked = ProfileAt(profile);
    for (const FunctionCode code : checked.BUTTON) {
        const char *const error = storingError(code, checked);
        if (!error)
            continue;
        DisplayWarnOneWindow(QStringLiteral("Error!"), QLatin1String(error));
        return false;
    }
    return true;
}
