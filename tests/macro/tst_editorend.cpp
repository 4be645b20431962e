#include "editorstage.h"
#include "support/suite.h"

/// How the macro editor ends, and who is told.
class tst_editorend : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anythingButOKCancels_data();
    void anythingButOKCancels();
    void okTellsItsTarget_data();
    void okTellsItsTarget();
    void theMacroIsSavedBeforeTheTargetIsTold();
    void theTargetIsToldAfterTheRunAndBeforeTheWindowCloses();
    void onlyTheFirstAnswerCounts();
    void aSecondOKSavesNothingMore();
    void anOKAfterCancelSavesNothing();
    void theNameHasTheKeyboardAtFirst();
    void theWindowBehindTakesNoInput();
    void aTargetThatIsGoneIsNotTold();
    void anEditorWithoutATargetJustEnds();
    void theTargetMayDeleteTheWindow();
    void aWindowDestroyedDuringTheRunTellsNobody();
    void anOwnerDestroyedDuringTheRunTellsNobody();
    void theEndOfTheProgramSavesNothing();
};

namespace {

using Answer = std::function<void(const EditorStage &, const OpenDialog &)>;

void answerColumn()
{
    QTest::addColumn<Answer>("answer");
}

} // namespace

void tst_editorend::anythingButOKCancels_data()
{
    answerColumn();
    const auto row = [](const char *name, const Answer &answer) { QTest::newRow(name) << answer; };
    row("CANCEL", [](const EditorStage &, const OpenDialog &it) { it.click("ButtonCancel"); });
    row("the close button",
        [](const EditorStage &, const OpenDialog &it) { it.click("ButtonClose"); });
    row("Escape", [](const EditorStage &, const OpenDialog &it) { it.key(Qt::Key_Escape); });
    row("Escape in the text", [](const EditorStage &stage, const OpenDialog &it) {
        stage.click("ButtonCopy");
        pointer::click(stage.text());
        it.key(Qt::Key_Escape);
    });
    row("Escape in the loop count", [](const EditorStage &stage, const OpenDialog &it) {
        pointer::click(stage.loop());
        it.key(Qt::Key_Escape);
    });
    row("Escape on OK", [](const EditorStage &stage, const OpenDialog &it) {
        keyboard::tabTo(stage.button("ButtonOK"));
        it.key(Qt::Key_Escape);
    });
    row("Return on CANCEL", [](const EditorStage &stage, const OpenDialog &it) {
        keyboard::tabTo(stage.button("ButtonCancel"));
        it.key(Qt::Key_Return);
    });
    row("Space on CANCEL", [](const EditorStage &stage, const OpenDialog &it) {
        keyboard::tabTo(stage.button("ButtonCancel"));
        it.key(Qt::Key_Space);
    });
    row("closed by the desktop",
        [](const EditorStage &, const OpenDialog &it) { it.closeByTheDesktop(); });
    row("closed by the desktop while it records",
        [](const EditorStage &stage, const OpenDialog &it) {
            stage.click("pMacroDisplayView");
            keystroke::tap(keystroke::kB);
            it.closeByTheDesktop();
        });
}

void tst_editorend::anythingButOKCancels()
{
    QFETCH(Answer, answer);
    EditorStage stage(namedMacro("before"));
    const ConfigData before = m_Config;
    const MacroView *const editor = stage.view;
    stage.type(stage.name(), "typed");
    stage.run([&](const OpenDialog &dialog) { answer(stage, dialog); });
    QCOMPARE(stage.target.came, QStringList(QStringLiteral("Cancel")));
    QCOMPARE(stage.target.editor, editor);
    QVERIFY(isUnchanged(before));
    QVERIFY(!stage.window->isVisible());
    QTRY_VERIFY(!stage.window);
}

void tst_editorend::okTellsItsTarget_data()
{
    answerColumn();
    QTest::newRow("by mouse") << Answer(
        [](const EditorStage &, const OpenDialog &it) { it.click("ButtonOK"); });
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        QTest::addRow("by key %x", key)
            << Answer([key](const EditorStage &stage, const OpenDialog &it) {
                   keyboard::tabTo(stage.button("ButtonOK"));
                   it.key(key);
               });
    }
}

void tst_editorend::okTellsItsTarget()
{
    QFETCH(Answer, answer);
    EditorStage stage(namedMacro("before"));
    const MacroView *const editor = stage.view;
    stage.type(stage.name(), "typed");
    stage.run([&](const OpenDialog &dialog) { answer(stage, dialog); });
    QCOMPARE(stage.target.came, QStringList(QStringLiteral("OK")));
    QCOMPARE(stage.target.editor, editor);
    QCOMPARE(nameOf(m_Config.PROFILE[0].MACRO[0]), QStringLiteral("typed"));
    QVERIFY(!stage.window->isVisible());
    QTRY_VERIFY(!stage.window);
}

void tst_editorend::theMacroIsSavedBeforeTheTargetIsTold()
{
    EditorStage stage;
    QString name;
    stage.target.during = [&] { name = nameOf(m_Config.PROFILE[0].MACRO[0]); };
    stage.run([](const OpenDialog &dialog) { dialog.click("ButtonOK"); });
    QCOMPARE(name, QStringLiteral("Custom"));
}

void tst_editorend::theTargetIsToldAfterTheRunAndBeforeTheWindowCloses()
{
    EditorStage stage;
    bool wasVisible = false;
    stage.target.during = [&] { wasVisible = stage.window->isVisible(); };
    stage.run([&](const OpenDialog &dialog) {
        dialog.click("ButtonOK");
        QCOMPARE(stage.target.came, QStringList());
    });
    QCOMPARE(stage.target.came.size(), 1);
    QVERIFY(wasVisible);
}

