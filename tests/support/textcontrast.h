#pragma once

#include "support/lightness.h"
#include "support/textrecorder.h"

#include <QtCore/QStringList>

/// How well a text can be read on what lies below it.
struct TextContrast
{
    double mean = 0;
    double worst = 0; ///< what all but a twentieth of its pixels have at least

    static constexpr double kLeastMean = 4.5;
    static constexpr double kLeastWorst = 3.0;

    bool isEnough() const { return mean >= kLeastMean && worst >= kLeastWorst; }
};

namespace detail {

/// Where the letters are, and what lies directly around them.
inline QImage inkOf(const RecordedText &text, QSize size)
{
    QImage ink(size, QImage::Format_Grayscale8);
    ink.fill(Qt::black);
    QPainter painter(&ink);
    painter.setClipRegion(text.clip);
    painter.setPen(QPen(Qt::white, 2 * qApp->devicePixelRatio()));
    painter.setBrush(Qt::white);
    painter.drawPath(text.path);
    return ink;
}

/// A colour that may be see-through, on a ground that is not.
inline QRgb blended(const QColor &colour, QRgb ground)
{
    const float share = colour.alphaF();
    const auto mix = [share](int over, int below) {
        return qRound(float(over) * share + float(below) * (1 - share));
    };
    return qRgb(mix(colour.red(), qRed(ground)), mix(colour.green(), qGreen(ground)),
                mix(colour.blue(), qBlue(ground)));
}

} // namespace detail

/// Of a text on a picture; of one that does not show, the best.
inline TextContrast contrastOf(const RecordedText &text, const QImage &picture)
{
    const QImage ink = detail::inkOf(text, picture.size());
    const QRect around =
        text.path.boundingRect().toAlignedRect().adjusted(-3, -3, 3, 3) & picture.rect();
    std::vector<double> all;
    double light = 0;
    double ground = 0;
    for (int y = around.top(); y <= around.bottom(); ++y) {
        for (int x = around.left(); x <= around.right(); ++x) {
            if (qGray(ink.pixel(x, y)) < 128)
                continue;
            const QRgb below = picture.pixel(x, y);
            const double own = luminance(detail::blended(text.colour, below));
            all.push_back(contrast(own, luminance(below)));
            light += own;
            ground += luminance(below);
        }
    }
    if (all.empty())
        return {21, 21};
    const auto twentieth = all.begin() + std::ptrdiff_t(all.size() / 20);
    std::nth_element(all.begin(), twentieth, all.end());
    const double count = double(all.size());
    return {contrast(light / count, ground / count), *twentieth};
}

/// The texts of a widget that cannot be read well, and how they stand out.
inline QStringList faintTexts(const TextRecorder &shown)
{
    QStringList faint;
    for (const RecordedText &text : shown.texts()) {
        const TextContrast contrast = contrastOf(text, shown.picture());
        if (!contrast.isEnough())
            faint << QStringLiteral("\"%1\" %2 (worst %3)")
                         .arg(text.text)
                         .arg(contrast.mean, 0, 'f', 1)
                         .arg(contrast.worst, 0, 'f', 1);
    }
    return faint;
}

/// Everything that is written in a widget, a piece a line.
inline QString textsOf(const TextRecorder &shown)
{
    QStringList texts;
    for (const RecordedText &text : shown.texts())
        texts << text.text;
    return texts.join(u'\n');
}
