#pragma once

#include "controls/buttonrow.h"
#include "controls/HoverButton.h"
#include "controls/pngProgressBar.h"

/// A window drawn in each state of its controls, whose faces are cut from these pictures. Where
/// there is no picture its controls have no such face.
struct Faces
{
    SkinImage normal = {};
    SkinImage over = {};
    SkinImage down = {};
    SkinImage disabled = {};
};

/// Gives a control what the pictures show at `frame`.
void setFaces(HoverButton &button, const Faces &faces, UpRect frame);
/// A bar is the normal picture, the part up to its position the hover one.
void setFaces(pngProgressBar &bar, const Faces &faces, UpRect frame);

/// A button in `parent`, which owns it, drawn from two pictures of its own, by name: at rest, and
/// pressed or on. It has no action yet.
HoverButton *makePictureButton(QWidget *parent, const ButtonRow &row, const char *normal,
                               const char *alternate);
/// The same as a box that a click checks and unchecks.
HoverButton *makeCheckBox(QWidget *parent, const ButtonRow &row, const char *normal,
                          const char *alternate);

/// A button in `parent`, which owns it, with its faces cut at its frame. It has no action yet.
HoverButton *makeButton(QWidget *parent, const ButtonRow &row, const Faces &faces);

/// A bar in `parent`, which owns it, with its faces cut at its frame. It has no action yet; the
/// other parameters are those of setDirStyle() and setposRange().
pngProgressBar *makeBar(QWidget *parent, const ButtonRow &row, int dirStyle, double minValue,
                        double maxValue, const Faces &faces);
