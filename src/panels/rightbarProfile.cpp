#include "panels/rightbarProfile.h"

namespace {

constexpr FunctionListLook kLook{
    .panel = {.title = "Change Profile",
              .stripDepth = 27,
              .stripHeight = 27,
              .titleDepth = 23,
              .clickDepth = 30,
              .collapsed = {{156, 8, 17, 18}, {0, 30, 175, 220}},
              .expanded = {{156, 228, 17, 18}, {0, 0, 175, 220}}},
    .listTag = kProfileListTag,
    .listName = "pProfileListbox",
    .rowHeight = 18, // of the usual 20, the last of the twelve rows would have no room
    .logLine = "Profile Index:%d"};

constexpr const char *kRows[] = {"   * Profile 1",  "   * Profile 2",  "   * Profile 3",
                                 "   * Profile 4",  "   * Profile 5",  "   * Profile 6",
                                 "   * Profile 7",  "   * Profile 8",  "   * Profile 9",
                                 "   * Profile 10", "   * Profile UP", "   * Profile DOWN"};

static_assert(static_cast<int>(std::size(kRows)) * kLook.rowHeight <=
              kLook.panel.expanded.content.height);

} // namespace

rightbarProfile::rightbarProfile(QWidget *parent, UpRect frame,
                                 const Action<CollapsiblePanel *> &noticeAction)
    : FunctionListPanel(kLook, parent, frame, noticeAction)
{
    addRows(kRows);
    setContent(&list());
}
