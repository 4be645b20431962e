#pragma once

#include "macroeditstage.h"

/// The program with the second of three macros selected, and the warning before a deletion switched
/// on.
struct MacroWarnStage : MacroEditStage
{
    MacroWarnStage() : MacroEditStage(3)
    {
        m_Config.MACRODEL_CONFIRM = 1;
        select(1);
        program.log.lines.clear();
    }

    bool isDeleted() const { return macros().stringAt(1) == QLatin1String("   * M 2"); }
    /// Presses "Delete", and does something with the warning before it is closed.
    void warned(const DialogVisitor::Visit &visit) const
    {
        const DialogVisitor visitor([&](const OpenDialog &warning) {
            visit(warning);
            warning.click("ButtonClose");
        });
        clickDelete();
        QCOMPARE(visitor.count(), 1);
    }
};
