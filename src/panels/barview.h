#pragma once

#include "app/windowcontroll.h"
#include "controls/HoverButton.h"
#include "platform/view.h"

/// What tells one bar from another: its pictures by name, its title and its handle.
struct BarLook
{
    /// The handle's faces in one state of the bar.
    struct Handle
    {
        const char *normal = "";
        const char *lit = ""; ///< under the pointer and pressed
    };

    const char *background = "";
    const char *title = "";
    UpRect titleRect;
    int toggleTag = 0;
    UpRect toggleRect;
    const char *toggleDescription = ""; ///< for assistive technology
    Handle open;
    Handle closed;
};

/// The content of a bar: its background and title, and the handle that opens and closes it.
class BarView : public View
{
public:
    /// `look` must outlive the view.
    BarView(const BarLook &look, QWidget *parent);

    /// Builds the view, closed. The controller, which outlives it, is already set.
    void awakeFromNib() override;
    void setWindowControll(windowcontroll *controll) { pWindowControll = controll; }

    /// A left click on a control, told apart by its tag.
    void buttonAction(HoverButton *sender);
    /// The desktop asks the bar's window to close: an open bar closes to its handle, which stays.
    void closeRequested();
    /// The handle's faces of the open bar.
    void SetMaxToggleImage();
    /// The handle's faces of the closed bar.
    void SetMinToggleImage();

protected:
    void drawRect(Canvas &canvas) override;

    /// Asks the controller to open or close this bar.
    virtual void toggleBar() = 0;
    /// Asks the controller to close this bar.
    virtual void closeBar() = 0;
    /// Whether the controller reports this bar closed.
    virtual bool isBarMin() const = 0;
    /// Where the background's lower left corner lies.
    virtual UpPoint backgroundOrigin() const { return {}; }

    const SkinImage &background() const { return BKImage; }
    windowcontroll &controller() const { return *pWindowControll; }
    HoverButton &toggleButton() const { return *btnToggle; }

private:
    void setToggleImages(const BarLook::Handle &handle);

    const BarLook &m_look;
    SkinImage BKImage;
    HoverButton *btnToggle;
    windowcontroll *pWindowControll = nullptr;
};
