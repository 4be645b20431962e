#include "mainview/portrait.h"

#include "portraitfiles.h"
#include "support/looppauses.h"
#include "support/skinpictures.h"
#include "support/suite.h"

#include <QtCore/QDir>
#include <QtCore/QThreadPool>

/// How a portrait's file becomes the picture that the main view shows.
class tst_portrait : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aSmallPictureIsThereAtOnce_data();
    void aSmallPictureIsThereAtOnce();
    void itIsMadeForTheScreensScale_data();
    void itIsMadeForTheScreensScale();
    void whatIsNoPictureIsUnkown_data() { unreadablePortraitRows(); }
    void whatIsNoPictureIsUnkown();
    void aFolderIsUnkown();
    void aFileOfMoreThan8MibIsUnkown();
    void aPictureOfMoreThan64MibIsNone_data();
    void aPictureOfMoreThan64MibIsNone();
    void theFileIsReadOnce();
    void whatWasForgottenIsReadAgain();
    void aBigPictureComesLater();
    void aBigPictureThatIsNoneStaysUnkown_data();
    void aBigPictureThatIsNoneStaysUnkown();
    void aBigPictureHoldsNothingUp();
    void anAnswerThatIsNotAskedForAnyMoreIsDropped();
    void itMayEndWhileAPictureIsUnderWay();
};

namespace {

constexpr QSize kPlace(68, 65);
constexpr QSize kBig(1024, 1024);

/// A portrait that counts the changes it tells.
struct PictureStage
{
    QImage at(const std::string &path, qreal scale = 1)
    {
        return portrait.at(path, scale).pixmap().toImage();
    }
    bool isUnkown(const std::string &path) { return at(path) == skin("unkown").toImage(); }
    QColor colourAt(const std::string &path) { return at(path).pixelColor(30, 30); }
    /// Whether `expected` changes were told of all that was asked for. Pictures that take long come
    /// one after the other: one more is waited for.
    bool hasTold(int expected)
    {
        at(files.put("last", portraitPicture(kBig, Qt::green)));
        return QTest::qWaitFor([&] { return colourAt(files.path("last")) == QColor(Qt::green); }) &&
               changes == expected + 1;
    }

    PortraitFiles files;
    int changes = 0;
    Portrait portrait{[this] { ++changes; }};
};

bool isNear(const QColor &left, const QColor &right)
{
    constexpr int most = 6; // of a format that loses something
    return std::abs(left.red() - right.red()) < most &&
           std::abs(left.green() - right.green()) < most &&
           std::abs(left.blue() - right.blue()) < most;
}

} // namespace

void tst_portrait::aSmallPictureIsThereAtOnce_data()
{
    QTest::addColumn<QByteArray>("file");
    for (const char *format : {"png", "jpeg", "bmp"})
        QTest::newRow(format) << fileOf(portraitPicture({136, 130}), format);
    QTest::newRow("another shape") << fileOf(portraitPicture({20, 300}));
    QTest::newRow("smaller") << fileOf(portraitPicture({34, 32}));
}

void tst_portrait::aSmallPictureIsThereAtOnce()
{
    QFETCH(QByteArray, file);
    PictureStage stage;
    const QImage picture = stage.at(stage.files.put("portrait", file));
    QCOMPARE(picture.size(), kPlace);
    const QPoint middles[] = {{15, 15}, {52, 15}, {15, 50}, {52, 50}};
    for (std::size_t i = 0; i < std::size(middles); ++i)
        QVERIFY(isNear(picture.pixelColor(middles[i]), kQuarters[i]));
    QCOMPARE(stage.changes, 0);
}

void tst_portrait::itIsMadeForTheScreensScale_data()
{
    QTest::addColumn<qreal>("scale");
    QTest::addColumn<QSize>("pixels");
    QTest::newRow("1") << 1.0 << QSize(68, 65);
    QTest::newRow("1.5") << 1.5 << QSize(102, 98);
    QTest::newRow("2") << 2.0 << QSize(136, 130);
}

void tst_portrait::itIsMadeForTheScreensScale()
{
    QFETCH(qreal, scale);
    QFETCH(QSize, pixels);
    PictureStage stage;
    const std::string path = stage.files.put("portrait", portraitPicture({200, 200}));
    stage.at(path, 3);
    const QImage picture = stage.at(path, scale);
    QCOMPARE(picture.size(), pixels);
    QCOMPARE(picture.devicePixelRatio(), scale);
}

void tst_portrait::whatIsNoPictureIsUnkown()
{
    QFETCH(QByteArray, file);
    PictureStage stage;
    if (!file.isNull())
        stage.files.put("portrait.png", file);
    QVERIFY(stage.isUnkown(stage.files.path("portrait.png")));
    QVERIFY(stage.hasTold(0));
}

void tst_portrait::aFolderIsUnkown()
{
    PictureStage stage;
    QVERIFY(QDir().mkdir(QString::fromStdString(stage.files.path("folder"))));
    QVERIFY(stage.isUnkown(stage.files.path("folder")));
}

