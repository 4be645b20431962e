#include "skintable.h"
#include "support/lightness.h"
#include "support/suite.h"

#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtGui/QRegion>

/// Whether the texts that are part of a drawing can be read in each of its states. The program's
/// pictures are held against what is rendered without texts.
class tst_drawntexts : public QObject
{
    Q_OBJECT

public:
    static void initMain() { qputenv("QT_SCALE_FACTOR", "2"); }

private Q_SLOTS:
    void everyTextCanBeRead_data();
    void everyTextCanBeRead();
    void aFaintTextIsFound();
};

namespace {

constexpr double kLeastContrast = 4.5;
constexpr std::size_t kWordsOfMain = 15; ///< five of the title, ten profiles
constexpr int kScale = 2;
constexpr int kGap = 6;  ///< pixels between two letters of a word, at most
constexpr int kSeen = 8; ///< levels

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    return file.readAll();
}

void putBytes(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
}

QString source(const QString &name)
{
    return QStringLiteral(SKIN_SOURCES "/") + name;
}

void render(const QStringList &options, const QString &drawing, const QString &picture)
{
    if (QProcess::execute(QStringLiteral(RSVG_CONVERT),
                          options + QStringList{QStringLiteral("-o"), picture, drawing}))
        qFatal("cannot render %s", qPrintable(drawing));
}

/// The drawings of the skin without their texts, and the pictures and places in them that the build
/// has made, in a folder of their own.
class TextlessDrawings
{
public:
    TextlessDrawings()
    {
        for (const QString &name : QDir(source({})).entryList({QStringLiteral("*.svg")}))
            putBytes(path(name), withoutTexts(bytesOf(source(name))));
        const QDir made(QStringLiteral(SKIN_FOLDER "/../drawings"));
        for (const QString &name :
             made.entryList({QStringLiteral("*.png"), QStringLiteral("*-places.svg")}))
            putBytes(path(name), bytesOf(made.filePath(name)));
    }

    static QByteArray withoutTexts(QByteArray drawing)
    {
        return drawing.replace("<text", "<text visibility='hidden'");
    }
    /// As the build renders it.
    QImage rendered(const PictureRow &row)
    {
        const QString svg = path(row.drawing + QLatin1String(".svg"));
        const QString ground = row.drawing + QLatin1String("-ground.png");
        if (QFile::exists(path(ground)) && !m_grounds.contains(ground)) {
            m_grounds << ground;
            render(
                {styles(QStringLiteral("ground")), QStringLiteral("-z"), QString::number(kScale)},
                svg, path(ground));
        }
        return renderedAt(svg, {styles(row.state)}, row.size);
    }
    /// A drawing of its own.
    QImage rendered(const QByteArray &drawing, QSize size) const
    {
        const QString svg = path(QStringLiteral("own.svg"));
        putBytes(svg, drawing);
        return renderedAt(svg, {}, size);
    }

private:
    QImage renderedAt(const QString &svg, const QStringList &options, QSize size) const
    {
        const QString png = path(QStringLiteral("state.png"));
        render(options + QStringList{QStringLiteral("-w"), QString::number(kScale * size.width()),
                                     QStringLiteral("-h"), QString::number(kScale * size.height())},
               svg, png);
        return QImage(png).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    }
    static QString styles(const QString &state)
    {
        return QStringLiteral("--stylesheet=") + source(state + QLatin1String(".css"));
    }
    QString path(const QString &name) const { return m_folder.filePath(name); }

    const QTemporaryDir m_folder;
    QStringList m_grounds; ///< those that have no texts any more
};

TextlessDrawings &drawings()
{
    static TextlessDrawings made;
    return made;
}

/// A drawing with its texts and without.
struct Pair
{
    QImage with;
    QImage without;

    bool differAt(int x, int y) const
    {
        return stepBetween(with.pixel(x, y), without.pixel(x, y)) > kSeen;
    }
};

/// The parts that hold a word each.
std::vector<QRect> wordsOf(const Pair &pair)
{
    QRegion grown;
    for (int y = 0; y < pair.with.height(); ++y) {
        for (int x = 0; x < pair.with.width(); ++x) {
            if (pair.differAt(x, y))
                grown += QRect(x - kGap / 2, y - kGap / 2, kGap + 1, kGap + 1);
        }
    }
    std::vector<QRect> words;
    for (QRect part : grown) {
        // What touches another part joins it, and so may join others through it.
        for (auto word = words.begin(); word != words.end();) {
            if (!word->adjusted(-1, -1, 1, 1).intersects(part)) {
                ++word;
                continue;
            }
            part |= *word;
            words.erase(word);
            word = words.begin();
        }
        words.push_back(part);
    }
    return words;
}

