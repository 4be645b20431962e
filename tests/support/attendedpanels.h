#pragma once

#include "model/fakefilepanels.h"

#include <functional>

/// Panels that are answered beforehand, and that something happens behind while they are open.
class AttendedPanels : public FakeFilePanels
{
public:
    std::optional<std::string> openPanel(const std::string &title,
                                         const std::string &fileType) override
    {
        happen();
        return FakeFilePanels::openPanel(title, fileType);
    }
    std::optional<std::string> savePanel(const std::string &title, const std::string &proposedName,
                                         const std::string &fileType) override
    {
        happen();
        return FakeFilePanels::savePanel(title, proposedName, fileType);
    }

    std::function<void()> meanwhile; ///< if set, done while a panel is open

private:
    void happen() const
    {
        if (meanwhile)
            meanwhile();
    }
};
