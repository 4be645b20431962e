#include "dialogs/dialogstage.h"
#include "dialogs/dialogwindow.h"
#include "support/suite.h"

#include <QtWidgets/QLineEdit>

/// What the insides of any modal dialog share: which control has the keyboard at first, what Return
/// and Escape do with a field, and which answer comes back.
class tst_modaldialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theWindowIsMadeAtItsOwnersCorner();
    void itsFirstControlHasTheKeyboard();
    void runAgainWhileItRunsItGoesOn();
    void theAnswerIsTheTagOfTheButton_data();
    void theAnswerIsTheTagOfTheButton();
    void theFirstAnswerHolds();
    void returnInAFieldIsTheDialogsAffair_data();
    void returnInAFieldIsTheDialogsAffair();
    void returnWithoutAControlIsTheDialogsAffair();
    void returnPressesTheButtonWithTheKeyboard();
    void aKeyHeldDownIsNoReturn();
};

namespace {

constexpr int kCloseTag = 11;
constexpr int kOtherTag = 12;

/// A dialog of a field and two buttons.
class FieldDialog : public ModalDialog
{
public:
    static constexpr int kWidth = 200;
    static constexpr int kHeight = 120;

    explicit FieldDialog(QWidget *parent)
        : ModalDialog(parent),
          other(makeButton("other", {10, 10, 60, 20}, kOtherTag)),
          close(makeButton("close", {100, 10, 60, 20}, kCloseTag)),
          field(new QLineEdit(this))
    {
        setFrame({0, 0, kWidth, kHeight});
        field->setObjectName(QStringLiteral("field"));
        setKeyControls(close, field);
    }

    using ModalDialog::answer;

    HoverButton *other;
    HoverButton *close;
    QLineEdit *field;                            ///< the last one for the tab key
    static inline QList<int> answers;            ///< they come when the dialog may be going
    static inline QList<QWidget *> returns = {}; ///< with which control each Return came

protected:
    void answered(int tag) override { answers << tag; }
    void returnPressed(QWidget *focused) override { returns << focused; }

private:
    HoverButton *makeButton(const char *name, UpRect frame, int tag)
    {
        auto *const button = new HoverButton(this, frame);
        button->setObjectName(QString::fromLatin1(name));
        button->setTag(tag);
        button->setAction({this, &FieldDialog::pressed});
        return button;
    }
    void pressed(HoverButton *sender) { answer(sender->tag()); }
};

struct FieldDialogStage : DialogStage<FieldDialog>
{
    FieldDialogStage()
    {
        FieldDialog::answers.clear();
        FieldDialog::returns.clear();
    }
};

using FieldAnswer = std::function<void(FieldDialogStage &)>;

} // namespace

void tst_modaldialog::theWindowIsMadeAtItsOwnersCorner()
{
    custumwindow owner({70, 90, 600, 500}, nullptr);
    owner.show();
    FieldDialog *const dialog = makeDialogAt<FieldDialog>(owner);
    const auto *const window = dynamic_cast<custumwindow *>(dialog->window());
    QVERIFY((window->frame() == UpRect{70, 90, 200, 120}));
    QCOMPARE(window->parentWidget(), &owner);
    QCOMPARE(window->windowType(), Qt::Dialog);
    QVERIFY(window->bCanDragWindow());
    QVERIFY(!window->isVisible());
    QCOMPARE(window->minimumSize(), QSize(200, 120));
    QCOMPARE(window->maximumSize(), QSize(200, 120));
    QCOMPARE(dialog->geometry(), QRect(0, 0, 200, 120));
}

void tst_modaldialog::itsFirstControlHasTheKeyboard()
{
    FieldDialogStage stage;
    stage.run([&] {
        QVERIFY(stage.view->field->hasFocus());
        stage.click("close");
    });
}

void tst_modaldialog::runAgainWhileItRunsItGoesOn()
{
    FieldDialogStage stage;
    stage.run([&] {
        stage.view->runModal();
        QVERIFY(stage.view->window()->isVisible());
        QCOMPARE(FieldDialog::answers, QList<int>());
        stage.click("other");
    });
    QCOMPARE(FieldDialog::answers, QList<int>{kOtherTag});
}

