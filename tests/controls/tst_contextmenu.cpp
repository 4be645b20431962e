#include "controls/contextmenu.h"
#include "controls/HoverButton.h"
#include "support/pictures.h"
#include "support/pointer.h"
#include "support/suite.h"

#include <QtGui/QAccessible>
#include <QtGui/QScreen>

#include <cmath>

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
    void theHighlightShows();
    void theSubmenuIsUsedByKey();
    void theSubmenuIsUsedByPointer();
    void escapeSendsNothingAndLeavesTheKeyboardWithTheControl();
    void aPressOutsideOnlyClosesTheMenu();
    void nothingIsSentToATargetThatIsGone();
    void anActionIsSentThoughTheControlIsGone();
    void theMenuGoesWithItsControl();
    void everyOpeningBuildsANewMenuAndLeavesNothing();
    void anAmpersandIsShownAndTold();
    void noLetterChoosesAnItem();
    void onlyCheckedItemsShowAMark();
    void everyTextIsShownWhole();
    void theRowsAreHighEnoughToHit();
    void theTextsCanBeReadOnTheirGround();
};

namespace {

/// The target of one item.
class Choice : public QObject
{
public:
    void choose()
    {
        ++count;
        menuOpen = QApplication::activePopupWidget() || menu;
    }

    int count = 0;
    bool menuOpen = false; ///< at the last choice
    QPointer<ContextMenu> menu;
};

/// A shown window with a button that opens a menu.
class MenuStage : public QObject
{
public:
    MenuStage()
    {
        window.resize(300, 200);
        button->setAction({this, &MenuStage::open});
        window.show();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("the window does not come up");
        away();
    }

    void open(HoverButton *control)
    {
        ++openings;
        menu = ContextMenu::popUp(items, *control);
        first.menu = second.menu = inner.menu = menu;
    }

    void away() { pointer::move(window, {1, 1}); }
    void openByPointer()
    {
        away();
        pointer::move(*button, button->rect().center());
        pointer::click(*button);
    }
    void openByKey()
    {
        key(Qt::Key_Tab);
        key(Qt::Key_Space);
    }
    void key(Qt::Key key) { QTest::keyClick(window.windowHandle(), key); }

    QAction *item(const char *text) const
    {
        return menu->findChild<QAction *>(QString::fromLatin1(text));
    }
    ContextMenu *submenu() const
    {
        return dynamic_cast<ContextMenu *>(menu->findChild<QMenu *>(QStringLiteral("Inner")));
    }
    QRect row(const char *text) const { return menu->actionGeometry(item(text)); }
    void clickItem(QMenu &in, const char *text) const
    {
        const QPoint at = in.actionGeometry(item(text)).center();
        pointer::move(in, at);
        pointer::click(in, at);
    }

