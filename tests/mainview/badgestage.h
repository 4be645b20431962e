#pragma once

#include "charactersettings.h"
#include "portraitfiles.h"
#include "support/lettering.h"
#include "support/mainwindow.h"
#include "support/skinpictures.h"

inline constexpr UpRect kBadgePlace{58, 423, 141, 65};
inline constexpr UpRect kPortraitPlace{58, 423, 68, 65};

/// The texts of a badge as they are to stand in it.
struct BadgeTexts
{
    QString name;
    QString level;
    QString className;
    QString realm;
    int classSize = 11;
};

/// The main window without a character, and what its badge would look like with one.
struct BadgeStage : MainWindowStage
{
    BadgeStage() : bare(shown(view())) {}

    /// What the main view shows once the current profile has that character.
    QImage shownWith(const KnownCharacter &known)
    {
        putCharacter(CurrentProfile(), known);
        return shown(view());
    }

    QRect down(UpRect rect) const { return UpHost(view().height()).down(rect); }

    /// The main view with a badge.
    QImage expected(const QImage &portrait, const BadgeTexts &texts) const
    {
        QImage picture = bare;
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.fillRect(down(kBadgePlace), Qt::black);
        painter.drawImage(down(kPortraitPlace), portrait);
        const QColor gold(255, 180, 0);
        const auto write = [&](const QString &text, UpRect place, const QColor &colour, int size) {
            painter.setPen(colour);
            writeLine(painter, text, down(place), size);
        };
        write(texts.name, {129, 473, 70, 15}, gold, 11);
        write(texts.level, {129, 460, 70, 15}, Qt::white, 11);
        write(texts.className, {129, 445, 70, 15}, Qt::white, texts.classSize);
        // The realm has two lines.
        painter.setFont(systemFont(10));
        painter.setPen(gold);
        painter.drawText(down({129, 420, 73, 27}),
                         Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap | Qt::TextDontClip,
                         texts.realm);
        return picture;
    }

    PortraitFiles files;
    QImage bare; ///< the main view without a badge
};

/// The picture that stands in for a portrait, as it was drawn for that many pixels a point.
inline QImage unkown(int scale)
{
    return skin(scale == 1 ? "unkown" : "unkown@2x").toImage();
}
