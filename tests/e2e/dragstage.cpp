// A window with two lists above and two buttons below, to drag between with a real pointer: at the
// left a macro list and a button that takes drops, at the right a plain list and a disabled button.
// Says on standard error what was dropped.

#include "controls/custumwindow.h"
#include "controls/HoverButton.h"
#include "controls/pngListBox.h"
#include "platform/systemlog.h"

#include <QtWidgets/QApplication>

namespace {

constexpr int kQuickListTag = 8192;

class DragStage : public View
{
public:
    explicit DragStage(QWidget *parent) : View(parent)
    {
        addList(kMacroListTag, {0, 140, 100, 60});
        addList(kQuickListTag, {100, 140, 100, 60})->enableDragDrop(false);
        addButton({10, 30, 80, 40});
        addButton({110, 30, 80, 40})->setDisable(true);
    }

private:
    pngListBox *addList(int tag, UpRect frame)
    {
        auto *const list = new pngListBox(this, frame);
        list->setTag(tag);
        list->enableDragDrop(true);
        for (const char *text : {"first", "second", "third"})
            list->AddString(QLatin1String(text));
        return list;
    }
    HoverButton *addButton(UpRect frame)
    {
        auto *const button = new HoverButton(this, frame);
        button->enableDragDrop({this, &DragStage::dropped});
        return button;
    }
    void dropped(HoverButton *button) { systemLog("dropped %d", button->getDropindex()); }
};

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    custumwindow window({100, 100, 200, 200}, nullptr);
    window.setWindowTitle(QStringLiteral("Drag Stage"));
    window.setContentView(new DragStage(&window));
    window.show();
    return QApplication::exec();
}
