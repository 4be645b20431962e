#include "controls/collapsiblepanel.h"

#include "controls/faces.h"
#include "platform/keywindow.h"

namespace {

constexpr QColor kStrip(21, 21, 21);
constexpr int kStripMargin = 2;
constexpr int kTitleLeft = 168; // from the right edge
constexpr int kTitleHeight = 15;
constexpr int kTitleSize = 11;

} // namespace

CollapsiblePanel::CollapsiblePanel(const PanelLook &look, QWidget *parent, UpRect frame,
                                   const Action<CollapsiblePanel *> &noticeAction)
    : View(parent),
      m_look(look),
      btnExpand(AddCheckButton(look.collapsed.toggle, {this, &CollapsiblePanel::buttonAction})),
      _noticeAction(noticeAction)
{
    setFrame(frame);
    // A press on a panel is never one on the window behind, which it would drag.
    setAttribute(Qt::WA_NoMousePropagation);
}

HoverButton *CollapsiblePanel::AddCheckButton(UpRect frame, const Action<HoverButton *> &setAction)
{
    const ButtonRow row{.name = "btnExpand", .frame = frame, .description = m_look.title};
    HoverButton *const button = makeCheckBox(this, row, "add", "minus");
    button->setAction(setAction);
    return button;
}

void CollapsiblePanel::SetExpanded(bool expanded)
{
    bExpanded = expanded;
    ExpandView(expanded);
}

void CollapsiblePanel::buttonAction(HoverButton * /*sender*/)
{
    SetExpanded(!bExpanded);
    _noticeAction.send(this);
}

void CollapsiblePanel::ExpandView(bool expand)
{
    const PanelLook::Layout &layout = expand ? m_look.expanded : m_look.collapsed;
    btnExpand->setChecked(expand);
    btnExpand->setFrame(layout.toggle);
    if (!m_content.widget)
        return;
    m_content.placed->setFrame(layout.content);
    if (!expand)
        passKeyboardOn();
    // A collapsed panel is too low to show it; hidden, the tab key passes it by.
    m_content.widget->setVisible(expand);
    update();
}

/// What is about to hide gives the keyboard to the button that brings it back.
void CollapsiblePanel::passKeyboardOn()
{
    if (keyboardWithin(*m_content.widget))
        btnExpand->setFocus(Qt::OtherFocusReason);
}

void CollapsiblePanel::drawRect(Canvas &canvas)
{
    const int top = height();
    const UpRect strip{kStripMargin, top - m_look.stripDepth, width() - 2 * kStripMargin,
                       m_look.stripHeight};
    if (m_look.isFilled)
        canvas.fill(canvas.bounds(), Qt::black);
    canvas.fill(strip, kStrip);
    canvas.fill({strip.x, strip.y + strip.height - 1, strip.width, 1}, kBevel);
    canvas.DrawMyTextwithColor(
        QLatin1String(m_look.title),
        {width() - kTitleLeft, top - m_look.titleDepth, width() - 2 * kStripMargin, kTitleHeight},
        kWhite, TextAlign::Left, kTitleSize);
}

void CollapsiblePanel::mouseUp(const ViewMouseEvent &event)
{
    const int depth = height() - event.position.y;
    if (rect().contains(event.event->position().toPoint()) && depth <= m_look.clickDepth)
        buttonAction(btnExpand);
}
