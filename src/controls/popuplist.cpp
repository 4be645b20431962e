#include "controls/popuplist.h"

#include "platform/systemlog.h"

#include <QtGui/QScreen>
#include <QtWidgets/QApplication>

#include <algorithm>

namespace {

/// Where the loss of the keyboard is told before the press that causes it, the press is told at
/// most this much later, in milliseconds. A player's next press takes longer.
constexpr int kPressDelay = 200;

class PopupWindow final : public custumwindow
{
public:
    using custumwindow::custumwindow;
};

bool isOtherPopup(const QWidget *window, const QWidget *own)
{
    return window != own && window->isVisible() &&
           dynamic_cast<const PopupWindow *>(window) != nullptr;
}

UpRect onScreens(const QWidget &view, UpRect rect)
{
    const UpPoint origin = onScreen(view, rect.origin());
    return {origin.x, origin.y, rect.width, rect.height};
}

pngListBox *makeList(const PopupList::Rows &rows)
{
    auto *const list = new pngListBox(nullptr);
    list->setObjectName(QStringLiteral("pListboxView"));
    list->setTag(rows.tag);
    list->setChangeAction(rows.changeAction);
    for (const char *text : rows.texts)
        list->AddString(QLatin1String(text));
    if (rows.selected >= 0 && rows.selected < list->getCount())
        list->setcursel(rows.selected);
    return list;
}

} // namespace

UpRect popupFrame(UpRect button, UpRect below, UpRect visible)
{
    const int gap = button.y - (below.y + below.height);
    const UpRect above{below.x, button.y + button.height + gap, below.width, below.height};
    const bool fitsBelow = below.y >= visible.y;
    const bool fitsAbove = above.y + above.height <= visible.y + visible.height;
    return !fitsBelow && fitsAbove ? above : below;
}

bool PopupList::isOpen() const
{
    // The desktop may have closed a window that never had the keyboard to lose.
    return bListboxPresent && pListbox && pListbox->isVisible();
}

void PopupList::attachTo(QAbstractButton &button)
{
    connect(&button, &QAbstractButton::pressed, this, &PopupList::pressed);
}

void PopupList::pressed()
{
    // The desktop may tell of the press before or after it has taken the keyboard away for it.
    m_isClosingPress = isOpen() || hasJustLost();
    m_sinceLost.invalidate();
}

bool PopupList::hasJustLost() const
{
    return m_sinceLost.isValid() && !m_sinceLost.hasExpired(kPressDelay);
}

/// Of a list: the press that took the keyboard away may still have to be told.
void PopupList::keyboardLost(QWidget &keyWindow)
{
    m_sinceLost.start();
    m_keyWindow = &keyWindow;
    QApplication::instance()->installEventFilter(this);
}

bool PopupList::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress) {
        QApplication::instance()->removeEventFilter(this);
        // The toolkit gives the keyboard to the pressed window where that has lost it meanwhile.
        if (m_keyWindow && hasJustLost() && !isAnotherOpen())
            m_keyWindow->activateWindow();
    }
    return QObject::eventFilter(watched, event);
}

void PopupList::open(const HoverButton &button, const Rows &rows,
                     const Action<PopupContent *> &closeAction)
{
    pngListBox *const list = makeList(rows);
    const UpRect at = button.frame();
    const int height = list->getCount() * list->itemHeight();
    open(button,
         {.windowName = "pListbox",
          .title = rows.title,
          .view = list,
          .frame = {at.x, at.y - height, at.width, height},
          .reason = button.showsKeyboard() ? Qt::TabFocusReason : Qt::OtherFocusReason},
         closeAction);
}

void PopupList::open(const QWidget &button, const Content &content,
                     const Action<PopupContent *> &closeAction)
{
    const QWidget &view = *button.parentWidget();
    const QScreen &screen = *view.window()->screen();
    const UpRect at = onScreens(view, hostOf(button).up(button.geometry()));
    const UpRect frame =
        popupFrame(at, onScreens(view, content.frame), visibleFrame(*view.window(), screen));
    pListbox = new PopupWindow(frame, view.window());
    pListbox->setAttribute(Qt::WA_DeleteOnClose);
    pListbox->setObjectName(QLatin1String(content.windowName));
    pListbox->setWindowTitle(QLatin1String(content.title));
    pListboxView = content.view;
    pListboxView->setFramed(true);
    pListboxView->setAccessibleName(QLatin1String(content.title));
    pListbox->setContentView(pListboxView);
    pListbox->makeKeyFor(*pListboxView, content.reason);
    m_closeAction = closeAction;
    pListboxView->observeWindowKeyChangeStart(closeAction);
    bListboxPresent = true;
}

void PopupList::chosen()
{
    // Later: the list is still handling the click that brought us here.
    performDeferred(this, &PopupList::sendClose, pListbox);
}

void PopupList::sendClose(const QPointer<custumwindow> &chosenIn)
{
    // By now another list may have been opened, which stays.
    if (!chosenIn || chosenIn != pListbox || !bListboxPresent)
        return;
    m_secondClicks.arm(pListboxView->releasedAt());
    m_closeAction.send(pListboxView);
}

void PopupList::close(QWidget &keyWindow)
{
    if (!bListboxPresent)
        return;
    systemLog("CloseListBox");
    if (pListboxView)
        pListboxView->observeWindowKeyChangeStop();
    // The press that takes the keyboard away may have been told before.
    if (QApplication::activeWindow() != pListbox && !m_isClosingPress)
        keyboardLost(keyWindow);
    // While the list still stands: without it no window of the program would have the keyboard.
    giveKeyboardTo(keyWindow);
    if (pListbox)
        pListbox->close();
    bListboxPresent = false;
}

/// Another list that is open, though perhaps not active yet, would close if it lost the keyboard.
bool PopupList::isAnotherOpen() const
{
    const auto isOther = [this](const QWidget *window) { return isOtherPopup(window, pListbox); };
    return std::ranges::any_of(QApplication::topLevelWidgets(), isOther);
}

void PopupList::giveKeyboardTo(QWidget &keyWindow) const
{
    if (isAnotherOpen())
        return;
    // When the desktop has closed the list, no window of the program has the keyboard any more.
    const bool closedByDesktop = pListbox && pListbox->isHidden();
    closedByDesktop ? keyWindow.activateWindow() : makeKeyWindow(keyWindow);
}
