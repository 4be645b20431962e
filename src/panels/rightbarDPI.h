#pragma once

#include "controls/functionlistpanel.h"

/// The panel "Change CPI" of the side bar: the six CPI steps, up and down.
class rightbarDPI : public FunctionListPanel
{
public:
    /// Collapsed; `noticeAction` is sent with the panel after a player has expanded or collapsed
    /// it.
    rightbarDPI(QWidget *parent, UpRect frame, const Action<CollapsiblePanel *> &noticeAction);

    /// Sent with the code of the row that a person has chosen.
    void setDPISelChangeNoticeAction(const Action<FunctionCode> &action)
    {
        setSelChangeNoticeAction(action);
    }
    /// Selects a row without telling anybody.
    void setDPISel(std::int32_t row) { list().setcursel(row); }
};
