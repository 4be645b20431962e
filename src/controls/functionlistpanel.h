#pragma once

#include "controls/collapsiblepanel.h"
#include "controls/pngListBox.h"

#include <span>

/// What tells one panel of listed functions from another.
struct FunctionListLook
{
    PanelLook panel;
    int listTag = 0;
    const char *listName = ""; ///< the list's object name
    int rowHeight = 20;
    const char *logLine = ""; ///< of a choice, with a %d for the row
};

/// A panel of the side bar with a list of functions: a row that is chosen is told as a function
/// code, and rows can be dragged onto buttons.
class FunctionListPanel : public CollapsiblePanel
{
public:
    /// `look` must outlive the panel.
    FunctionListPanel(const FunctionListLook &look, QWidget *parent, UpRect frame,
                      const Action<CollapsiblePanel *> &noticeAction);

    /// A release of the mouse in the list, or the Return key: with a row selected, its code is
    /// told. Other lists are ignored.
    void ListboxAction(pngListBox *sender);

protected:
    pngListBox &list() const { return *m_list; }
    void addRows(std::span<const char *const> texts);
    /// Sent with the code of the row that a person has chosen.
    void setSelChangeNoticeAction(const Action<FunctionCode> &action) { m_noticeAction = action; }

private:
    const FunctionListLook &m_listLook;
    pngListBox *m_list;
    Action<FunctionCode> m_noticeAction;
};
