#include "macro/textcells.h"
#include "support/suite.h"

#include <QtGui/QFontMetrics>

/// How a line of text is broken up into cells.
class tst_textcells : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void noTextHasNoCells();
    void aCellIsAsWideAsItsCharacterRounded();
    void cellsFollowOneAnotherFromTheTopLeft();
    void aLineEndsAfterTheCellThatReachesBeyondIt();
    void aLineThatIsJustFullTakesOneMore();
    void linesLieBelowOneAnother_data();
    void linesLieBelowOneAnother();
    void aViewTooLowHasItsLinesBelowIt();
};

namespace {

constexpr int kLineEnd = 214;

int roundedWidth(QChar character)
{
    return qRound(QFontMetricsF(systemFont(11)).horizontalAdvance(character));
}

/// The places of a text in a view 140 high.
std::vector<UpRect> placesOf(const QString &text)
{
    std::vector<UpRect> places;
    for (const TextCell &cell : layOutCells(text, 140, 15))
        places.push_back(cell.place);
    return places;
}

/// A text that is exactly as wide as a line: so many wide letters, then so many narrow ones.
QString fullLine()
{
    for (const char *letters : {"Wi", "Ml", "A1", "B.", "mf"}) {
        const QChar wide = QLatin1Char(letters[0]);
        const QChar narrow = QLatin1Char(letters[1]);
        for (int count = 1; count * roundedWidth(wide) < kLineEnd; ++count) {
            const int rest = kLineEnd - count * roundedWidth(wide);
            if (rest % roundedWidth(narrow) == 0)
                return QString(count, wide) + QString(rest / roundedWidth(narrow), narrow);
        }
    }
    qFatal("no letters fill a line");
}

} // namespace

void tst_textcells::noTextHasNoCells()
{
    QVERIFY(layOutCells({}, 140, 15).empty());
}

void tst_textcells::aCellIsAsWideAsItsCharacterRounded()
{
    const auto text = QStringLiteral("AiW|^(100ms)\\`.");
    const auto cells = layOutCells(text, 140, 15);
    QCOMPARE(cells.size(), static_cast<std::size_t>(text.size()));
    for (std::size_t at = 0; at < cells.size(); ++at) {
        const QChar character = text[static_cast<qsizetype>(at)];
        QCOMPARE(cells[at].character, character);
        QCOMPARE(cells[at].place.width, roundedWidth(character));
        QCOMPARE(cells[at].place.height, 13);
    }
    QVERIFY(roundedWidth(u'W') > roundedWidth(u'i'));
}

void tst_textcells::cellsFollowOneAnotherFromTheTopLeft()
{
    const auto places = placesOf(QStringLiteral("AWi"));
    QVERIFY(places[0] == (UpRect{0, 125, roundedWidth(u'A'), 13}));
    QVERIFY(places[1] == (UpRect{roundedWidth(u'A'), 125, roundedWidth(u'W'), 13}));
    const int both = roundedWidth(u'A') + roundedWidth(u'W');
    QVERIFY(places[2] == (UpRect{both, 125, roundedWidth(u'i'), 13}));
}

void tst_textcells::aLineEndsAfterTheCellThatReachesBeyondIt()
{
    const auto places = placesOf(QStringLiteral("Pagedown|(1000ms)^").repeated(20));
    int lines = 1;
    for (std::size_t next = 1; next < places.size(); ++next) {
        const UpRect &place = places[next - 1];
        const int end = place.x + place.width;
        const bool isNewLine = end > kLineEnd;
        QCOMPARE(places[next].x, isNewLine ? 0 : end);
        QCOMPARE(places[next].y, isNewLine ? place.y - 15 : place.y);
        lines += isNewLine ? 1 : 0;
    }
    QVERIFY(lines > 5);
}

void tst_textcells::aLineThatIsJustFullTakesOneMore()
{
    const QString full = fullLine();
    const auto places = placesOf(full + QStringLiteral("WWi"));
    const auto end = static_cast<std::size_t>(full.size());
    QVERIFY(places[end] == (UpRect{kLineEnd, 125, roundedWidth(u'W'), 13}));
    QVERIFY(places[end + 1] == (UpRect{0, 110, roundedWidth(u'W'), 13}));
    QVERIFY(places[end + 2] == (UpRect{roundedWidth(u'W'), 110, roundedWidth(u'i'), 13}));
}

void tst_textcells::linesLieBelowOneAnother_data()
{
    QTest::addColumn<int>("viewHeight");
    QTest::addColumn<int>("lineHeight");
    QTest::newRow("usual") << 140 << 15;
    QTest::newRow("a high view") << 4010 << 15;
    QTest::newRow("high lines") << 140 << 22;
}

void tst_textcells::linesLieBelowOneAnother()
{
    QFETCH(int, viewHeight);
    QFETCH(int, lineHeight);
    const QString line = fullLine() + QLatin1Char('W');
    const auto cells = layOutCells(line.repeated(4), viewHeight, lineHeight);
    for (std::size_t at = 0; at < cells.size(); ++at) {
        const int number = static_cast<int>(at) / static_cast<int>(line.size());
        QCOMPARE(cells[at].place.y, viewHeight - (number + 1) * lineHeight);
        QCOMPARE(cells[at].place.height, lineHeight - 2);
    }
}

void tst_textcells::aViewTooLowHasItsLinesBelowIt()
{
    const QString line = fullLine() + QLatin1Char('W');
    const auto cells = layOutCells(line.repeated(2), 18, 15);
    QCOMPARE(cells.front().place.y, 3);
    QCOMPARE(cells.back().place.y, -12);
}

KYR_GUI_TEST(tst_textcells)
#include "tst_textcells.moc"
