#include "panels/rightbarDPI.h"

namespace {

constexpr UpRect kList{0, 60, 175, 160};

constexpr FunctionListLook kLook{.panel = {.title = "Change CPI",
                                           .stripDepth = 27,
                                           .stripHeight = 27,
                                           .titleDepth = 23,
                                           .clickDepth = 30,
                                           .collapsed = {{156, 8, 17, 18}, kList},
                                           .expanded = {{156, 228, 17, 18}, kList}},
                                 .listTag = kCpiListTag,
                                 .listName = "pDPIListbox",
                                 .logLine = "DPI Index:%d"};

constexpr const char *kRows[] = {"   * CPI 800",  "   * CPI 1600", "   * CPI 2400",
                                 "   * CPI 3200", "   * CPI 4000", "   * CPI 5000",
                                 "   * CPI UP",   "   * CPI DOWN"};

} // namespace

rightbarDPI::rightbarDPI(QWidget *parent, UpRect frame,
                         const Action<CollapsiblePanel *> &noticeAction)
    : FunctionListPanel(kLook, parent, frame, noticeAction)
{
    addRows(kRows);
    setContent(&list());
}
