#include "mainview/MainView.h"
#include "model/fixedtext.h"

#include <QtGui/QFontMetrics>

namespace {

constexpr UpRect kBadge{58, 423, 141, 65};
constexpr UpRect kPortrait{58, 423, kPortraitWidth, kPortraitHeight};
static_assert(kBadge.holds(kPortrait));

/// Where a click opens the character dialog, all four edges included.
constexpr int kLeft = 55;
constexpr int kRight = 200;
constexpr int kBottom = 420;
constexpr int kTop = 490;

bool isCharacterArea(UpPoint point)
{
    return point.x >= kLeft && point.x <= kRight && point.y >= kBottom && point.y <= kTop;
}

constexpr QChar kEllipsis(0x2026);

struct Line
{
    QString text;
    UpRect rect;
    QColor colour;
    int size;
};

/// Whether `text`, wrapped at words, stands within `rect` as a whole.
bool fits(const QString &text, UpRect rect, int size)
{
    constexpr int endless = 1 << 16;
    const QFontMetrics metrics(systemFont(size));
    const QSize needed =
        metrics.boundingRect(0, 0, rect.width, endless, Qt::TextWordWrap, text).size();
    return needed.width() <= rect.width && needed.height() <= rect.height;
}

/// `text`, or as much of its beginning as fits, with an ellipsis.
QString cutToFit(const QString &text, UpRect rect, int size)
{
    if (fits(text, rect, size))
        return text;
    QString cut = text;
    do
        cut.chop(1);
    while (!cut.isEmpty() && !fits(cut + kEllipsis, rect, size));
    return cut + kEllipsis;
}

/// A text that is too long is written somewhat smaller, and if that does not do, cut at its end.
void draw(Canvas &canvas, const Line &line)
{
    constexpr int mostSmaller = 2;
    int size = line.size;
    while (!fits(line.text, line.rect, size) && size > line.size - mostSmaller)
        --size;
    const QString text = cutToFit(line.text, line.rect, size);
    if (line.rect.height < 2 * line.size)
        canvas.drawLine(text, line.rect, line.colour, TextAlign::Left, size);
    else
        canvas.DrawMyTextwithColor(text, line.rect, line.colour, TextAlign::Left, size);
}

} // namespace

void MainView::mouseDown(const ViewMouseEvent &event)
{
    if (isCharacterArea(event.position))
        DisplayCharInfo();
    View::mouseDown(event);
}

void MainView::DisplayCharacterinfo(Canvas &canvas)
{
    const CharacterInfo &character = CurrentProfile().CHARACTER_INFO;
    const std::string path(GetText(character.RACE));
    const QString name = GetString(character.NAME);
    if (path.empty() || name.isEmpty() || !canvas.isExposed(kBadge))
        return;
    canvas.fill(kBadge, Qt::black);
    canvas.drawImageScaled(m_portrait.at(path, devicePixelRatioF()), kPortrait);
    const auto level = static_cast<std::int32_t>(character.LEVEL);
    const Line lines[] = {
        {name, {129, 473, 70, 15}, kGold, 11},
        {QString::asprintf("Level %d", level), {129, 460, 70, 15}, kWhite, 11},
        {GetString(character.CLASS), {129, 445, 70, 15}, kWhite, 11},
        {GetString(character.SERVER), {129, 420, 73, 27}, kGold, 10},
    };
    for (const Line &line : lines)
        draw(canvas, line);
}
