#include "controls/faces.h"

void setFaces(HoverButton &button, const Faces &faces, UpRect frame)
{
    button.setNormalImage(SkinImage::CopyImagefromrect(faces.normal, frame));
    button.setHoverImage(SkinImage::CopyImagefromrect(faces.over, frame));
    button.setAlternateImage(SkinImage::CopyImagefromrect(faces.down, frame));
    button.setDisableImage(SkinImage::CopyImagefromrect(faces.disabled, frame));
}

void setFaces(pngProgressBar &bar, const Faces &faces, UpRect frame)
{
    bar.setBKImage(SkinImage::CopyImagefromrect(faces.normal, frame));
    bar.setOverImage(SkinImage::CopyImagefromrect(faces.over, frame));
}

HoverButton *makeButton(QWidget *parent, const ButtonRow &row, const Faces &faces)
{
    auto *const button = new HoverButton(parent, row.frame);
    button->setObjectName(QLatin1String(row.name));
    button->setAccessibleName(QLatin1String(row.description));
    button->setTag(row.tag);
    button->setCaptionText(QLatin1String(row.caption));
    setFaces(*button, faces, row.frame);
    return button;
}
