#include "badgestage.h"
#include "support/screen.h"
#include "support/suite.h"

/// The badge in the main view that shows the current profile's character.
class tst_characterbadge : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutANameOrAPortraitThereIsNone_data();
    void withoutANameOrAPortraitThereIsNone();
    void portraitAndTextsStandInTheirPlaces_data();
    void portraitAndTextsStandInTheirPlaces();
    void aPortraitOfAnyShapeFillsItsPlace();
    void aPortraitThatCannotBeShownIsUnkown_data() { unreadablePortraitRows(); }
    void aPortraitThatCannotBeShownIsUnkown();
    void aBigPortraitIsDrawnWhenItHasCome();
    void theLongestClassIsWhole();
    void aLongTextStaysInTheBadge_data();
    void aLongTextStaysInTheBadge();
    void theFileIsReadOnce();
    void afterALookupTheFileIsReadAgain();
    void everyProfileHasItsOwnBadge();
};

namespace {

const BadgeTexts kAnnsTexts{QStringLiteral("Ann"), QStringLiteral("Level 80"),
                            QStringLiteral("Mage"), QStringLiteral("Silver Hand")};

KnownCharacter annWith(const std::string &portrait)
{
    return {.name = "Ann",
            .realm = "Silver Hand",
            .className = "Mage",
            .level = 80,
            .portrait = portrait};
}

QImage plainPortrait(const QColor &colour)
{
    return portraitPicture({68, 65}, colour);
}

/// Where two pictures of the same size differ.
QRect difference(const QImage &left, const QImage &right)
{
    QRect extent;
    for (int y = 0; y < left.height(); ++y) {
        for (int x = 0; x < left.width(); ++x) {
            if (left.pixel(x, y) != right.pixel(x, y))
                extent |= QRect(x, y, 1, 1);
        }
    }
    return extent;
}

} // namespace

void tst_characterbadge::withoutANameOrAPortraitThereIsNone_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<bool>("hasPortrait");
    QTest::newRow("no name") << QByteArray() << true;
    QTest::newRow("no portrait") << QByteArray("Ann") << false;
    QTest::newRow("neither") << QByteArray() << false;
}

void tst_characterbadge::withoutANameOrAPortraitThereIsNone()
{
    QFETCH(QByteArray, name);
    QFETCH(bool, hasPortrait);
    BadgeStage stage;
    const std::string path = stage.files.put("1.png", plainPortrait(Qt::red));
    KnownCharacter known = annWith(hasPortrait ? path : std::string());
    const std::string given = name.toStdString();
    known.name = given;
    QCOMPARE(stage.shownWith(known), stage.bare);
}

void tst_characterbadge::portraitAndTextsStandInTheirPlaces_data()
{
    QTest::addColumn<std::uint32_t>("level");
    QTest::addColumn<QString>("text");
    QTest::newRow("80") << 80U << QStringLiteral("Level 80");
    QTest::newRow("0") << 0U << QStringLiteral("Level 0");
    QTest::newRow("the highest") << 0xFFFFFFFFU << QStringLiteral("Level -1");
}

void tst_characterbadge::portraitAndTextsStandInTheirPlaces()
{
    QFETCH(std::uint32_t, level);
    QFETCH(QString, text);
    BadgeStage stage;
    const QImage portrait = portraitPicture({68, 65});
    const std::string path = stage.files.put("1.png", portrait);
    KnownCharacter known = annWith(path);
    known.level = level;
    BadgeTexts texts = kAnnsTexts;
    texts.level = text;
    QCOMPARE(stage.shownWith(known), stage.expected(portrait, texts));
}

void tst_characterbadge::aPortraitOfAnyShapeFillsItsPlace()
{
    BadgeStage stage;
    for (const QSize size : {QSize(400, 30), QSize(12, 700), QSize(4, 4)}) {
        const std::string path =
            stage.files.put(qPrintable(QString::number(size.width())), portraitPicture(size));
        const QImage place = stage.shownWith(annWith(path)).copy(stage.down(kPortraitPlace));
        QCOMPARE(place.pixelColor(0, 0), kQuarters[0]);
        QCOMPARE(place.pixelColor(67, 0), kQuarters[1]);
        QCOMPARE(place.pixelColor(0, 64), kQuarters[2]);
        QCOMPARE(place.pixelColor(67, 64), kQuarters[3]);
        QCOMPARE(place.pixelColor(20, 20), kQuarters[0]);
        QCOMPARE(place.pixelColor(48, 45), kQuarters[3]);
    }
}

void tst_characterbadge::aPortraitThatCannotBeShownIsUnkown()
{
    QFETCH(QByteArray, file);
    BadgeStage stage;
    if (!file.isNull())
        stage.files.put("1.png", file);
    const std::string path = stage.files.path("1.png");
    QCOMPARE(stage.shownWith(annWith(path)), stage.expected(unkown(1), kAnnsTexts));
}

/// Taken from the screen: it is drawn again by itself.
void tst_characterbadge::aBigPortraitIsDrawnWhenItHasCome()
{
    BadgeStage stage;
    const std::string path = stage.files.put("1.png", portraitPicture({900, 900}, Qt::red));
    putCharacter(CurrentProfile(), annWith(path));
    stage.view().update();
    const QPoint middle = stage.down(kPortraitPlace).center();
    QTRY_COMPARE(onScreen(stage.window()).pixelColor(middle), QColor(Qt::red));
}

