#pragma once

#include "levelstage.h"
#include "mainview/fullsettings.h"
#include "support/keyboard.h"

inline constexpr const char *kCpiSteps[] = {" 800", " 1600", " 2400", " 3200", " 4000", " 5000"};

inline QString stepText(std::uint32_t code)
{
    return QString::fromLatin1(kCpiSteps[code]);
}

/// The open bar, and a record that every choice can be compared with.
struct CpiStage : OpenLevelStage
{
    explicit CpiStage(std::uint32_t code = 2) : OpenLevelStage(fullSettings())
    {
        putSensor(CurrentProfile(), {code, 5, 5, 5, 5, 5});
        program.reportProfile(3);
        forget();
        expected = copyOf();
    }

    /// Whether the step was chosen, and that was all.
    bool hasChosen(std::uint32_t code) const
    {
        expected->PROFILE[2].DPI_VALUE = code;
        const std::vector<std::string> lines{"IDC_LISTBOX_DPI:" + std::to_string(code),
                                             "CloseListBox"};
        return isRecord(*expected) && program.log.lines == lines && program.applyIsEnabled() &&
               cpi().captionText() == stepText(code);
    }

    Record expected;
};
