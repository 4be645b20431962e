#pragma once

#include "app/windowcontroll.h"
#include "controls/faces.h"
#include "controls/shapedcontent.h"

#include <span>

/// What tells one bar from another: its pictures by name, its title and its handle.
struct BarLook
{
    /// The handle's faces in one state of the bar.
    struct Handle
    {
        const char *normal = "";
        const char *lit = ""; ///< under the pointer and pressed
    };

    /// What is written beside a control, in gold.
    struct Label
    {
        const char *text = "";
        UpRect rect;
    };

    const char *background = "";
    const char *over = ""; ///< the picture of its controls under the pointer
    const char *down = ""; ///< and pressed
    const char *title = "";
    UpRect titleRect;
    std::span<const Label> labels = {};
    int toggleTag = 0;
    UpRect toggleRect;
    const char *toggleDescription = ""; ///< for assistive technology
    Handle open;
    Handle closed;
};

/// The content of a bar: its background, title and labels, and the handle that opens and closes it.
class BarView : public View, public ShapedContent
{
public:
    /// `look` must outlive the view.
    BarView(const BarLook &look, QWidget *parent);

    /// Starts with the bar closed. The controller, which outlives it, is already set.
    void awakeFromNib() override;
    void setWindowControll(windowcontroll *controll) { pWindowControll = controll; }

    /// A left click on a control, told apart by its tag.
    virtual void buttonAction(HoverButton *sender);
    /// The desktop asks the bar's window to close: an open bar closes to its handle, which stays.
    void closeRequested();
    /// The handle's faces of the open bar.
    void SetMaxToggleImage();
    /// The handle's faces of the closed bar.
    void SetMinToggleImage();
    const SkinImage &background() const override { return BKImage; }

protected:
    void drawRect(Canvas &canvas) override;
    void resizeEvent(QResizeEvent *event) override;

    /// Makes the view that the bar's controls belong in, `inside` the open bar: in a shut one they
    /// are hidden, and the tab key passes them by; in one that slides, clicks pass them by.
    View &addControls(UpRect inside);
    /// The bar in each state of its controls, whose faces are cut from these pictures.
    Faces faces() const;

    /// Asks the controller to open or close this bar.
    virtual void toggleBar() = 0;
    /// Asks the controller to close this bar.
    virtual void closeBar() = 0;
    /// Whether the controller reports this bar closed.
    virtual bool isBarMin() const = 0;

    windowcontroll &controller() const { return *pWindowControll; }
    HoverButton &toggleButton() const { return *btnToggle; }

private:
    void setToggleImages(const BarLook::Handle &handle);
    void showControls();

    const BarLook &m_look;
    SkinImage BKImage;
    View *m_controls = nullptr;
    HoverButton *btnToggle;
    windowcontroll *pWindowControll = nullptr;
};
