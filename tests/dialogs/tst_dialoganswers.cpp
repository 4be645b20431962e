#include "dialogs/dialogstage.h"
#include "support/suite.h"

/// What each answer to a message dialog does: by mouse, by key and by the desktop.
class tst_dialoganswers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anAnswerToAQuestionDoesWhatItSays_data();
    void anAnswerToAQuestionDoesWhatItSays();
    void aQuestionWithoutActionsJustEnds_data();
    void aQuestionWithoutActionsJustEnds();
    void anAnswerToAWarningEndsIt_data() { plainAnswers("ButtonOK"); }
    void anAnswerToAWarningEndsIt() { endsOnTheAnswer<WarnOneView>(); }
    void anAnswerToTheAboutBoxEndsIt_data() { plainAnswers("ButtonClose"); }
    void anAnswerToTheAboutBoxEndsIt() { endsOnTheAnswer<AboutView>(); }
    void theActionComesBetweenTheRunAndTheClosing_data();
    void theActionComesBetweenTheRunAndTheClosing();
    void onlyTheFirstAnswerCounts();
    void aTargetThatIsGoneIsNotCalled();
    void theActionMayDeleteTheWindow();
    void aWindowDeletedDuringTheRunAnswersNothing();
    void theEndOfTheProgramAnswersNothing();
    void theEndOfTheProgramEndsNestedDialogs();
    void aDialogOpenedByTheActionEndsFirst();
    void aDialogOpenedDuringTheRunEndsFirst();

private:
    template <class Dialog>
    using Answer = std::function<void(DialogStage<Dialog> &)>;

    static void plainAnswers(const char *first);
    template <class Dialog>
    void endsOnTheAnswer();
};

namespace {

using QuestionStage = DialogStage<WarnTwoView>;
using QuestionAnswer = std::function<void(QuestionStage &)>;

void answerRows(const std::function<void(const char *, const QStringList &, QuestionAnswer)> &row)
{
    const QStringList yes{QStringLiteral("YES")};
    const QStringList no{QStringLiteral("NO")};
    row("the close button", {}, [](QuestionStage &stage) { stage.click("ButtonClose"); });
    row("OK", yes, [](QuestionStage &stage) { stage.click("ButtonOK"); });
    row("Cancel", no, [](QuestionStage &stage) { stage.click("ButtonCancel"); });
    row("Escape", {}, [](QuestionStage &stage) { stage.key(Qt::Key_Escape); });
    row("Return", yes, [](QuestionStage &stage) { stage.key(Qt::Key_Return); });
    row("Enter", yes, [](QuestionStage &stage) { stage.key(Qt::Key_Enter); });
    row("Space", yes, [](QuestionStage &stage) { stage.key(Qt::Key_Space); });
    const auto onCancel = [](Qt::Key key) {
        return [key](QuestionStage &stage) {
            stage.key(Qt::Key_Tab);
            stage.key(key);
        };
    };
    row("Return on Cancel", no, onCancel(Qt::Key_Return));
    row("Space on Cancel", no, onCancel(Qt::Key_Space));
    row("Escape on Cancel", {}, onCancel(Qt::Key_Escape));
    row("Return on the close button", {}, [](QuestionStage &stage) {
        stage.key(Qt::Key_Backtab);
        stage.key(Qt::Key_Return);
    });
    row("closed by the desktop", {}, [](QuestionStage &stage) { stage.closeByTheDesktop(); });
}

} // namespace

void tst_dialoganswers::anAnswerToAQuestionDoesWhatItSays_data()
{
    QTest::addColumn<QuestionAnswer>("answer");
    QTest::addColumn<QStringList>("actions");
    answerRows([](const char *name, const QStringList &actions, const QuestionAnswer &answer) {
        QTest::newRow(name) << answer << actions;
    });
}

void tst_dialoganswers::anAnswerToAQuestionDoesWhatItSays()
{
    QFETCH(QuestionAnswer, answer);
    QFETCH(QStringList, actions);
    QuestionStage stage;
    const Answers answers(stage);
    stage.run([&] { answer(stage); });
    QCOMPARE(answers.came, actions);
    QVERIFY(!stage.window->isVisible());
    QTRY_VERIFY(!stage.window);
}

void tst_dialoganswers::aQuestionWithoutActionsJustEnds_data()
{
    QTest::addColumn<QuestionAnswer>("answer");
    answerRows([](const char *name, const QStringList & /*actions*/, const QuestionAnswer &answer) {
        QTest::newRow(name) << answer;
    });
}

void tst_dialoganswers::aQuestionWithoutActionsJustEnds()
{
    QFETCH(QuestionAnswer, answer);
    QuestionStage stage;
    stage.run([&] { answer(stage); });
    QVERIFY(!stage.window->isVisible());
    QTRY_VERIFY(!stage.window);
}

/// The answers to a dialog in which every answer means the same; `first` has the keyboard at first.
void tst_dialoganswers::plainAnswers(const char *first)
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<Qt::Key>("key");
    const auto row = [](const char *name, const char *button, Qt::Key key) {
        QTest::newRow(name) << QByteArray(button) << key;
    };
    row("the close button", "ButtonClose", {});
    row("the first button", first, {});
    row("Escape", "", Qt::Key_Escape);
    row("Return", "", Qt::Key_Return);
    row("Enter", "", Qt::Key_Enter);
    row("Space", "", Qt::Key_Space);
    row("closed by the desktop", "", {});
}

