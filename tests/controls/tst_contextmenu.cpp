#include "menustage.h"
#include "support/pointer.h"
#include "support/suite.h"

#include <QtGui/QAccessible>
#include <QtGui/QScreen>

/// The skinned menu below a control, as a player uses it.
class tst_contextmenu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theItemsStandInOrderWithSeparatorsBetween();
    void withoutItemsThereIsNoMenu();
    void theMenuHangsBelowItsControl();
    void theMenuStaysOnTheScreen();
    void anItemClickedIsSentOnceWhenTheMenuIsGone();
    void anItemChosenByKeyIsSentOnceWhenTheMenuIsGone();
    void anItemChosenByAssistiveTechnologyClosesTheMenu();
    void openedByKeyTheFirstItemIsHighlighted();
    void openedByPointerNoItemIsHighlighted();
    void theArrowKeysPassOverTheSeparators();
    void theSubmenuIsUsedByKey();
    void theSubmenuIsUsedByPointer();
    void escapeSendsNothingAndLeavesTheKeyboardWithTheControl();
    void aPressOutsideOnlyClosesTheMenu();
    void nothingIsSentToATargetThatIsGone();
    void anActionIsSentThoughTheControlIsGone();
    void theMenuGoesWithItsControl();
    void everyOpeningBuildsANewMenuAndLeavesNothing();
    void noLetterChoosesAnItem();
};

namespace {

QString namesOf(const QMenu &menu)
{
    QStringList names;
    for (const QAction *action : menu.actions())
        names += action->isSeparator() ? QStringLiteral("-") : action->objectName();
    return names.join(u' ');
}

} // namespace

void tst_contextmenu::theItemsStandInOrderWithSeparatorsBetween()
{
    MenuStage stage;
    stage.openByPointer();
    QVERIFY(stage.menu && stage.menu->isVisible());
    QCOMPARE(stage.menu->objectName(), QStringLiteral("ContextMenu"));
    QCOMPARE(namesOf(*stage.menu), QStringLiteral("First - Second - Inner"));
    QCOMPARE(namesOf(*stage.submenu()), QStringLiteral("Innermost - Other"));
    QCOMPARE(stage.menu->actions().at(4)->text(), QStringLiteral("Inner"));
    QVERIFY(stage.row("First").bottom() + 1 < stage.row("Second").top());
}

void tst_contextmenu::withoutItemsThereIsNoMenu()
{
    MenuStage stage;
    stage.items.clear();
    stage.openByPointer();
    QCOMPARE(stage.openings, 1);
    QVERIFY(!stage.menu && !QApplication::activePopupWidget());
}

void tst_contextmenu::theMenuHangsBelowItsControl()
{
    MenuStage stage;
    stage.openByPointer();
    QCOMPARE(stage.menu->geometry().topLeft(),
             stage.button->mapToGlobal(QPoint(0, stage.button->height())));
}

void tst_contextmenu::theMenuStaysOnTheScreen()
{
    MenuStage stage;
    const QRect screen = stage.window.screen()->availableGeometry();
    stage.window.move(screen.bottomRight() - QPoint(60, 60));
    stage.openByPointer();
    QVERIFY(screen.contains(stage.menu->geometry()));
}

void tst_contextmenu::anItemClickedIsSentOnceWhenTheMenuIsGone()
{
    MenuStage stage;
    stage.openByPointer();
    stage.clickItem(*stage.menu, "Second");
    QTRY_COMPARE(stage.second.count, 1);
    QVERIFY(!stage.second.menuOpen);
    QCoreApplication::processEvents();
    QCOMPARE(stage.second.count, 1);
    QCOMPARE(stage.first.count, 0);
}

void tst_contextmenu::anItemChosenByKeyIsSentOnceWhenTheMenuIsGone()
{
    MenuStage stage;
    stage.openByKey();
    stage.key(Qt::Key_Return);
    QTRY_COMPARE(stage.first.count, 1);
    QVERIFY(!stage.first.menuOpen);
    QCoreApplication::processEvents();
    QCOMPARE(stage.first.count, 1);
    QVERIFY(stage.button->hasFocus());
}

void tst_contextmenu::anItemChosenByAssistiveTechnologyClosesTheMenu()
{
    MenuStage stage;
    stage.openByKey();
    stage.key(Qt::Key_Up);
    stage.key(Qt::Key_Right);
    QTRY_VERIFY(stage.submenu()->isVisible());
    QAccessible::queryAccessibleInterface(stage.submenu())
        ->child(0)
        ->actionInterface()
        ->doAction(QAccessibleActionInterface::pressAction());
    QTRY_COMPARE(stage.inner.count, 1);
    QVERIFY(!stage.inner.menuOpen);
}

void tst_contextmenu::openedByKeyTheFirstItemIsHighlighted()
{
    MenuStage stage;
    stage.openByKey();
    QCOMPARE(activeName(*stage.menu), QStringLiteral("First"));
}

void tst_contextmenu::openedByPointerNoItemIsHighlighted()
{
    MenuStage stage;
    stage.key(Qt::Key_Tab);
    QVERIFY(stage.button->hasFocus());
    stage.openByPointer();
    QVERIFY(!stage.menu->activeAction());
}

void tst_contextmenu::theArrowKeysPassOverTheSeparators()
{
    MenuStage stage;
    stage.openByKey();
    stage.key(Qt::Key_Down);
    QCOMPARE(activeName(*stage.menu), QStringLiteral("Second"));
    stage.key(Qt::Key_Down);
    QCOMPARE(activeName(*stage.menu), QStringLiteral("Inner"));
    stage.key(Qt::Key_Up);
    QCOMPARE(activeName(*stage.menu), QStringLiteral("Second"));
}