/// Of the ink, which is where the pictures differ most, on all that lies below the letters.
double contrastOf(const Pair &pair, const QRect &word)
{
    const QRect part = word & pair.with.rect();
    const auto differenceAt = [&](int x, int y) {
        return std::abs(luminance(pair.with.pixel(x, y)) - luminance(pair.without.pixel(x, y)));
    };
    const auto forEachPixel = [&](const auto &visit) {
        for (int y = part.top(); y <= part.bottom(); ++y) {
            for (int x = part.left(); x <= part.right(); ++x)
                visit(x, y);
        }
    };
    double most = 0;
    forEachPixel([&](int x, int y) { most = std::max(most, differenceAt(x, y)); });
    double ink = 0;
    double ground = 0;
    int inked = 0;
    int covered = 0;
    forEachPixel([&](int x, int y) {
        if (pair.differAt(x, y)) {
            ground += luminance(pair.without.pixel(x, y));
            ++covered;
        }
        if (differenceAt(x, y) >= 0.8 * most) {
            ink += luminance(pair.with.pixel(x, y));
            ++inked;
        }
    });
    return contrast(ink / inked, ground / covered);
}

QStringList faintWords(const Pair &pair)
{
    QStringList faint;
    for (const QRect &word : wordsOf(pair)) {
        if (const double found = contrastOf(pair, word); found < kLeastContrast)
            faint << QStringLiteral("at %1,%2: %3")
                         .arg(word.center().x() / kScale)
                         .arg(word.center().y() / kScale)
                         .arg(found, 0, 'f', 1);
    }
    return faint;
}

/// Whether a drawing, or one that it takes something from, has texts.
bool hasTexts(const QString &drawing)
{
    const QByteArray svg = bytesOf(source(drawing + QLatin1String(".svg")));
    if (svg.contains("<text"))
        return true;
    static const QRegularExpression reference(QStringLiteral("href=\"([a-z]+)\\.svg"));
    auto found = reference.globalMatch(QString::fromUtf8(svg));
    while (found.hasNext()) {
        if (hasTexts(found.next().captured(1)))
            return true;
    }
    return false;
}

std::vector<PictureRow> rowsWithTexts()
{
    std::vector<PictureRow> rows = pictureRows();
    std::erase_if(rows, [](const PictureRow &row) { return !hasTexts(row.drawing); });
    return rows;
}

} // namespace

void tst_drawntexts::everyTextCanBeRead_data()
{
    QTest::addColumn<int>("index");
    const std::vector<PictureRow> rows = rowsWithTexts();
    QVERIFY(std::ranges::count(rows, QStringLiteral("main"), &PictureRow::drawing) == 4);
    for (int index = 0; index < int(rows.size()); ++index)
        QTest::newRow(qPrintable(rows[std::size_t(index)].name)) << index;
}

void tst_drawntexts::everyTextCanBeRead()
{
    QFETCH(const int, index);
    const PictureRow row = rowsWithTexts()[std::size_t(index)];
    const Pair pair{skinPixels(row.name), drawings().rendered(row)};
    if (row.drawing == QLatin1String("main"))
        QVERIFY(wordsOf(pair).size() >= kWordsOfMain);
    const QStringList faint = faintWords(pair);
    QVERIFY2(faint.isEmpty(), qPrintable(faint.join(u'\n')));
}

void tst_drawntexts::aFaintTextIsFound()
{
    const QByteArray drawing = "<svg xmlns='http://www.w3.org/2000/svg' width='80' height='40'>"
                               "<rect width='80' height='40' fill='#222'/>"
                               "<text x='10' y='30' font-size='20' fill='#ccc'>1</text>"
                               "<text x='50' y='30' font-size='20' fill='#555'>2</text></svg>";
    const QSize size(80, 40);
    const Pair pair{drawings().rendered(drawing, size),
                    drawings().rendered(TextlessDrawings::withoutTexts(drawing), size)};
    QCOMPARE(wordsOf(pair).size(), std::size_t{2});
    const QStringList faint = faintWords(pair);
    QCOMPARE(faint.size(), 1);
    QVERIFY(faint.front().startsWith(QLatin1String("at 5")));
}

KYR_GUI_TEST(tst_drawntexts)
#include "tst_drawntexts.moc"
