#pragma once

#include "controls/functionlistpanel.h"

/// The panel "Change Profile" of the side bar: the ten profiles, up and down.
class rightbarProfile : public FunctionListPanel
{
public:
    /// Collapsed; `noticeAction` is sent with the panel after a player has expanded or collapsed
    /// it.
    rightbarProfile(QWidget *parent, UpRect frame, const Action<CollapsiblePanel *> &noticeAction);

    /// Sent with the code of the row that a person has chosen.
    void setProfileSelChangeNoticeAction(const Action<FunctionCode> &action)
    {
        setSelChangeNoticeAction(action);
    }
    /// Selects a row without telling anybody.
    void setProfileSel(std::int32_t row) { list().setcursel(row); }
};