void tst_portrait::aFileOfMoreThan8MibIsUnkown()
{
    PictureStage stage;
    QByteArray file = fileOf(portraitPicture(kPlace));
    file.resize(8 << 20, ' '); // a reader ends at the picture's own end
    QCOMPARE(stage.colourAt(stage.files.put("just", file)), kQuarters[0]);
    QVERIFY(stage.isUnkown(stage.files.put("longer", file + ' ')));
}

void tst_portrait::aPictureOfMoreThan64MibIsNone_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("isShown");
    QTest::newRow("just 64 MiB") << QSize(4096, 4096) << true;
    QTest::newRow("wider") << QSize(4097, 4096) << false;
    QTest::newRow("higher") << QSize(4096, 4097) << false;
    QTest::newRow("both") << QSize(4097, 4097) << false;
    QTest::newRow("very wide") << QSize(1 << 24, 1) << true;
    QTest::newRow("wider still") << QSize((1 << 24) + 1, 1) << false;
}

void tst_portrait::aPictureOfMoreThan64MibIsNone()
{
    QFETCH(QSize, size);
    QImage image(size, QImage::Format_Mono); // a small file, though of as many pixels
    image.fill(1);
    const QImage picture = decodePortrait(fileOf(image, "bmp"), kPlace);
    QTEST(!picture.isNull(), "isShown");
}

void tst_portrait::theFileIsReadOnce()
{
    PictureStage stage;
    const std::string path = stage.files.put("portrait", portraitPicture(kPlace, Qt::red));
    QCOMPARE(stage.colourAt(path), QColor(Qt::red));
    stage.files.put("portrait", portraitPicture(kPlace, Qt::blue));
    QCOMPARE(stage.colourAt(path), QColor(Qt::red));
    const std::string other = stage.files.put("other", portraitPicture(kPlace, Qt::green));
    QCOMPARE(stage.colourAt(other), QColor(Qt::green));
    QCOMPARE(stage.colourAt(path), QColor(Qt::blue));
}

void tst_portrait::whatWasForgottenIsReadAgain()
{
    PictureStage stage;
    const std::string path = stage.files.path("portrait");
    QVERIFY(stage.isUnkown(path));
    stage.files.put("portrait", portraitPicture(kPlace, Qt::blue));
    QVERIFY(stage.isUnkown(path));
    stage.portrait.forget();
    QCOMPARE(stage.colourAt(path), QColor(Qt::blue));
}

void tst_portrait::aBigPictureComesLater()
{
    PictureStage stage;
    const std::string path = stage.files.put("big", portraitPicture(kBig));
    QVERIFY(stage.isUnkown(path));
    QTRY_COMPARE(stage.changes, 1);
    const QImage picture = stage.at(path, 1);
    QCOMPARE(picture.size(), kPlace);
    QCOMPARE(picture.pixelColor(15, 15), kQuarters[0]);
    QCOMPARE(picture.pixelColor(52, 50), kQuarters[3]);
    QVERIFY(stage.hasTold(1));
}

void tst_portrait::aBigPictureThatIsNoneStaysUnkown_data()
{
    QTest::addColumn<QByteArray>("file");
    const QByteArray file = fileOf(portraitPicture(kBig));
    QTest::newRow("cut off") << file.left(file.size() / 2);
    QTest::newRow("of more bytes a pixel")
        << fileOf(portraitPicture({4000, 4000}).convertToFormat(QImage::Format_RGBA64));
}

void tst_portrait::aBigPictureThatIsNoneStaysUnkown()
{
    QFETCH(QByteArray, file);
    PictureStage stage;
    const std::string path = stage.files.put("big", file);
    QVERIFY(stage.isUnkown(path));
    QTRY_COMPARE(stage.changes, 1);
    QVERIFY(stage.isUnkown(path));
}

void tst_portrait::aBigPictureHoldsNothingUp()
{
    PictureStage stage;
    const std::string path = stage.files.put("big", portraitPicture({4096, 4096}));
    LoopPauses pauses;
    QMetaObject::invokeMethod(
        &stage.portrait, [&] { stage.at(path); }, Qt::QueuedConnection);
    QTRY_COMPARE_WITH_TIMEOUT(stage.changes, 1, 30000);
    if (LoopPauses::isTelling())
        QVERIFY2(pauses.longest() < 50, qPrintable(QString::number(pauses.longest())));
    QCOMPARE(stage.at(path).pixelColor(15, 15), kQuarters[0]);
}

void tst_portrait::anAnswerThatIsNotAskedForAnyMoreIsDropped()
{
    PictureStage stage;
    stage.at(stage.files.put("first", portraitPicture(kBig, Qt::red)));
    const std::string second = stage.files.put("second", portraitPicture(kPlace, Qt::blue));
    QCOMPARE(stage.colourAt(second), QColor(Qt::blue));
    QVERIFY(stage.hasTold(0));
}

void tst_portrait::itMayEndWhileAPictureIsUnderWay()
{
    int changes = 0;
    const PortraitFiles files;
    const std::string path = files.put("big", portraitPicture(kBig));
    {
        Portrait portrait([&] { ++changes; });
        portrait.at(path, 1);
    }
    QCoreApplication::processEvents();
    QCOMPARE(changes, 0);
}

KYR_GUI_TEST(tst_portrait)
#include "tst_portrait.moc"