    Choice first;
    Choice second;
    Choice inner;
    std::vector<MenuItem> items{
        {QStringLiteral("First"), {&first, &Choice::choose}, {}, false},
        {QStringLiteral("Second"), {&second, &Choice::choose}, {}, true},
        {QStringLiteral("Inner"),
         {},
         {{QStringLiteral("Innermost"), {&inner, &Choice::choose}, {}, false},
          {QStringLiteral("Other"), {}, {}, true}},
         true},
    };
    int openings = 0;
    View window;
    QPointer<HoverButton> button = new HoverButton(&window, {20, 150, 97, 27});
    QPointer<ContextMenu> menu;
};

QString namesOf(const QMenu &menu)
{
    QStringList names;
    for (const QAction *action : menu.actions())
        names += action->isSeparator() ? QStringLiteral("-") : action->objectName();
    return names.join(u' ');
}

QString activeName(const QMenu &menu)
{
    return menu.activeAction() ? menu.activeAction()->objectName() : QString();
}

QImage rowPicture(MenuStage &stage, const char *text)
{
    return shown(*stage.menu).copy(stage.row(text));
}

/// Where bright pixels, that is text and marks, stand in the picture of a row that is not lit.
QRect extentOfText(const QImage &row)
{
    const QImage bright =
        row.convertToFormat(QImage::Format_Mono, Qt::ThresholdDither | Qt::AvoidDither);
    return extentOf(bright.convertToFormat(QImage::Format_ARGB32), Qt::white);
}

/// The part of a row's picture that is left of its text.
QImage checkColumn(const QImage &row)
{
    return row.copy(0, 0, 26, row.height());
}

double linear(double part)
{
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &colour)
{
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double contrast(const QColor &text, const QColor &ground)
{
    return (luminance(text) + 0.05) / (luminance(ground) + 0.05);
}

/// Of the text in a row's picture against the brightest ground inside the row's edge.
double contrastIn(const QImage &row)
{
    const QImage inside = row.copy(row.rect().adjusted(4, 2, -4, -2));
    const QImage ground = inside.copy(0, 0, 18, inside.height());
    return contrast(brightest(inside), brightest(ground));
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

void tst_contextmenu::theHighlightShows()
{
    MenuStage stage;
    stage.openByPointer();
    const QImage atRest = rowPicture(stage, "First");
    const QImage otherAtRest = rowPicture(stage, "Second");
    pointer::move(*stage.menu, stage.row("First").center());
    QTRY_COMPARE(activeName(*stage.menu), QStringLiteral("First"));
    QCOMPARE(brightest(rowPicture(stage, "First")).name(), QStringLiteral("#ffffff"));
    QVERIFY(rowPicture(stage, "First") != atRest);
    QCOMPARE(rowPicture(stage, "Second"), otherAtRest);
    stage.key(Qt::Key_Down);
    QCOMPARE(rowPicture(stage, "First"), atRest);
    QVERIFY(rowPicture(stage, "Second") != otherAtRest);
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

void tst_contextmenu::anAmpersandIsShownAndTold()
{
    MenuStage stage;
    stage.items = {{QStringLiteral("HH"), {}, {}, false}, {QStringLiteral("H&H"), {}, {}, false}};
    stage.openByPointer();
    const int without = extentOfText(rowPicture(stage, "HH")).width();
    const int with = extentOfText(rowPicture(stage, "H&H")).width();
    const int ampersand = QFontMetrics(stage.menu->font()).horizontalAdvance(u'&');
    QVERIFY2(qAbs(with - without - ampersand) <= 1,
             qPrintable(QStringLiteral("%1 and %2").arg(without).arg(with)));
    auto *const told = QAccessible::queryAccessibleInterface(stage.menu);
    QCOMPARE(told->child(2)->text(QAccessible::Name), QStringLiteral("H&H"));
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

void tst_contextmenu::onlyCheckedItemsShowAMark()
{
    MenuStage stage;
    stage.openByPointer();
    QVERIFY(!stage.item("First")->isChecked());
    QVERIFY(stage.item("Second")->isChecked());
    QVERIFY(stage.item("Inner")->isChecked());
    QVERIFY(stage.item("Inner")->menu());
    QVERIFY(extentOfText(checkColumn(rowPicture(stage, "First"))).isEmpty());
    const QRect mark = extentOfText(checkColumn(rowPicture(stage, "Second")));
    QVERIFY(mark.width() >= 7 && mark.height() >= 6);
    QCOMPARE(extentOfText(checkColumn(rowPicture(stage, "Inner"))), mark);
}

void tst_contextmenu::everyTextIsShownWhole()
{
    const char *const text = "WMwm fjJQ";
    MenuStage stage;
    const auto extentWith = [&](const char *second) {
        stage.items = {{QString::fromLatin1(text), {}, {}, false},
                       {QString::fromLatin1(second), {}, {}, false}};
        stage.openByPointer();
        const QRect extent = extentOfText(rowPicture(stage, text));
        stage.key(Qt::Key_Escape);
        return extent;
    };
    const QRect alone = extentWith("i");
    QVERIFY(alone.width() > 40);
    // Beside a wider item there is more room than needed.
    QCOMPARE(alone, extentWith("A text far longer than the other one"));
}

void tst_contextmenu::theRowsAreHighEnoughToHit()
{
    MenuStage stage;
    stage.openByPointer();
    for (const char *text : {"First", "Second", "Inner"}) {
        QVERIFY(stage.row(text).height() >= 22);
        QVERIFY(extentOfText(rowPicture(stage, text)).width() < stage.row(text).width() - 8);
    }
}

void tst_contextmenu::theTextsCanBeReadOnTheirGround()
{
    MenuStage stage;
    stage.openByPointer();
    QVERIFY(contrastIn(rowPicture(stage, "First")) >= 4.5);
    QCOMPARE(brightest(rowPicture(stage, "First")).hsvHue(), QColor(255, 180, 0).hsvHue());
    stage.key(Qt::Key_Down);
    QCOMPARE(activeName(*stage.menu), QStringLiteral("First"));
    QVERIFY(contrastIn(rowPicture(stage, "First")) >= 4.5);
}

KYR_GUI_TEST(tst_contextmenu)
#include "tst_contextmenu.moc"
