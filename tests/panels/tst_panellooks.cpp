#include "listedfunctions.h"
#include "support/pictures.h"
#include "support/skinpictures.h"
#include "support/suite.h"

/// How the panels of the right bar are drawn.
class tst_panellooks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theHeaderIsAGreyStrip_data() { panels(); }
    void theHeaderIsAGreyStrip();
    void theHeaderReachesThePanelsTop_data() { panels(); }
    void theHeaderReachesThePanelsTop();
    void theTitleStandsInTheHeader_data() { panels(); }
    void theTitleStandsInTheHeader();
    void aPlusStandsOnACollapsedAndAMinusOnAnExpandedPanel();
    void theButtonsOfTheMacroPanelHaveTheirFace();
    void besideTheTreePanelsPartsTheSkinShows();
    void theGroundIsBlack_data() { knownListRows(); }
    void theGroundIsBlack();
    void theRowsAreGoldenOnBlack_data() { knownListRows(); }
    void theRowsAreGoldenOnBlack();
    void theSelectedRowIsGrey_data() { knownListRows(); }
    void theSelectedRowIsGrey();
    void theListShowsThatItHasTheKeyboard_data() { knownListRows(); }
    void theListShowsThatItHasTheKeyboard();

private:
    static void panels();
};

namespace {

constexpr QColor kStripGrey(21, 21, 21);
constexpr QColor kRowGrey(41, 41, 41);

/// The strip behind the title, y downwards.
struct KnownStrip
{
    PanelId id;
    int top;    ///< its first line, which catches the light
    int bottom; ///< its last one
    int title;  ///< the first line of the title's place
};

constexpr KnownStrip kKnownStrips[] = {
    {PanelId::Tree, 2, 29, 10},
    {PanelId::Cpi, 0, 26, 8},
    {PanelId::Profile, 0, 26, 8},
    {PanelId::Macro, 2, 49, 8},
};

/// A key's face as it is drawn alone.
QImage faceOn(const HoverButton &key, const char *name)
{
    QPixmap pixmap(key.size());
    pixmap.fill(key.palette().color(QPalette::Window));
    QPainter(&pixmap).drawPixmap(0, 0, skin(name));
    return pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
}

} // namespace

void tst_panellooks::panels()
{
    QTest::addColumn<PanelId>("id");
    QTest::addColumn<int>("top");
    QTest::addColumn<int>("bottom");
    QTest::addColumn<int>("title");
    for (const KnownStrip &strip : kKnownStrips)
        QTest::newRow(kKnownPanels[static_cast<std::size_t>(strip.id)].title)
            << strip.id << strip.top << strip.bottom << strip.title;
}

void tst_panellooks::theHeaderIsAGreyStrip()
{
    QFETCH(PanelId, id);
    QFETCH(int, bottom);
    PanelsStage stage;
    stage.openAt(id);
    const QImage panel = shown(stage.panel(id));
    QCOMPARE(panel.pixelColor(2, bottom), kStripGrey);
    QCOMPARE(panel.pixelColor(174, bottom), kStripGrey);
    for (const QPoint beside : {QPoint(1, bottom), QPoint(175, bottom)})
        QVERIFY(panel.pixelColor(beside) != kStripGrey);
    QVERIFY(panel.pixelColor(176, bottom + 1) != kStripGrey);
}

void tst_panellooks::theHeaderReachesThePanelsTop()
{
    QFETCH(PanelId, id);
    QFETCH(int, top);
    QFETCH(int, bottom);
    PanelsStage stage;
    stage.openAt(id);
    const QImage column = shown(stage.panel(id)).copy(4, 0, 1, bottom + 1); // left of the title
    QCOMPARE(extentOf(column, kStripGrey), QRect(0, top + 1, 1, bottom - top));
    QCOMPARE(column.pixelColor(0, top).value(), 45); // the light on it
}

void tst_panellooks::theTitleStandsInTheHeader()
{
    QFETCH(PanelId, id);
    QFETCH(int, title);
    PanelsStage stage;
    stage.toggleRight();
    const QString text = QLatin1String(kKnownPanels[static_cast<std::size_t>(id)].title);
    const QRect place(9, title, 145, 15); // as far as the plus
    QPixmap expected(177, 50);
    expected.fill(kStripGrey);
    QPainter painter(&expected);
    painter.setFont(systemFont(11));
    painter.setPen(Qt::white);
    painter.drawText(place, Qt::AlignLeft | Qt::AlignTop, text);
    painter.end();
    QCOMPARE(shown(stage.panel(id)).copy(place),
             expected.toImage().convertToFormat(QImage::Format_ARGB32).copy(place));
}

