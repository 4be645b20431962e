#include "controls/functionlistpanel.h"

#include "platform/systemlog.h"

namespace {

/// The colours of a list in the side bar, 0..255 a component.
constexpr double kText[] = {255, 180, 0};
constexpr double kRow[] = {41, 41, 41};

} // namespace

FunctionListPanel::FunctionListPanel(const FunctionListLook &look, QWidget *parent, UpRect frame,
                                     const Action<CollapsiblePanel *> &noticeAction)
    : CollapsiblePanel(look.panel, parent, frame, noticeAction),
      m_listLook(look),
      m_list(new pngListBox(this))
{
    m_list->setObjectName(QLatin1String(look.listName));
    m_list->setAccessibleName(QLatin1String(look.panel.title));
    m_list->setTag(look.listTag);
    m_list->setItemHeight(look.rowHeight);
    m_list->setTextAlign(TextAlign::Left);
    m_list->setTextColor(kText[0], kText[1], kText[2]);
    m_list->setForeColor(kRow[0], kRow[1], kRow[2]);
    m_list->setChangeAction({this, &FunctionListPanel::ListboxAction});
    m_list->enableDragDrop(true);
}

void FunctionListPanel::addRows(std::span<const char *const> texts)
{
    for (const char *text : texts)
        m_list->AddString(QLatin1String(text));
}

void FunctionListPanel::ListboxAction(pngListBox *sender)
{
    if (sender->tag() != m_listLook.listTag)
        return;
    const int row = sender->getcursel();
    systemLog(m_listLook.logLine, row);
    if (row >= 0)
        m_noticeAction.send(sender->getfunctionid(row));
}