void tst_characterbadge::theLongestClassIsWhole()
{
    BadgeStage stage;
    const std::string path = stage.files.put("1.png", plainPortrait(Qt::red));
    KnownCharacter known = annWith(path);
    known.className = "Death Knight";
    const QImage picture = stage.shownWith(known);
    bool isWhole = false;
    for (const int size : {11, 10, 9}) {
        BadgeTexts texts = kAnnsTexts;
        texts.className = QStringLiteral("Death Knight");
        texts.classSize = size;
        isWhole |= picture == stage.expected(plainPortrait(Qt::red), texts);
    }
    QVERIFY(isWhole);
}

void tst_characterbadge::aLongTextStaysInTheBadge_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("one word") << QByteArray(199, 'W');
    QTest::newRow("many words") << QByteArray("Word ").repeated(39);
    QTest::newRow("two words") << QByteArray("Wwwwwwww Wwwwwwww");
    QTest::newRow("other letters") << QByteArray("火").repeated(66);
    QTest::newRow("lines") << QByteArray("W\n").repeated(20);
    QTest::newRow("other lines") << QByteArray("W\xE2\x80\xA8").repeated(20);
}

void tst_characterbadge::aLongTextStaysInTheBadge()
{
    QFETCH(QByteArray, text);
    BadgeStage stage;
    const std::string path = stage.files.put("1.png", plainPortrait(Qt::red));
    const std::string given = text.toStdString();
    KnownCharacter known = annWith(path);
    known.name = given;
    known.className = given;
    const QRect changed = difference(stage.shownWith(known), stage.bare);
    QVERIFY(stage.down(kBadgePlace).contains(changed));
    // The realm's own place is somewhat wider and lower than the badge.
    known = annWith(path);
    known.realm = given;
    const QRect both = stage.down(kBadgePlace) | stage.down({129, 420, 73, 27});
    QVERIFY(both.contains(difference(stage.shownWith(known), stage.bare)));
}

void tst_characterbadge::theFileIsReadOnce()
{
    BadgeStage stage;
    const QRect place = stage.down(kPortraitPlace);
    const auto colourWith = [&](const std::string &path) {
        return stage.shownWith(annWith(path)).pixelColor(place.center());
    };
    const std::string first = stage.files.put("1.png", plainPortrait(Qt::red));
    QCOMPARE(colourWith(first), QColor(Qt::red));
    stage.files.put("1.png", plainPortrait(Qt::blue));
    QCOMPARE(colourWith(first), QColor(Qt::red));
    QCOMPARE(colourWith(stage.files.put("2.png", plainPortrait(Qt::green))), QColor(Qt::green));
    QCOMPARE(colourWith(first), QColor(Qt::blue));
}

void tst_characterbadge::afterALookupTheFileIsReadAgain()
{
    BadgeStage stage;
    const QPoint middle = stage.down(kPortraitPlace).center();
    const std::string file = stage.files.put("1.png", plainPortrait(Qt::red));
    QCOMPARE(stage.shownWith(annWith(file)).pixelColor(middle), QColor(Qt::red));
    stage.files.put("1.png", plainPortrait(Qt::blue));
    bool hasEnded = false;
    stage.view().downloadUrl("no address", [&](const std::string & /*path*/) { hasEnded = true; });
    QVERIFY(hasEnded);
    QCOMPARE(stage.shownWith(annWith(file)).pixelColor(middle), QColor(Qt::blue));
}

void tst_characterbadge::everyProfileHasItsOwnBadge()
{
    BadgeStage stage;
    pointer::click(stage.profileKey(2));
    const QImage second = shown(stage.view());
    const std::string path = stage.files.put("1.png", plainPortrait(Qt::red));
    const std::string other = stage.files.put("2.png", plainPortrait(Qt::green));
    putCharacter(m_Config.PROFILE[0], annWith(path));
    QCOMPARE(shown(stage.view()), second);
    putCharacter(m_Config.PROFILE[2], {.name = "Bob",
                                       .realm = "Silver Hand",
                                       .className = "Mage",
                                       .level = 80,
                                       .portrait = other});
    const QPoint middle = stage.down(kPortraitPlace).center();
    pointer::click(stage.profileKey(1));
    QTRY_COMPARE(onScreen(stage.window()).pixelColor(middle), QColor(Qt::red));
    QCOMPARE(shown(stage.view()).copy(stage.down(kBadgePlace)),
             stage.expected(plainPortrait(Qt::red), kAnnsTexts).copy(stage.down(kBadgePlace)));
    pointer::click(stage.profileKey(3));
    QTRY_COMPARE(onScreen(stage.window()).pixelColor(middle), QColor(Qt::green));
    pointer::click(stage.profileKey(2));
    QTRY_COMPARE(onScreen(stage.window()).pixelColor(middle), second.pixelColor(middle));
}

KYR_GUI_TEST(tst_characterbadge)
#include "tst_characterbadge.moc"