void tst_modaldialog::theAnswerIsTheTagOfTheButton_data()
{
    QTest::addColumn<FieldAnswer>("answer");
    QTest::addColumn<int>("tag");
    const auto row = [](const char *name, int tag, const FieldAnswer &answer) {
        QTest::newRow(name) << answer << tag;
    };
    row("a button", kOtherTag, [](FieldDialogStage &stage) { stage.click("other"); });
    row("the close button", kCloseTag, [](FieldDialogStage &stage) { stage.click("close"); });
    row("Escape in a field", kCloseTag, [](FieldDialogStage &stage) { stage.key(Qt::Key_Escape); });
    row("Escape on a button", kCloseTag, [](FieldDialogStage &stage) {
        stage.key(Qt::Key_Tab);
        stage.key(Qt::Key_Escape);
    });
    row("the desktop", kCloseTag, [](FieldDialogStage &stage) { stage.closeByTheDesktop(); });
    row("hidden", kCloseTag, [](FieldDialogStage &stage) { stage.window->hide(); });
    row("the dialog itself", 99, [](FieldDialogStage &stage) { stage.view->answer(99); });
}

void tst_modaldialog::theAnswerIsTheTagOfTheButton()
{
    QFETCH(FieldAnswer, answer);
    QFETCH(int, tag);
    FieldDialogStage stage;
    stage.run([&] { answer(stage); });
    QCOMPARE(FieldDialog::answers, QList<int>{tag});
    QVERIFY(!stage.window->isVisible());
    QTRY_VERIFY(!stage.window);
}

void tst_modaldialog::theFirstAnswerHolds()
{
    FieldDialogStage stage;
    stage.run([&] {
        stage.click("other");
        stage.click("close");
        stage.window->hide();
    });
    QCOMPARE(FieldDialog::answers, QList<int>{kOtherTag});
}

void tst_modaldialog::returnInAFieldIsTheDialogsAffair_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Return") << Qt::Key_Return;
    QTest::newRow("Enter") << Qt::Key_Enter;
}

void tst_modaldialog::returnInAFieldIsTheDialogsAffair()
{
    QFETCH(Qt::Key, key);
    FieldDialogStage stage;
    stage.run([&] {
        stage.key(key);
        QCOMPARE(FieldDialog::returns, QList<QWidget *>{stage.view->field});
        QVERIFY(stage.window->isVisible());
        stage.click("close");
    });
    QCOMPARE(FieldDialog::answers, QList<int>{kCloseTag});
}

void tst_modaldialog::returnWithoutAControlIsTheDialogsAffair()
{
    FieldDialogStage stage;
    stage.run([&] {
        stage.view->field->clearFocus();
        stage.key(Qt::Key_Return);
        QCOMPARE(FieldDialog::returns, QList<QWidget *>{nullptr});
        stage.click("close");
    });
}

void tst_modaldialog::returnPressesTheButtonWithTheKeyboard()
{
    FieldDialogStage stage;
    stage.run([&] {
        stage.key(Qt::Key_Tab);
        stage.key(Qt::Key_Return);
    });
    QCOMPARE(FieldDialog::answers, QList<int>{kOtherTag});
    QCOMPARE(FieldDialog::returns, QList<QWidget *>());
}

void tst_modaldialog::aKeyHeldDownIsNoReturn()
{
    FieldDialogStage stage;
    stage.run([&] {
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape})
            QTest::simulateEvent(stage.window->windowHandle(), true, key, {}, {}, true);
        QCOMPARE(FieldDialog::returns, QList<QWidget *>());
        FieldDialogStage::later([&] {
            // Had the key answered, the run would be over and this call too late.
            QVERIFY(stage.window && stage.window->isVisible());
            stage.click("other");
        });
    });
    QCOMPARE(FieldDialog::answers, QList<int>{kOtherTag});
}

KYR_GUI_TEST(tst_modaldialog)
#include "tst_modaldialog.moc"
