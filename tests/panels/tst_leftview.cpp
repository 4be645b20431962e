#include "levelstage.h"
#include "support/suite.h"

/// The controls of the left bar, and what its handle does to them.
class tst_leftview : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aSliderIsAsItIsToBe_data() { levelRows(); }
    void aSliderIsAsItIsToBe();
    void theCpiButtonIsAsItIsToBe();
    void thereAreNoOtherControls();
    void everyControlSaysWhatItIs();
    void theControlsShowWhileTheBarIsNotShut();
    void aRightClickDoesNothing();
    void otherMouseButtonsMoveNoSlider_data() { levelRows(); }
    void otherMouseButtonsMoveNoSlider();
    void aPressBesideTheSlidersChangesNothing();
};

namespace {

/// Where a control stands in the open bar.
UpRect placeInBar(const LevelStage &stage, const QWidget &control)
{
    const QRect there(control.mapTo(&stage.left(), QPoint()), control.size());
    return UpHost(stage.left().height()).up(there);
}

} // namespace

void tst_leftview::aSliderIsAsItIsToBe()
{
    QFETCH(const KnownLevel *, known);
    const OpenLevelStage stage;
    const pngProgressBar &slider = stage.slider(*known);
    QVERIFY(placeInBar(stage, slider) == known->place);
    QCOMPARE(slider.tag(), known->tag);
    QCOMPARE(slider.orientation(), known->orientation);
    QCOMPARE(slider.minimum(), 1);
    QCOMPARE(slider.maximum(), 10);
}

void tst_leftview::theCpiButtonIsAsItIsToBe()
{
    const OpenLevelStage stage;
    QVERIFY(placeInBar(stage, stage.cpi()) == kCpiPlace);
    QCOMPARE(stage.cpi().tag(), 0x2001);
    QVERIFY(!stage.cpi().isCheckable());
}

void tst_leftview::thereAreNoOtherControls()
{
    const OpenLevelStage stage;
    QCOMPARE(stage.left().findChildren<QAbstractButton *>().size(), 2); // the handle is one
    QCOMPARE(stage.left().findChildren<QAbstractSlider *>().size(), 5);
}

void tst_leftview::everyControlSaysWhatItIs()
{
    const OpenLevelStage stage;
    QStringList names{stage.cpi().accessibleName()};
    for (const KnownLevel &known : kKnownLevels)
        names << stage.slider(known).accessibleName();
    QVERIFY(!names.contains(QString()));
    QCOMPARE(names.removeDuplicates(), 0);
}

void tst_leftview::theControlsShowWhileTheBarIsNotShut()
{
    LevelStage stage;
    const auto showing = [&] {
        int count = stage.cpi().isVisible() ? 1 : 0;
        for (const KnownLevel &known : kKnownLevels)
            count += stage.slider(known).isVisible() ? 1 : 0;
        return count;
    };
    QCOMPARE(showing(), 0);
    pointer::click(stage.toggle(kLeftBar));
    stage.passHalf();
    QCOMPARE(showing(), 6);
    stage.passHalf();
    QCOMPARE(showing(), 6);
    pointer::click(stage.toggle(kLeftBar));
    stage.passHalf();
    QCOMPARE(showing(), 6);
    stage.passHalf();
    QCOMPARE(showing(), 0);
}

void tst_leftview::aRightClickDoesNothing()
{
    OpenLevelStage stage;
    stage.forget();
    const QString before = stage.shows();
    pointer::rightClick(stage.cpi());
    pointer::rightClick(stage.toggle(kLeftBar));
    stage.arrive();
    QVERIFY(openLists().empty());
    QVERIFY(stage.lies(kLeftBar, kLeftBar.open));
    QCOMPARE(stage.shows(), before);
    QVERIFY(!stage.program.applyIsEnabled());
    QCOMPARE(stage.program.log.lines, std::vector<std::string>());
}

void tst_leftview::otherMouseButtonsMoveNoSlider()
{
    QFETCH(const KnownLevel *, known);
    OpenLevelStage stage;
    stage.forget();
    const QString before = stage.shows();
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
        const pngProgressBar &slider = stage.slider(*known);
        pointer::press(slider, known->pointOf(5), button);
        pointer::move(slider, known->pointOf(7));
        pointer::release(slider, known->pointOf(7), button);
    }
    QCOMPARE(stage.shows(), before);
    QVERIFY(!stage.program.applyIsEnabled());
    QCOMPARE(stage.program.log.lines, std::vector<std::string>());
}

void tst_leftview::aPressBesideTheSlidersChangesNothing()
{
    OpenLevelStage stage;
    stage.forget();
    const QString before = stage.shows();
    for (const KnownLevel &known : kKnownLevels) {
        const QWidget &slider = stage.slider(known);
        for (const QPoint beside :
             {QPoint(8, -1), QPoint(-1, 8), QPoint(8, slider.height()), QPoint(slider.width(), 8)})
            pointer::click(slider, beside);
    }
    QCOMPARE(stage.shows(), before);
    QVERIFY(!stage.program.applyIsEnabled());
    QCOMPARE(stage.program.log.lines, std::vector<std::string>());
}

KYR_GUI_TEST(tst_leftview)
#include "tst_leftview.moc"
