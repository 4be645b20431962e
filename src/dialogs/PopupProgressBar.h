#pragma once

#include "controls/pngProgressBar.h"
#include "controls/shapedcontent.h"
#include "dialogs/popupcontrols.h"
#include "platform/view.h"

/// The insides of the window that shows the progress of an on-board write.
class PopupProgressBar : public View, public ShapedContent
{
public:
    static constexpr int kWidth = popup::kWidth;
    static constexpr int kHeight = popup::kHeight;

    explicit PopupProgressBar(QWidget *parent);

    /// Shows a progress of 0..100 per cent; other values are taken as the nearest of these.
    void SetProgressPos(int pos);
    int progressPos() const { return m_iPos; }
    const SkinImage &background() const override { return BKImage; }

protected:
    void drawRect(Canvas &canvas) override;

private:
    SkinImage BKImage;
    pngProgressBar *WriteToDeviceBar;
    int m_iPos = 0;
};
