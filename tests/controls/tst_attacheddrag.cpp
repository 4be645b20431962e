#include "controls/custumwindow.h"
#include "support/pointer.h"
#include "support/suite.h"

/// Windows that stand together: a drag of one moves the other, and itself after it.
class tst_attacheddrag : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDragMovesTheWindowThatItIsToMove();
    void theWindowIsWhereThePointerIsAtEveryStep();
    void theTopOfTheMovedWindowIsTheLimit();
    void pastTheLimitTheWindowsComeBackWithThePointer();
    void aWindowWithDraggingOffMovesNoOther();
    void withoutAnotherOneToMoveADragMovesTheWindowAgain();
    void afterTheOtherOneIsGoneADragMovesTheWindowAgain();
};

namespace {

/// A main window with another one that stays in its place beside it and is dragged by.
struct AttachedStage : QObject
{
    AttachedStage()
    {
        main->move(280, 150);
        main->installEventFilter(this);
        attached.move(main->pos() + kOffset);
        attached.setBCanDragWindow(true);
        attached.setDragMoves(main.get());
        main->show();
        attached.show();
    }

    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        if (event->type() == QEvent::Move)
            attached.move(main->pos() + kOffset);
        return false;
    }

    void press() const { pointer::press(attached, kPress); }
    void moveTo(QPoint onScreen) const
    {
        pointer::move(attached, attached.mapFromGlobal(onScreen));
    }
    void release(QPoint onScreen) const
    {
        pointer::release(attached, attached.mapFromGlobal(onScreen));
    }
    void drag(QPoint way) const
    {
        constexpr int kSteps = 10;
        const QPoint start = attached.mapToGlobal(kPress);
        press();
        for (int step = 1; step <= kSteps; ++step)
            moveTo(start + way * step / kSteps);
        release(start + way);
    }

    static constexpr QPoint kOffset{-50, 20};
    static constexpr QPoint kPress{10, 30};
    std::unique_ptr<custumwindow> main =
        std::make_unique<custumwindow>(UpRect{0, 0, 240, 200}, nullptr);
    custumwindow attached{{0, 0, 50, 100}, nullptr};
};

} // namespace

void tst_attacheddrag::aDragMovesTheWindowThatItIsToMove()
{
    const AttachedStage stage;
    stage.drag({40, -30});
    QCOMPARE(stage.main->pos(), QPoint(320, 120));
    QCOMPARE(stage.attached.pos(), QPoint(270, 140));
    stage.drag({-100, 70});
    QCOMPARE(stage.main->geometry(), QRect(220, 190, 240, 200));
    QCOMPARE(stage.attached.geometry(), QRect(170, 210, 50, 100));
}

void tst_attacheddrag::theWindowIsWhereThePointerIsAtEveryStep()
{
    const AttachedStage stage;
    const QPoint start = stage.attached.mapToGlobal(AttachedStage::kPress);
    stage.press();
    for (const QPoint way : {QPoint(1, 0), QPoint(7, 3), QPoint(-200, 90), QPoint(0, 0)}) {
        stage.moveTo(start + way);
        QCOMPARE(stage.attached.mapToGlobal(AttachedStage::kPress), start + way);
    }
    stage.release(start);
}

void tst_attacheddrag::theTopOfTheMovedWindowIsTheLimit()
{
    const AttachedStage stage;
    stage.drag({10, -300});
    // The attached window's own top is 20 lower.
    QCOMPARE(stage.main->pos(), QPoint(290, 0));
    QCOMPARE(stage.attached.pos(), QPoint(240, 20));
}

void tst_attacheddrag::pastTheLimitTheWindowsComeBackWithThePointer()
{
    const AttachedStage stage;
    const QPoint start = stage.attached.mapToGlobal(AttachedStage::kPress);
    stage.press();
    for (const int up : {100, 170, 199, 170})
        stage.moveTo(start - QPoint(0, up));
    QCOMPARE(stage.main->pos(), QPoint(280, 0));
    stage.moveTo(start - QPoint(0, 150));
    QCOMPARE(stage.main->pos(), QPoint(280, 0));
    stage.moveTo(start - QPoint(0, 140));
    QCOMPARE(stage.main->pos(), QPoint(280, 10));
    stage.release(start - QPoint(0, 140));
}

void tst_attacheddrag::aWindowWithDraggingOffMovesNoOther()
{
    AttachedStage stage;
    stage.attached.setBCanDragWindow(false);
    stage.drag({40, -30});
    QCOMPARE(stage.main->pos(), QPoint(280, 150));
    QCOMPARE(stage.attached.pos(), QPoint(230, 170));
    QVERIFY(stage.attached.initialLocation() == (UpPoint{10, 70}));
}

void tst_attacheddrag::withoutAnotherOneToMoveADragMovesTheWindowAgain()
{
    AttachedStage stage;
    stage.attached.setDragMoves(nullptr);
    stage.drag({40, -30});
    QCOMPARE(stage.main->pos(), QPoint(280, 150));
    QCOMPARE(stage.attached.pos(), QPoint(270, 140));
}

void tst_attacheddrag::afterTheOtherOneIsGoneADragMovesTheWindowAgain()
{
    AttachedStage stage;
    stage.main.reset();
    stage.drag({40, -30});
    QCOMPARE(stage.attached.pos(), QPoint(270, 140));
}

KYR_GUI_TEST(tst_attacheddrag)
#include "tst_attacheddrag.moc"
