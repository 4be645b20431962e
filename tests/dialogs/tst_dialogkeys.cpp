#include "dialogs/dialogstage.h"
#include "support/suite.h"

/// The keyboard and the pointer in a message dialog, before it is answered.
class tst_dialogkeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theKeyboardStartsAtOK();
    void theKeyboardOfTheAboutBoxStartsAtItsOnlyButton();
    void keysMoveTheKeyboard_data();
    void keysMoveTheKeyboard();
    void theOnlyButtonKeepsTheKeyboard();
    void theRingIsShownOnceTheKeyboardWasMoved_data();
    void theRingIsShownOnceTheKeyboardWasMoved();
    void aKeyHeldDownFromBeforeAnswersNothing_data();
    void aKeyHeldDownFromBeforeAnswersNothing();
    void aDragByTheBackgroundMovesTheDialog();
};

namespace {

using QuestionStage = DialogStage<WarnTwoView>;

constexpr const char *kOK = "ButtonOK";
constexpr const char *kCancel = "ButtonCancel";
constexpr const char *kClose = "ButtonClose";

bool showsRing(HoverButton &button)
{
    return extentOf(shown(button), kGold) == button.rect() &&
           shownAt(button, {0, button.height() / 2}) == kGold;
}

} // namespace

void tst_dialogkeys::theKeyboardStartsAtOK()
{
    QuestionStage stage;
    stage.run([&] {
        QCOMPARE(stage.focused(), QLatin1String(kOK));
        QVERIFY(!showsRing(stage.button(kOK)));
        stage.click(kClose);
    });
    DialogStage<WarnOneView> warning;
    warning.run([&] {
        QCOMPARE(warning.focused(), QLatin1String(kOK));
        warning.click(kClose);
    });
}

void tst_dialogkeys::theKeyboardOfTheAboutBoxStartsAtItsOnlyButton()
{
    DialogStage<AboutView> stage;
    stage.run([&] {
        QCOMPARE(stage.focused(), QLatin1String(kClose));
        stage.click(kClose);
    });
}

void tst_dialogkeys::keysMoveTheKeyboard_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QStringList>("way");
    const auto row = [](const char *name, Qt::Key key, const QList<const char *> &way) {
        QStringList names;
        for (const char *button : way)
            names << QString::fromLatin1(button);
        QTest::newRow(name) << key << names;
    };
    const QList<const char *> forward{kCancel, kClose, kOK};
    const QList<const char *> backward{kClose, kCancel, kOK};
    row("Tab", Qt::Key_Tab, forward);
    row("Right", Qt::Key_Right, forward);
    row("Down", Qt::Key_Down, forward);
    row("Backtab", Qt::Key_Backtab, backward);
    row("Left", Qt::Key_Left, backward);
    row("Up", Qt::Key_Up, backward);
}

void tst_dialogkeys::keysMoveTheKeyboard()
{
    QFETCH(Qt::Key, key);
    QFETCH(QStringList, way);
    QuestionStage stage;
    QStringList taken;
    stage.run([&] {
        for (qsizetype step = 0; step < way.size(); ++step) {
            stage.key(key);
            taken << stage.focused();
        }
        stage.click(kClose);
    });
    QCOMPARE(taken, way);
}

void tst_dialogkeys::theOnlyButtonKeepsTheKeyboard()
{
    DialogStage<AboutView> stage;
    stage.run([&] {
        for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Left, Qt::Key_Down}) {
            stage.key(key);
            QCOMPARE(stage.focused(), QLatin1String(kClose));
        }
        stage.click(kClose);
    });
}

void tst_dialogkeys::theRingIsShownOnceTheKeyboardWasMoved_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Tab") << Qt::Key_Tab;
    QTest::newRow("Right") << Qt::Key_Right;
    QTest::newRow("Down") << Qt::Key_Down;
}

void tst_dialogkeys::theRingIsShownOnceTheKeyboardWasMoved()
{
    QFETCH(Qt::Key, key);
    QuestionStage stage;
    stage.run([&] {
        QVERIFY(!showsRing(stage.button(kCancel)));
        stage.key(key);
        QVERIFY(showsRing(stage.button(kCancel)));
        QVERIFY(!showsRing(stage.button(kOK)));
        stage.click(kClose);
    });
}

void tst_dialogkeys::aKeyHeldDownFromBeforeAnswersNothing_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Return") << Qt::Key_Return;
    QTest::newRow("Enter") << Qt::Key_Enter;
    QTest::newRow("Escape") << Qt::Key_Escape;
    QTest::newRow("Space") << Qt::Key_Space;
}

void tst_dialogkeys::aKeyHeldDownFromBeforeAnswersNothing()
{
    QFETCH(Qt::Key, key);
    QuestionStage stage;
    const Answers answers(stage);
    stage.run([&] {
        QTest::simulateEvent(stage.window->windowHandle(), true, key, {}, {}, true);
        QuestionStage::later([&] {
            // Had the key answered, the run would be over and this call too late.
            QVERIFY(stage.window && stage.window->isVisible());
            stage.click(kCancel);
        });
    });
    QCOMPARE(answers.came, QStringList(QStringLiteral("NO")));
}

void tst_dialogkeys::aDragByTheBackgroundMovesTheDialog()
{
    QuestionStage stage;
    stage.run([&] {
        const QPoint before = stage.window->pos();
        const QPoint start = stage.window->mapToGlobal(QPoint(10, 100));
        pointer::press(*stage.window, {10, 100});
        for (const QPoint way : {QPoint(20, 15), QPoint(40, 30)})
            pointer::move(*stage.window, stage.window->mapFromGlobal(start + way));
        pointer::release(*stage.window, {10, 100});
        QCOMPARE(stage.window->pos(), before + QPoint(40, 30));
        stage.click(kClose);
    });
}

KYR_GUI_TEST(tst_dialogkeys)
#include "tst_dialogkeys.moc"