template <class Dialog>
void tst_dialoganswers::endsOnTheAnswer()
{
    QFETCH(QByteArray, button);
    QFETCH(Qt::Key, key);
    DialogStage<Dialog> stage;
    stage.run([&] {
        if (!button.isEmpty())
            stage.click(button.constData());
        else if (key)
            stage.key(key);
        else
            stage.closeByTheDesktop();
    });
    QVERIFY(!stage.window->isVisible());
    QTRY_VERIFY(!stage.window);
}

void tst_dialoganswers::theActionComesBetweenTheRunAndTheClosing_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::newRow("OK") << QByteArray("ButtonOK");
    QTest::newRow("Cancel") << QByteArray("ButtonCancel");
}

void tst_dialoganswers::theActionComesBetweenTheRunAndTheClosing()
{
    QFETCH(QByteArray, button);
    QuestionStage stage;
    const Answers answers(stage);
    stage.run([&] {
        stage.click(button.constData());
        QVERIFY(answers.came.isEmpty());
    });
    QCOMPARE(answers.came.size(), 1);
    QVERIFY(!answers.inTheRun);
    QVERIFY(!answers.afterClose);
    QVERIFY(!stage.window->isVisible());
}

void tst_dialoganswers::onlyTheFirstAnswerCounts()
{
    QuestionStage stage;
    const Answers answers(stage);
    stage.run([&] {
        stage.click("ButtonCancel");
        stage.click("ButtonOK");
        stage.key(Qt::Key_Escape);
    });
    QCOMPARE(answers.came, QStringList(QStringLiteral("NO")));
}

void tst_dialoganswers::aTargetThatIsGoneIsNotCalled()
{
    QuestionStage stage;
    auto answers = std::make_unique<Answers>(stage);
    stage.run([&] {
        answers.reset();
        stage.click("ButtonOK");
    });
    QVERIFY(!stage.window->isVisible());
}

void tst_dialoganswers::theActionMayDeleteTheWindow()
{
    QuestionStage stage;
    Answers answers(stage);
    answers.during = [&] { delete stage.window; };
    stage.run([&] { stage.click("ButtonOK"); });
    QCOMPARE(answers.came.size(), 1);
    QVERIFY(!stage.view);
}

void tst_dialoganswers::aWindowDeletedDuringTheRunAnswersNothing()
{
    QuestionStage stage;
    const Answers answers(stage);
    stage.run([&] { delete stage.window; });
    QVERIFY(answers.came.isEmpty());
}

void tst_dialoganswers::theEndOfTheProgramAnswersNothing()
{
    QuestionStage stage;
    const Answers answers(stage);
    bool returned = false;
    QuestionStage::later([&] {
        stage.run([] { QCoreApplication::exit(7); });
        returned = true;
    });
    QCOMPARE(QCoreApplication::exec(), 7);
    QVERIFY(returned);
    QVERIFY(answers.came.isEmpty());
}

void tst_dialoganswers::theEndOfTheProgramEndsNestedDialogs()
{
    QuestionStage outer;
    QuestionStage inner;
    const Answers outerAnswers(outer);
    const Answers innerAnswers(inner);
    QuestionStage::later([&] { outer.run([&] { inner.run([] { QCoreApplication::exit(7); }); }); });
    QCOMPARE(QCoreApplication::exec(), 7);
    QVERIFY(outerAnswers.came.isEmpty());
    QVERIFY(innerAnswers.came.isEmpty());
}

void tst_dialoganswers::aDialogOpenedByTheActionEndsFirst()
{
    QuestionStage outer;
    QuestionStage inner;
    Answers outerAnswers(outer);
    const Answers innerAnswers(inner);
    outerAnswers.during = [&] {
        inner.run([&] {
            QVERIFY(outer.window->isVisible());
            outer.click("ButtonOK"); // behind the inner dialog: takes nothing
            inner.click("ButtonCancel");
        });
        QVERIFY(!inner.window->isVisible());
        QVERIFY(outer.window->isVisible());
    };
    outer.run([&] { outer.click("ButtonOK"); });
    QCOMPARE(outerAnswers.came, QStringList(QStringLiteral("YES")));
    QCOMPARE(innerAnswers.came, QStringList(QStringLiteral("NO")));
    QVERIFY(!outer.window->isVisible());
}

void tst_dialoganswers::aDialogOpenedDuringTheRunEndsFirst()
{
    QuestionStage outer;
    QuestionStage inner;
    const Answers outerAnswers(outer);
    const Answers innerAnswers(inner);
    outer.run([&] {
        inner.run([&] {
            outer.click("ButtonOK"); // behind the inner dialog: takes nothing
            inner.click("ButtonOK");
        });
        QCOMPARE(innerAnswers.came, QStringList(QStringLiteral("YES")));
        QVERIFY(outer.window->isVisible());
        QVERIFY(outerAnswers.came.isEmpty());
        outer.click("ButtonCancel");
    });
    QCOMPARE(outerAnswers.came, QStringList(QStringLiteral("NO")));
}

KYR_GUI_TEST(tst_dialoganswers)
#include "tst_dialoganswers.moc"
