#include "panelstage.h"
#include "support/suite.h"

#include <QtWidgets/QDialogButtonBox>

/// The ways in which a file panel gives nothing, or has no window to belong to.
class tst_panelends : public PanelTest
{
    Q_OBJECT

private Q_SLOTS:
    void cancellingGivesNothing_data();
    void cancellingGivesNothing();
    void aWindowThatGoesTakesThePanelAlong_data();
    void aWindowThatGoesTakesThePanelAlong();
    void aWindowThatGoesTakesTheQuestionAlong();
    void quittingCancels_data();
    void quittingCancels();
    void aPanelNeedsNoWindow();
};

void tst_panelends::cancellingGivesNothing_data()
{
    QTest::addColumn<bool>("isSave");
    QTest::addColumn<int>("way");
    for (const bool isSave : {false, true}) {
        const char *const name = isSave ? "save" : "open";
        QTest::addRow("%s, Escape", name) << isSave << 0;
        QTest::addRow("%s, button", name) << isSave << 1;
        QTest::addRow("%s, closed", name) << isSave << 2;
    }
}

void tst_panelends::cancellingGivesNothing()
{
    QFETCH(bool, isSave);
    QFETCH(int, way);
    const auto clickCancel = [](QDialog &dialog) {
        const auto *const buttons = dialog.findChild<QDialogButtonBox *>();
        QTest::mouseClick(buttons->button(QDialogButtonBox::Cancel), Qt::LeftButton);
    };
    const auto close = [](QDialog &dialog) { dialog.close(); };
    const User::Answer ways[] = {cancel, clickCancel, close};
    putFile(documents().filePath(QStringLiteral("Profile0.XML")));
    PanelStage stage;
    stage.user.then(ways[way]);
    QVERIFY(!stage.ask(isSave));
    QVERIFY(stage.user.isDone());
    QVERIFY(stage.window->findChildren<QDialog *>().isEmpty());
}

void tst_panelends::aWindowThatGoesTakesThePanelAlong_data()
{
    addBothPanels();
}

void tst_panelends::aWindowThatGoesTakesThePanelAlong()
{
    QFETCH(bool, isSave);
    PanelStage stage;
    QPointer<QDialog> gone;
    stage.user.then([&](QDialog &dialog) {
        gone = &dialog;
        stage.window.reset();
    });
    QVERIFY(!stage.ask(isSave));
    QVERIFY(!gone);
    QVERIFY(stage.user.isDone());
}

void tst_panelends::aWindowThatGoesTakesTheQuestionAlong()
{
    putFile(documents().filePath(QStringLiteral("Profile0.XML")));
    PanelStage stage;
    QPointer<QDialog> gone;
    stage.user.then(confirm).then([&](QDialog &dialog) {
        gone = &dialog;
        stage.window.reset();
    });
    QVERIFY(!stage.save());
    QVERIFY(!gone);
    QVERIFY(stage.user.isDone());
}

void tst_panelends::quittingCancels_data()
{
    QTest::addColumn<bool>("isSave");
    QTest::addColumn<int>("answersBefore");
    QTest::newRow("open") << false << 0;
    QTest::newRow("save") << true << 0;
    QTest::newRow("the question") << true << 1;
}

void tst_panelends::quittingCancels()
{
    QFETCH(bool, isSave);
    QFETCH(int, answersBefore);
    putFile(documents().filePath(QStringLiteral("Profile0.XML")));
    PanelStage stage;
    for (int i = 0; i < answersBefore; ++i)
        stage.user.then(confirm);
    stage.user.then([](QDialog & /*dialog*/) { QCoreApplication::exit(7); });
    Path path("not asked");
    const auto ask = [&] {
        path = stage.ask(isSave);
        if (!stage.user.isDone())
            QCoreApplication::exit(); // the answer that quits was not asked for
    };
    QMetaObject::invokeMethod(&stage.user, ask, Qt::QueuedConnection);
    QCOMPARE(QCoreApplication::exec(), 7);
    QVERIFY(!path);
    QVERIFY(stage.user.isDone());
    QVERIFY(stage.window->findChildren<QDialog *>().isEmpty());
}

void tst_panelends::aPanelNeedsNoWindow()
{
    PanelStage stage;
    stage.window.reset();
    stage.user.then([](QDialog &dialog) {
        QVERIFY(!dialog.parentWidget());
        confirm(dialog);
    });
    QCOMPARE(stage.save(), Path(documentPath(QStringLiteral("Profile0.XML"))));
    QVERIFY(stage.user.isDone());
}

KYR_GUI_TEST(tst_panelends)
#include "tst_panelends.moc"
