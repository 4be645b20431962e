#pragma once

#include "skintable.h"
#include "skinwindows.h"
#include "support/lightness.h"

#include <map>
#include <numeric>

/// How clearly two faces differ for an eye that sees no colour.
struct Difference
{
    double mean = 0;  ///< of the lightness, in steps of a hundred
    double share = 0; ///< of the face that differs by more than kVisible

    static constexpr double kLeastMean = 2.0;
    static constexpr double kVisible = 4.0;
    static constexpr double kLeastShare = 0.15;

    bool isClear() const { return mean >= kLeastMean && share >= kLeastShare; }
};

inline Difference differenceOf(const QImage &one, const QImage &other, const QRegion &face)
{
    Difference difference;
    int pixels = 0;
    for (const QRect &part : face) {
        for (int y = part.top(); y <= part.bottom(); ++y) {
            for (int x = part.left(); x <= part.right(); ++x) {
                const double steps =
                    std::abs(lightness(one.pixel(x, y)) - lightness(other.pixel(x, y)));
                difference.mean += steps;
                difference.share += steps > Difference::kVisible;
                ++pixels;
            }
        }
    }
    return {difference.mean / pixels, difference.share / pixels};
}

/// Where a face that lies on the window's normal picture ends.
struct Seam
{
    int height = 0; ///< the greatest step
    int length = 0; ///< pixels that stand out
    int around = 0; ///< all

    static constexpr int kInvisible = 3;

    void measure(const QImage &normal, const QImage &state, const QRect &part)
    {
        for (int y = part.top(); y <= part.bottom(); ++y) {
            for (int x = part.left(); x <= part.right(); ++x) {
                const int step = stepBetween(normal.pixel(x, y), state.pixel(x, y));
                height = std::max(height, step);
                length += step > kInvisible;
                ++around;
            }
        }
    }
};

/// The outermost pixels.
inline QRegion edgeOf(const QRegion &region)
{
    QRegion inside = region;
    for (const QPoint way : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)})
        inside &= region.translated(way);
    return region - inside;
}

/// Where the pictures differ in that part.
inline QRect changedPart(const QImage &one, const QImage &other, const QRect &part)
{
    QRect changed;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            if (one.pixel(x, y) != other.pixel(x, y))
                changed |= QRect(x, y, 1, 1);
        }
    }
    return changed;
}

inline QString textOf(const QRect &part)
{
    return QStringLiteral(" %1,%2 %3x%4")
        .arg(part.x())
        .arg(part.y())
        .arg(part.width())
        .arg(part.height());
}

/// A word that has a face only while it is pointed at or pressed; it is never disabled.
inline bool isMenuTitle(const CutControl &control)
{
    return control.name.endsWith(QLatin1String("Menu"));
}

/// Whether the control fills its rectangle: its edge is there to be seen.
inline bool isWholeControl(const CutControl &control)
{
    return isMenuTitle(control) || control.name == QLatin1String("chkGameMode");
}

/// The faces that controls show in their states, on a screen of one resolution.
class FaceTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        for (const SkinWindow &window : kSkinWindows)
            m_controls.push_back(window.controls());
    }
    void cleanup() { m_wrong.clear(); }

    void theControlsAreFound();
    void everyFaceShowsSomething_data() { windowRows(); }
    void everyFaceShowsSomething();
    void theStatesDifferWithoutColour_data() { windowRows(); }
    void theStatesDifferWithoutColour();
    void theStatesOfOwnPicturesDifferWithoutColour();
    void besideTheControlsNothingChanges_data() { windowRows(); }
    void besideTheControlsNothingChanges();
    void aFaceHasNoSeams_data() { windowRows(); }
    void aFaceHasNoSeams();

private:
    static void windowRows()
    {
        QTest::addColumn<int>("index");
        for (int index = 0; index < int(std::size(kSkinWindows)); ++index)
            QTest::newRow(kSkinWindows[index].name) << index;
    }
    /// The window of this row of the test's data: its pictures and its controls.
    void fetch()
    {
        QFETCH(const int, index);
        m_window = &kSkinWindows[index];
        m_pictures.clear();
        for (const char *name : m_window->pictures)
            m_pictures.push_back(skinPixels(QLatin1String(name)));
        m_own = &m_controls[static_cast<std::size_t>(index)];
    }
    /// The pictures that a control takes a face from.
    std::vector<std::size_t> statesOf(const CutControl &control) const
    {
        if (!control.isPressed)
            return {0, 1};
        std::vector<std::size_t> states(isMenuTitle(control) ? 3 : m_pictures.size());
        std::iota(states.begin(), states.end(), 0);
        return states;
    }
    void compareStates(const CutControl &control);
    void compare(const QString &what, const QImage &one, const QImage &other, const QRegion &face);
    void findSeams(const CutControl &control, const QRegion &edge);
    QRegion inPixels(const QRegion &points) const;
    int scale() const { return qRound(qApp->devicePixelRatio()); }
    QString stateName(std::size_t state) const { return QLatin1String(m_window->pictures[state]); }

    std::vector<std::vector<CutControl>> m_controls; ///< of each window
    const SkinWindow *m_window = nullptr;
    std::vector<QImage> m_pictures;
    const std::vector<CutControl> *m_own = nullptr;
    QStringList m_wrong;
};

