#pragma once

#include "platform/canvas.h"
#include "platform/uprect.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QPaintEvent>
#include <QtWidgets/QWidget>

/// A mouse event in a view's own upward coordinates.
struct ViewMouseEvent
{
    UpPoint position;       ///< in the view; y is the view's height at its top edge
    UpPoint windowPosition; ///< in the view's window
    int clickCount = 1;     ///< 2 for the second press of a double click
    QMouseEvent *event = nullptr;
};

/// What a window or view is placed in: its parent view, or for a window the screens, whose origin
/// is the lower left corner of the primary one.
UpHost hostOf(const QWidget &view);

/// A point of `view` on the screens.
UpPoint onScreen(const QWidget &view, UpPoint point);

/// Something that remembers its upward frame and can be put there again.
class Placed
{
public:
    /// Moves and resizes the view; a window, on the screen.
    void setFrame(UpRect frame)
    {
        m_frame = frame;
        place();
    }
    /// Puts the view where its frame says: its host has another height.
    virtual void place() = 0;

protected:
    ~Placed() = default;

    UpRect m_frame;
};

/// Any widget that is placed: the same object as what it is and as what is moved.
struct PlacedWidget
{
    PlacedWidget() = default;
    template <class Control>
    explicit PlacedWidget(Control *control) : widget(control), placed(control)
    {
    }

    QWidget *widget = nullptr;
    Placed *placed = nullptr;
};

/// Puts every placed child of `view` where its upward frame says; called when its height changes.
void placeChildren(const QWidget &view);

/// The toolkit class `Base`, placed by an upward frame.
template <class Base>
class Framed : public Base, public Placed
{
public:
    using Base::Base;

    /// Where it is; a window, on the screen.
    UpRect frame() const { return hostOf(*this).up(this->geometry()); }

    void place() final { this->setGeometry(hostOf(*this).down(m_frame)); }
};

/// The toolkit class `Base` as a view: painting and input arrive at the virtuals below, in upward
/// coordinates. Each does by default what `Base` does; an override that does not call it keeps the
/// event to itself.
template <class Base>
class ViewOf : public Framed<Base>
{
public:
    using Framed<Base>::Framed;

    /// Called once, when the whole interface stands.
    virtual void awakeFromNib() {}

protected:
    virtual void drawRect(Canvas & /*canvas*/) {}
    virtual void mouseDown(const ViewMouseEvent &event) { Base::mousePressEvent(event.event); }
    virtual void rightMouseDown(const ViewMouseEvent &event) { Base::mousePressEvent(event.event); }
    virtual void mouseUp(const ViewMouseEvent &event) { Base::mouseReleaseEvent(event.event); }
    virtual void mouseDragged(const ViewMouseEvent &event) { Base::mouseMoveEvent(event.event); }
    virtual void keyDown(QKeyEvent *event) { Base::keyPressEvent(event); }
    virtual void keyUp(QKeyEvent *event) { Base::keyReleaseEvent(event); }
    /// A modifier key went down or up.
    virtual void flagsChanged(QKeyEvent *event) { event->ignore(); }

    void paintEvent(QPaintEvent *event) override
    {
        Canvas canvas(*this, event->rect());
        drawRect(canvas);
    }
    void resizeEvent(QResizeEvent *event) override
    {
        Base::resizeEvent(event);
        placeChildren(*this);
    }
    void mousePressEvent(QMouseEvent *event) override { press(event, 1); }
    void mouseDoubleClickEvent(QMouseEvent *event) override { press(event, 2); }
    void mouseReleaseEvent(QMouseEvent *event) override
    {
        if (event->button() == Qt::LeftButton)
            mouseUp(upward(event, 1));
        else
            Base::mouseReleaseEvent(event);
    }
    void mouseMoveEvent(QMouseEvent *event) override
    {
        if (event->buttons() & Qt::LeftButton)
            mouseDragged(upward(event, 1));
        else
            Base::mouseMoveEvent(event);
    }
    void keyPressEvent(QKeyEvent *event) override
    {
        isModifier(event) ? flagsChanged(event) : keyDown(event);
    }
    void keyReleaseEvent(QKeyEvent *event) override
    {
        isModifier(event) ? flagsChanged(event) : keyUp(event);
    }

private:
    ViewMouseEvent upward(QMouseEvent *event, int clickCount) const
    {
        const QPoint position = event->position().toPoint();
        const QWidget *const window = this->window();
        return {UpHost(this->height()).up(position),
                UpHost(window->height()).up(this->mapTo(window, position)), clickCount, event};
    }
    void press(QMouseEvent *event, int clickCount)
    {
        if (event->button() == Qt::LeftButton)
            mouseDown(upward(event, clickCount));
        else if (event->button() == Qt::RightButton)
            rightMouseDown(upward(event, clickCount));
        else
            Base::mousePressEvent(event);
    }
    static bool isModifier(const QKeyEvent *event)
    {
        switch (event->key()) {
        case Qt::Key_Shift:
        case Qt::Key_Control:
        case Qt::Key_Meta:
        case Qt::Key_Alt:
        case Qt::Key_AltGr:
        case Qt::Key_CapsLock:
            return true;
        default:
            return false;
        }
    }
};

using View = ViewOf<QWidget>;