void tst_panellooks::aPlusStandsOnACollapsedAndAMinusOnAnExpandedPanel()
{
    PanelsStage stage;
    stage.toggleRight();
    for (const KnownPanel &known : kKnownPanels) {
        HoverButton &key = stage.expandKey(known.id);
        QCOMPARE(shown(key), faceOn(key, "add"));
        stage.clickHeader(known.id);
        QCOMPARE(shown(key), faceOn(key, "minus"));
        stage.clickHeader(known.id);
        QCOMPARE(shown(key), faceOn(key, "add"));
    }
}

void tst_panellooks::theButtonsOfTheMacroPanelHaveTheirFace()
{
    PanelsStage stage;
    stage.toggleRight();
    for (const auto &[name, title] :
         {std::pair("btnNew", "New macro"), {"btnDelete", "Delete macro"}}) {
        auto &button =
            *static_cast<HoverButton *>(PanelsStage::part(&stage.panel(PanelId::Macro), name));
        QCOMPARE(button.accessibleName(), QLatin1String(title));
        button.setCaptionText({});
        QCOMPARE(shown(button), faceOn(button, "new_normal"));
    }
}

void tst_panellooks::besideTheTreePanelsPartsTheSkinShows()
{
    PanelsStage stage;
    stage.toggleRight();
    const QRect beside(0, 461 - 376 - 30, 2, 30); // left of the header
    const QImage bar = shown(stage.content(kRightBar));
    QCOMPARE(bar.copy(beside), skin("rightN").toImage().convertToFormat(bar.format()).copy(beside));
}

void tst_panellooks::theGroundIsBlack()
{
    QFETCH(const KnownList *, known);
    PanelsStage stage;
    stage.openAt(known->id);
    const QImage ground = shown(stage.panel(known->id)).copy(175, 27, 2, 223);
    QCOMPARE(extentOf(ground, Qt::black), ground.rect());
    QVERIFY(extentOfOther(ground, Qt::black).isEmpty());
}

void tst_panellooks::theRowsAreGoldenOnBlack()
{
    QFETCH(const KnownList *, known);
    PanelsStage stage;
    stage.openAt(known->id);
    const QImage list = shown(stage.list(known->name));
    for (int row = 0; row < rowCount(*known); ++row) {
        const QImage strip = list.copy(0, row * known->rowHeight, 175, known->rowHeight);
        const QRect text = extentOfOther(strip, Qt::black);
        QVERIFY2(text.left() > 5 && text.left() < 20 && text.width() > 30, "left, behind blanks");
        const QColor colour = brightest(strip);
        QVERIFY(colour.red() > 200 && colour.blue() < 8);
        QVERIFY(qAbs(colour.green() - colour.red() * 180 / 255) < 8);
    }
}

void tst_panellooks::theSelectedRowIsGrey()
{
    QFETCH(const KnownList *, known);
    PanelsStage stage;
    stage.openAt(known->id);
    pngListBox &list = stage.list(known->name);
    QVERIFY(extentOf(shown(list), kRowGrey).isEmpty());
    for (int row = 0; row < rowCount(*known); ++row) {
        PanelsStage::clickRow(list, row, known->rowHeight);
        QCOMPARE(extentOf(shown(list), kRowGrey),
                 QRect(0, row * known->rowHeight, 175, known->rowHeight));
    }
}

void tst_panellooks::theListShowsThatItHasTheKeyboard()
{
    QFETCH(const KnownList *, known);
    PanelsStage stage;
    stage.openAt(known->id);
    pngListBox &list = stage.list(known->name);
    keyboard::tabTo(list);
    const QPoint edge(0, list.height() / 2);
    QCOMPARE(shownAt(list, edge), kGold);
    keyboard::press(Qt::Key_Tab);
    QTRY_VERIFY(!list.hasFocus());
    QVERIFY(shownAt(list, edge) != kGold);
}

KYR_GUI_TEST(tst_panellooks)
#include "tst_panellooks.moc"