void tst_editorend::onlyTheFirstAnswerCounts()
{
    EditorStage stage;
    stage.run([](const OpenDialog &dialog) {
        dialog.click("ButtonCancel");
        dialog.key(Qt::Key_Escape);
        dialog.click("ButtonClose");
    });
    QCOMPARE(stage.target.came, QStringList(QStringLiteral("Cancel")));
}

void tst_editorend::aSecondOKSavesNothingMore()
{
    EditorStage stage;
    stage.run([](const OpenDialog &dialog) {
        dialog.click("ButtonOK");
        dialog.click("ButtonOK");
    });
    QCOMPARE(nameOf(CurrentProfile().MACRO[0]), QStringLiteral("Custom"));
    QCOMPARE(nameOf(CurrentProfile().MACRO[1]), QString());
}

void tst_editorend::anOKAfterCancelSavesNothing()
{
    EditorStage stage;
    const ConfigData before = m_Config;
    stage.run([](const OpenDialog &dialog) {
        dialog.click("ButtonCancel");
        dialog.click("ButtonOK");
    });
    QVERIFY(isUnchanged(before));
    QCOMPARE(stage.target.came, QStringList(QStringLiteral("Cancel")));
}

void tst_editorend::theNameHasTheKeyboardAtFirst()
{
    EditorStage stage;
    stage.run([&](const OpenDialog &dialog) {
        QVERIFY(stage.name().hasFocus());
        dialog.key(Qt::Key_Z);
        QCOMPARE(stage.name().text(), QStringLiteral("z"));
        dialog.click("ButtonCancel");
    });
}

void tst_editorend::theWindowBehindTakesNoInput()
{
    EditorStage stage;
    HoverButton behind(&stage.owner, {500, 500, 50, 30});
    behind.show();
    Receiver<HoverButton> clicks;
    behind.setAction({&clicks, &Receiver<HoverButton>::receive});
    pointer::click(behind);
    QCOMPARE(clicks.count(), 1U);
    stage.run([&](const OpenDialog &dialog) {
        pointer::click(behind);
        QCOMPARE(clicks.count(), 1U);
        dialog.click("ButtonCancel");
    });
    pointer::click(behind);
    QCOMPARE(clicks.count(), 2U);
}

void tst_editorend::aTargetThatIsGoneIsNotTold()
{
    EditorStage stage;
    auto target = std::make_unique<EditorTarget>();
    stage.view->setTarget(target.get());
    stage.run([&](const OpenDialog &dialog) {
        target.reset();
        dialog.click("ButtonOK");
    });
    QCOMPARE(nameOf(m_Config.PROFILE[0].MACRO[0]), QStringLiteral("Custom"));
    QCOMPARE(stage.target.came, QStringList());
}

void tst_editorend::anEditorWithoutATargetJustEnds()
{
    custumwindow owner({40, 50, 600, 550}, nullptr);
    owner.show();
    EditorStage::giveKeyboardTo(owner);
    const QPointer<MacroView> view = makeDialogAt<MacroView>(owner);
    const DialogVisitor visitor([](const OpenDialog &dialog) { dialog.click("ButtonCancel"); });
    view->runModal();
    QCOMPARE(visitor.count(), 1);
    QTRY_VERIFY(!view);
}

void tst_editorend::theTargetMayDeleteTheWindow()
{
    EditorStage stage;
    stage.target.during = [&] { delete stage.window; };
    stage.run([](const OpenDialog &dialog) { dialog.click("ButtonOK"); });
    QCOMPARE(stage.target.came, QStringList(QStringLiteral("OK")));
    QVERIFY(!stage.view);
}

void tst_editorend::aWindowDestroyedDuringTheRunTellsNobody()
{
    EditorStage stage;
    const ConfigData before = m_Config;
    stage.run([&](const OpenDialog & /*dialog*/) {
        stage.click("pMacroDisplayView"); // with the whole keyboard held
        delete stage.window;
    });
    QCOMPARE(stage.target.came, QStringList());
    QVERIFY(isUnchanged(before));
}

void tst_editorend::anOwnerDestroyedDuringTheRunTellsNobody()
{
    EditorTarget target;
    auto owner = std::make_unique<custumwindow>(UpRect{40, 50, 600, 550}, nullptr);
    owner->show();
    EditorStage::giveKeyboardTo(*owner);
    const QPointer<MacroView> view = makeDialogAt<MacroView>(*owner);
    view->setTarget(&target);
    const DialogVisitor visitor([&](const OpenDialog & /*dialog*/) { owner.reset(); });
    view->runModal();
    QCOMPARE(visitor.count(), 1);
    QVERIFY(!view);
    QCOMPARE(target.came, QStringList());
}

void tst_editorend::theEndOfTheProgramSavesNothing()
{
    EditorStage stage;
    const ConfigData before = m_Config;
    QMetaObject::invokeMethod(
        qApp,
        [&] {
            stage.run([&](const OpenDialog & /*dialog*/) {
                stage.type(stage.name(), "typed");
                QCoreApplication::exit(7);
            });
        },
        Qt::QueuedConnection);
    QCOMPARE(QCoreApplication::exec(), 7);
    QCOMPARE(stage.target.came, QStringList(QStringLiteral("Cancel")));
    QVERIFY(isUnchanged(before));
}

KYR_GUI_TEST(tst_editorend)
#include "tst_editorend.moc"
