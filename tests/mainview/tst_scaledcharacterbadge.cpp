#include "badgestage.h"
#include "support/suite.h"

/// The badge on a display of two pixels a point.
class tst_scaledcharacterbadge : public QObject
{
    Q_OBJECT

public:
    static void initMain() { qputenv("QT_SCALE_FACTOR", "2"); }

private Q_SLOTS:
    void itIsDrawnFinely();
    void aMissingPortraitIsTheFineUnkown();
};

void tst_scaledcharacterbadge::itIsDrawnFinely()
{
    BadgeStage stage;
    const QImage portrait = portraitPicture({136, 130});
    const std::string path = stage.files.put("1.png", portrait);
    const QImage picture = stage.shownWith(
        {.name = "Ann", .realm = "Realm", .className = "Mage", .level = 80, .portrait = path});
    QCOMPARE(picture.size(), stage.view().size() * 2);
    QCOMPARE(picture, stage.expected(portrait, {QStringLiteral("Ann"), QStringLiteral("Level 80"),
                                                QStringLiteral("Mage"), QStringLiteral("Realm")}));
}

void tst_scaledcharacterbadge::aMissingPortraitIsTheFineUnkown()
{
    BadgeStage stage;
    const std::string path = stage.files.path("missing.png");
    QCOMPARE(stage.shownWith({.name = "Ann", .realm = "R", .portrait = path}),
             stage.expected(unkown(2), {QStringLiteral("Ann"), QStringLiteral("Level 0"), QString(),
                                        QStringLiteral("R")}));
}

KYR_GUI_TEST(tst_scaledcharacterbadge)
#include "tst_scaledcharacterbadge.moc"
