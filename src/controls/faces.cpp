#include "controls/faces.h"

namespace {

HoverButton *makePlainButton(QWidget *parent, const ButtonRow &row)
{
    auto *const button = new HoverButton(parent, row.frame);
    button->setObjectName(QLatin1String(row.name));
    button->setAccessibleName(QLatin1String(row.description));
    button->setTag(row.tag);
    button->setCaptionText(QLatin1String(row.caption));
    button->setArrowWidth(row.arrowWidth);
    return button;
}

} // namespace

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
    HoverButton *const button = makePlainButton(parent, row);
    setFaces(*button, faces, row.frame);
    return button;
}

HoverButton *makePictureButton(QWidget *parent, const ButtonRow &row, const char *normal,
                               const char *alternate)
{
    HoverButton *const button = makePlainButton(parent, row);
    button->setNormalImage(SkinImage::named(normal));
    button->setAlternateImage(SkinImage::named(alternate));
    return button;
}

HoverButton *makeCheckBox(QWidget *parent, const ButtonRow &row, const char *normal,
                          const char *alternate)
{
    HoverButton *const box = makePictureButton(parent, row, normal, alternate);
    box->setCheckable(true);
    return box;
}

pngProgressBar *makeBar(QWidget *parent, const ButtonRow &row, int dirStyle, double minValue,
                        double maxValue, const Faces &faces)
{
    auto *const bar = new pngProgressBar(parent, row.frame);
    bar->setObjectName(QLatin1String(row.name));
    bar->setAccessibleName(QLatin1String(row.description));
    bar->setTag(row.tag);
    bar->setDirStyle(dirStyle);
    bar->setposRange(minValue, maxValue);
    setFaces(*bar, faces, row.frame);
    return bar;
}
