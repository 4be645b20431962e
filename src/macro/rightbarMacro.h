#pragma once

#include "controls/functionlistpanel.h"

class QScrollArea;

/// The panel "Custom Macros" of the side bar: the macros of the current profile.
class rightbarMacro : public FunctionListPanel
{
public:
    /// Collapsed; `noticeAction` is sent with the panel after a player has expanded or collapsed
    /// it.
    rightbarMacro(QWidget *parent, UpRect frame, const Action<CollapsiblePanel *> &noticeAction);

    /// Sent with the code of the row that a person has chosen.
    void setMacroSelChangeNoticeAction(const Action<FunctionCode> &action)
    {
        setSelChangeNoticeAction(action);
    }
    /// Selects a row without telling anybody.
    void setMacroSel(std::int32_t row);
    /// Hides or shows the buttons "New" and "Delete".
    void setHiddenButton(bool hidden);
    /// Lists the macros of the current profile, up to the first one without a name.
    void refreshMacroList();

protected:
    void ExpandView(bool expand) override;

private:
    void keepToRows();

    Framed<QScrollArea> *MacroListscrollView;
    HoverButton *btnNew;
    HoverButton *btnDelete;
};
