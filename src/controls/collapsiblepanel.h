#pragma once

#include "controls/HoverButton.h"

/// What tells one panel from another: its header and where its parts lie. Depths are counted from
/// the panel's top edge downwards.
struct PanelLook
{
    /// Where a panel's parts lie while it is collapsed, or expanded.
    struct Layout
    {
        UpRect toggle;
        UpRect content;
    };

    const char *title = "";
    int stripDepth = 0; ///< of the header strip's lower edge
    int stripHeight = 0;
    int titleDepth = 0;   ///< of the title's lower edge
    int clickDepth = 0;   ///< down to which a click expands and collapses
    bool isFilled = true; ///< black behind everything
    Layout collapsed;
    Layout expanded;
};

/// A panel of the side bar: a header with a plus or minus, and below it a content that shows while
/// the panel is expanded. Its owner gives it its frame: a panel only says when a player wants it
/// expanded or collapsed.
class CollapsiblePanel : public View
{
public:
    /// Collapsed. `look` must outlive the panel; `noticeAction` is sent with the panel after a
    /// player has expanded or collapsed it.
    CollapsiblePanel(const PanelLook &look, QWidget *parent, UpRect frame,
                     const Action<CollapsiblePanel *> &noticeAction);

    /// Expands or collapses without telling anybody.
    void SetExpanded(bool expanded);
    /// Whether it is expanded; at first it is not.
    bool GetExpanded() const { return bExpanded; }

    /// The number by which its owner knows it; 0 at first.
    void setTag(int tag) { _tag = tag; }
    int tag() const { return _tag; }

    /// A click on the plus or minus, or on the header: the other state, which is told.
    void buttonAction(HoverButton *sender);

protected:
    /// What shows while the panel is expanded, a child of the panel. Call it once.
    template <class Content>
    void setContent(Content *content)
    {
        m_content = PlacedWidget(content);
        ExpandView(bExpanded);
    }
    /// Lays the panel's parts out for one state.
    virtual void ExpandView(bool expand);

    void drawRect(Canvas &canvas) override;
    void mouseUp(const ViewMouseEvent &event) override;

private:
    HoverButton *AddCheckButton(UpRect frame, const Action<HoverButton *> &setAction);
    void passKeyboardOn();

    const PanelLook &m_look;
    bool bExpanded = false;
    HoverButton *btnExpand;
    int _tag = 0;
    Action<CollapsiblePanel *> _noticeAction;
    PlacedWidget m_content;
};
