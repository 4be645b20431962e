#pragma once

#include "controls/functionlistpanel.h"

class MacroDelWarn;
class MacroView;
class SkinScrollArea;

/// The panel "Custom Macros" of the side bar: the macros of the current profile, which are made,
/// edited and deleted here.
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
    /// Sent after the profile's macros have changed.
    void setMacrosChangeAction(const Action<> &action) { m_macrosChangeAction = action; }
    /// Selects a row without telling anybody, and scrolls it into sight where there is one.
    void setMacroSel(std::int32_t row);
    /// Hides or shows the buttons "New" and "Delete".
    void setHiddenButton(bool hidden);
    /// Lists the macros of the current profile, up to the first one without a name. A selection
    /// beyond them is none afterwards.
    void refreshMacroList();

    /// "New": opens the editor for a new macro.
    void newbuttonAction(HoverButton *sender);
    /// "Delete": deletes the selected macro, after a warning unless that is switched off.
    void deletebuttonAction(HoverButton *sender);
    /// A double click in the list: opens the editor for the selected macro.
    void MacroListDBClick(pngListBox *sender);
    /// Runs the editor, for the macro of that slot or with -1 for a new one; returns when it is
    /// closed. The panel may be gone then.
    void DisplayMacroWindow(std::int32_t macro);
    /// How the editor ended.
    void MacroOKAction(MacroView *sender);
    void MacroCancelAction(MacroView *sender);
    /// Asks before the selected macro is deleted; returns when that is answered and done. The panel
    /// may be gone then.
    void DisplayWarnDlg();
    /// Deletes the selected macro, if any, and closes the gap. The settings file is not written.
    void MacroDelAction(QWidget *sender);

protected:
    void ExpandView(bool expand) override;

private:
    void keepToRows();
    QWidget &mainWindow() const;
    void releaseEditor();

    Action<> m_macrosChangeAction;
    HoverButton *btnNew;
    HoverButton *btnDelete;
    SkinScrollArea *MacroListscrollView;
    QPointer<QWidget> pMacroWindow; ///< the editor while it is open
    QPointer<MacroView> pMacroView;
    QPointer<QWidget> pWarnWindow; ///< the warning while it is open
    QPointer<MacroDelWarn> pWarnView;
};
