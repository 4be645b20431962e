#pragma once

#include "platform/action.h"
#include "platform/focusframe.h"
#include "platform/view.h"

#include <QtWidgets/QAbstractButton>

/// A button drawn from pictures: a normal, a hover, a pressed and a disabled face, with a caption
/// on top, a right-click action and a drop target. A checkable one (QAbstractButton::setCheckable)
/// stays pressed while it is on.
///
/// Faces: the normal one, while the pointer is over an enabled button the hover one, while it is
/// pressed or on the alternate one; disabled, the disabled one. A face that was never set leaves
/// the face as it was.
class HoverButton : public ViewOf<QAbstractButton>
{
public:
    explicit HoverButton(QWidget *parent, UpRect frame = {});

    /// Each keeps a private copy of the whole picture. The normal one is shown at once.
    void setNormalImage(const SkinImage &image);
    void setHoverImage(const SkinImage &image);
    void setAlternateImage(const SkinImage &image);
    void setDisableImage(const SkinImage &image);

    /// The caption: centred, cut at its end, 10 points; orange, white while pressed or on, grey
    /// while disabled.
    void setCaptionText(const QString &text);
    QString captionText() const { return m_caption; }
    /// How wide the field of an arrow at the right of its faces is, in points: the caption stands
    /// in what that leaves. 0 at first.
    void setArrowWidth(int width);
    /// Where the caption stands; a longer one is cut.
    UpRect captionRect() const;

    /// Sent with the button after a left click, or the space key.
    void setAction(const Action<HoverButton *> &action);
    /// Sent with the button on a right press, or the menu key. Kept only while the button is
    /// enabled: on a disabled one the call does nothing.
    void setRightAction(const Action<HoverButton *> &action);
    /// Lets texts be dropped on the button; the action is sent with the button after a drop.
    void enableDragDrop(const Action<HoverButton *> &action);
    /// The number last dropped: the text read as an integer, 0 for a text that is none.
    int getDropindex() const { return m_DropIndex; }

    /// A disabled button ignores clicks, right clicks and drops.
    void setDisable(bool disable);

    /// Whether it shows that it has the keyboard: a player has brought it here by key.
    bool showsKeyboard() const { return m_focusFrame.isShown(*this); }

    void setTag(int tag) { m_tag = tag; }
    int tag() const { return m_tag; }

protected:
    void drawRect(Canvas &canvas) override;
    void rightMouseDown(const ViewMouseEvent &event) override;
    void focusInEvent(QFocusEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    bool event(QEvent *event) override;

private:
    void showFace(const SkinImage &image);
    void showHover();
    void showNormal();
    void setDropTarget(bool isTarget);
    bool isPressedOrOn() const { return isDown() || isChecked(); }

    SkinImage m_shown; ///< the face of a button that is neither pressed nor on
    SkinImage HoverImage;
    SkinImage NormalImage;
    SkinImage AlternateImage;
    SkinImage DisableImage;
    QString m_caption;
    int m_arrowWidth = 0;
    Action<HoverButton *> m_action;
    Action<HoverButton *> RightAction;
    Action<HoverButton *> GetDragAction;
    FocusFrame m_focusFrame;
    bool bCanDragDrop = false;
    bool m_isDropTarget = false;   ///< a drag that it takes is over it
    bool m_bEnableDisable = false; ///< true = disabled
    int m_DropIndex = 0;
    int m_tag = 0;
};