inline void FaceTests::theControlsAreFound()
{
    std::map<QString, std::size_t> found;
    for (std::size_t i = 0; i < std::size(kSkinWindows); ++i)
        found[QLatin1String(kSkinWindows[i].name)] = m_controls[i].size();
    QCOMPARE(found[QStringLiteral("main view")], std::size_t{37});
    QCOMPARE(found[QStringLiteral("left bar")], std::size_t{6});
    QCOMPARE(found[QStringLiteral("right bar")], std::size_t{0});
    QCOMPARE(found[QStringLiteral("bottom bar")], std::size_t{3});
    QCOMPARE(found[QStringLiteral("question")], std::size_t{3});
    QCOMPARE(found[QStringLiteral("macro editor")], std::size_t{4});
    QCOMPARE(found[QStringLiteral("character")], std::size_t{4});
}

inline void FaceTests::everyFaceShowsSomething()
{
    fetch();
    for (const CutControl &control : *m_own) {
        const QRect part = inPixels(control.place).boundingRect();
        for (const std::size_t state : statesOf(control)) {
            if (isBlank(m_pictures[state].copy(part)))
                m_wrong << control.name + u' ' + stateName(state);
        }
    }
    QVERIFY2(m_wrong.isEmpty(), qPrintable(m_wrong.join(QStringLiteral(", "))));
}

inline void FaceTests::theStatesDifferWithoutColour()
{
    fetch();
    for (const CutControl &control : *m_own)
        compareStates(control);
    QVERIFY2(m_wrong.isEmpty(), qPrintable(m_wrong.join(QStringLiteral("\n"))));
}

inline void FaceTests::compareStates(const CutControl &control)
{
    const QRegion face = inPixels(control.face);
    const std::vector<std::size_t> states = statesOf(control);
    for (auto one = states.begin(); one != states.end(); ++one) {
        for (auto other = std::next(one); other != states.end(); ++other)
            compare(control.name + u' ' + stateName(*one) + u'/' + stateName(*other),
                    m_pictures[*one], m_pictures[*other], face);
    }
}

inline void FaceTests::compare(const QString &what, const QImage &one, const QImage &other,
                               const QRegion &face)
{
    const Difference difference = differenceOf(one, other, face);
    if (!difference.isClear())
        m_wrong << QStringLiteral("%1: %2 steps of lightness on average, %3 % of the face")
                       .arg(what)
                       .arg(difference.mean, 0, 'f', 1)
                       .arg(100 * difference.share, 0, 'f', 0);
}

/// Pictures of one drawing which is no window's.
inline void FaceTests::theStatesOfOwnPicturesDifferWithoutColour()
{
    QStringList ofWindows;
    for (const SkinWindow &window : kSkinWindows) {
        for (const char *name : window.pictures)
            ofWindows << QLatin1String(name);
    }
    std::map<QString, QString> firsts; // by drawing
    int pairs = 0;
    for (const PictureRow &row : pictureRows()) {
        const auto [first, isNew] = firsts.emplace(row.drawing, row.name);
        if (isNew || ofWindows.contains(row.name))
            continue;
        const QImage picture = skinPixels(row.name);
        compare(first->second + u'/' + row.name, skinPixels(first->second), picture,
                picture.rect());
        ++pairs;
    }
    QVERIFY(pairs >= 9);
    QVERIFY2(m_wrong.isEmpty(), qPrintable(m_wrong.join(QStringLiteral("\n"))));
}

inline void FaceTests::besideTheControlsNothingChanges()
{
    fetch();
    QRegion controls;
    for (const CutControl &control : *m_own)
        controls += inPixels(control.place);
    const QImage &normal = m_pictures.front();
    const QRegion beside = QRegion(normal.rect()) - controls;
    for (std::size_t state = 1; state < m_pictures.size(); ++state) {
        QRegion changed;
        for (const QRect &part : beside)
            changed += changedPart(normal, m_pictures[state], part);
        if (!changed.isEmpty())
            m_wrong << stateName(state) + textOf(changed.boundingRect());
    }
    QVERIFY2(m_wrong.isEmpty(), qPrintable(m_wrong.join(QStringLiteral(", "))));
}

inline void FaceTests::aFaceHasNoSeams()
{
    fetch();
    for (auto control = m_own->begin(); control != m_own->end(); ++control) {
        QRegion seen(control->place);
        for (auto above = std::next(control); above != m_own->end(); ++above)
            seen -= above->place;
        if (!isWholeControl(*control))
            findSeams(*control, edgeOf(inPixels(seen)));
    }
    QVERIFY2(m_wrong.isEmpty(), qPrintable(m_wrong.join(QStringLiteral("\n"))));
}

inline void FaceTests::findSeams(const CutControl &control, const QRegion &edge)
{
    const QImage &normal = m_pictures.front();
    for (const std::size_t state : statesOf(control)) {
        Seam seam;
        for (const QRect &part : edge)
            seam.measure(normal, m_pictures[state], part);
        if (seam.height > Seam::kInvisible)
            m_wrong << QStringLiteral("%1 %2: %3 of %4 pixels stand out, by up to %5")
                           .arg(control.name, stateName(state))
                           .arg(seam.length)
                           .arg(seam.around)
                           .arg(seam.height);
    }
}

/// A finer screen has more pixels for each point.
inline QRegion FaceTests::inPixels(const QRegion &points) const
{
    QRegion pixels;
    for (const QRect &part : points)
        pixels += QRect(part.topLeft() * scale(), part.size() * scale());
    return pixels;
}