void tst_contextmenu::theSubmenuIsUsedByKey()
{
    MenuStage stage;
    stage.openByKey();
    stage.key(Qt::Key_Up);
    QVERIFY(!stage.submenu()->isVisible());
    stage.key(Qt::Key_Right);
    QTRY_VERIFY(stage.submenu()->isVisible());
    QCOMPARE(activeName(*stage.submenu()), QStringLiteral("Innermost"));
    stage.key(Qt::Key_Left);
    QTRY_VERIFY(!stage.submenu()->isVisible());
    QVERIFY(stage.menu->isVisible());
    stage.key(Qt::Key_Right);
    QTRY_VERIFY(stage.submenu()->isVisible());
    stage.key(Qt::Key_Return);
    QTRY_COMPARE(stage.inner.count, 1);
    QVERIFY(!stage.inner.menuOpen);
}

void tst_contextmenu::theSubmenuIsUsedByPointer()
{
    MenuStage stage;
    stage.openByPointer();
    stage.clickItem(*stage.menu, "Inner");
    QTRY_VERIFY(stage.submenu()->isVisible());
    QVERIFY(stage.submenu()->x() > stage.menu->geometry().center().x());
    stage.clickItem(*stage.submenu(), "Innermost");
    QTRY_COMPARE(stage.inner.count, 1);
    QVERIFY(!stage.inner.menuOpen);
}

void tst_contextmenu::escapeSendsNothingAndLeavesTheKeyboardWithTheControl()
{
    MenuStage stage;
    stage.openByKey();
    stage.key(Qt::Key_Escape);
    QTRY_VERIFY(!stage.menu);
    QVERIFY(!QApplication::activePopupWidget());
    QVERIFY(stage.button->hasFocus());
    QCOMPARE(stage.first.count + stage.second.count + stage.inner.count, 0);
}

void tst_contextmenu::aPressOutsideOnlyClosesTheMenu()
{
    MenuStage stage;
    stage.openByPointer();
    pointer::click(*stage.button);
    QTRY_VERIFY(!stage.menu);
    QVERIFY(!QApplication::activePopupWidget());
    QCOMPARE(stage.openings, 1);
    QCOMPARE(stage.first.count + stage.second.count + stage.inner.count, 0);
    // The press after that is an ordinary one again.
    stage.openByPointer();
    QVERIFY(stage.menu);
}

void tst_contextmenu::nothingIsSentToATargetThatIsGone()
{
    MenuStage stage;
    auto target = std::make_unique<Choice>();
    stage.items.front().action = {target.get(), &Choice::choose};
    stage.openByPointer();
    target.reset();
    stage.clickItem(*stage.menu, "First");
    QTRY_VERIFY(!stage.menu);
    QCoreApplication::processEvents();

    target = std::make_unique<Choice>();
    stage.items.front().action = {target.get(), &Choice::choose};
    stage.openByPointer();
    stage.clickItem(*stage.menu, "First");
    target.reset(); // chosen, not yet sent
    QTRY_VERIFY(!stage.menu);
    QCoreApplication::processEvents();
}

void tst_contextmenu::anActionIsSentThoughTheControlIsGone()
{
    MenuStage stage;
    stage.openByPointer();
    stage.clickItem(*stage.menu, "First");
    delete stage.button;
    QTRY_COMPARE(stage.first.count, 1);
}

void tst_contextmenu::theMenuGoesWithItsControl()
{
    MenuStage stage;
    stage.openByPointer();
    stage.clickItem(*stage.menu, "Inner");
    QTRY_VERIFY(stage.submenu()->isVisible());
    delete stage.button;
    QVERIFY(!stage.menu);
    QVERIFY(!QApplication::activePopupWidget());
    QCoreApplication::processEvents();
    QCOMPARE(stage.first.count + stage.second.count + stage.inner.count, 0);
}

void tst_contextmenu::everyOpeningBuildsANewMenuAndLeavesNothing()
{
    MenuStage stage;
    const auto windows = QApplication::topLevelWidgets().size();
    const auto objects = stage.window.findChildren<QObject *>().size();
    for (const char *text : {"Before", "After"}) {
        stage.items.front().text = QString::fromLatin1(text);
        stage.openByPointer();
        QCOMPARE(stage.menu->actions().front()->text(), QString::fromLatin1(text));
        stage.clickItem(*stage.menu, "Second");
        QTRY_VERIFY(!stage.menu);
        QCOMPARE(QApplication::topLevelWidgets().size(), windows);
        QCOMPARE(stage.window.findChildren<QObject *>().size(), objects);
    }
}

void tst_contextmenu::noLetterChoosesAnItem()
{
    MenuStage stage;
    stage.items.front().text = QStringLiteral("Salt &Pepper");
    stage.openByPointer();
    for (const Qt::Key key : {Qt::Key_P, Qt::Key_S, Qt::Key_Ampersand}) {
        stage.key(key);
        QTest::keyClick(stage.window.windowHandle(), key, Qt::ShiftModifier);
    }
    QCoreApplication::processEvents();
    QVERIFY(stage.menu && stage.menu->isVisible() && !stage.menu->activeAction());
    QCOMPARE(stage.first.count, 0);
}

KYR_GUI_TEST(tst_contextmenu)
#include "tst_contextmenu.moc"
