#include "controls/HoverButton.h"
#include "support/suite.h"
#include "treestage.h"

/// An outline under the keyboard: what each key selects, opens and tells.
class tst_myoutlinekeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachKeyDoesItsOwn_data();
    void eachKeyDoesItsOwn();
    void returnTogglesACategoryEachTime();
    void typingTheBeginningOfANameGoesThere();
    void theChosenRowComesIntoSight();
    void theTabKeyReachesTheOutlineAndTellsNobody();
    void theFirstArrowKeySelectsTheFirstRow_data();
    void theFirstArrowKeySelectsTheFirstRow();
    void fromAClosedCategoryTheKeysGoOnFromItsOwnRow_data();
    void fromAClosedCategoryTheKeysGoOnFromItsOwnRow();
    void theTabKeyDoesNotGoFromRowToRow();
};

void tst_myoutlinekeys::eachKeyDoesItsOwn_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QString>("told");
    QTest::addColumn<QString>("opened");
    const char *const movement = "Movement Keys";
    const auto row = [&](const char *name, int from, Qt::Key key, const char *told,
                         const char *opened) {
        QTest::newRow(name) << from << key << QString::fromLatin1(told)
                            << QString::fromLatin1(opened);
    };
    row("down", 1, Qt::Key_Down, "Action Bar Functions", movement);
    row("down into a category", 0, Qt::Key_Down, "Move and Steer", movement);
    row("down at the end", 6, Qt::Key_Down, "", movement);
    row("up", 4104, Qt::Key_Up, "Strafe Right", movement);
    row("up to a category", 4097, Qt::Key_Up, "Movement Keys", movement);
    row("up at the top", 0, Qt::Key_Up, "", movement);
    row("home", 5, Qt::Key_Home, "Movement Keys", movement);
    row("home at the top", 0, Qt::Key_Home, "", movement);
    row("end", 0, Qt::Key_End, "Miscellaneous Functions", movement);
    row("end at the end", 6, Qt::Key_End, "", movement);
    row("right opens", 1, Qt::Key_Right, "", "Movement Keys|Chat Functions");
    row("right goes in", 0, Qt::Key_Right, "Move and Steer", movement);
    row("right on a command", 4104, Qt::Key_Right, "", movement);
    row("left closes", 0, Qt::Key_Left, "", "");
    row("left goes out", 4104, Qt::Key_Left, "Movement Keys", movement);
    row("left on a closed one", 1, Qt::Key_Left, "", movement);
    row("return on a command", 4104, Qt::Key_Return, "Jump", movement);
    row("enter on a command", 4104, Qt::Key_Enter, "Jump", movement);
    row("space on a command", 4104, Qt::Key_Space, "Jump", movement);
    row("space opens", 1, Qt::Key_Space, "Chat Functions", "Movement Keys|Chat Functions");
    row("return opens", 1, Qt::Key_Return, "Chat Functions", "Movement Keys|Chat Functions");
    row("return closes", 0, Qt::Key_Return, "Movement Keys", "");
    row("a letter", 0, Qt::Key_T, "Turn Left", movement);
    row("a letter that begins no name", 0, Qt::Key_X, "", movement);
    row("plus opens", 1, Qt::Key_Plus, "", "Movement Keys|Chat Functions");
    row("minus closes", 0, Qt::Key_Minus, "", "");
    row("escape", 4104, Qt::Key_Escape, "", movement);
}

void tst_myoutlinekeys::eachKeyDoesItsOwn()
{
    QFETCH(int, from);
    QFETCH(Qt::Key, key);
    QFETCH(QString, told);
    TreeStage stage;
    keyboard::tabTo(stage.outline);
    stage.outline.expandItembyIndex(0);
    stage.outline.setSelectedItembyIndex(from);
    const QString before = stage.selected();
    keyboard::press(key);
    QCOMPARE(stage.chosen().join(QLatin1Char('|')), told);
    QCOMPARE(stage.selected(), told.isEmpty() ? before : told);
    QTEST(stage.opened().join(QLatin1Char('|')), "opened");
}

void tst_myoutlinekeys::returnTogglesACategoryEachTime()
{
    TreeStage stage;
    keyboard::tabTo(stage.outline);
    stage.outline.setSelectedItembyIndex(5);
    const QStringList cameraOpen{QStringLiteral("Camera Functions")};
    for (const QStringList &expected : {cameraOpen, QStringList(), cameraOpen}) {
        keyboard::press(Qt::Key_Return);
        QCOMPARE(stage.opened(), expected);
    }
    QCOMPARE(stage.choices.count(), std::size_t{3});
}

void tst_myoutlinekeys::typingTheBeginningOfANameGoesThere()
{
    TreeStage stage;
    keyboard::tabTo(stage.outline);
    stage.outline.setSelectedItembyIndex(0);
    keyboard::press(Qt::Key_C);
    keyboard::press(Qt::Key_A);
    QCOMPARE(stage.selected(), QStringLiteral("Camera Functions"));
    QCOMPARE(stage.chosen(),
             (QStringList{QStringLiteral("Chat Functions"), QStringLiteral("Camera Functions")}));
}

void tst_myoutlinekeys::theChosenRowComesIntoSight()
{
    TreeStage stage;
    keyboard::tabTo(stage.outline);
    stage.outline.expandItembyIndex(2);
    stage.outline.setSelectedItembyIndex(0);
    keyboard::press(Qt::Key_End);
    QVERIFY(outlinerows::isInSight(stage.outline, "Miscellaneous Functions"));
    keyboard::press(Qt::Key_Home);
    QVERIFY(outlinerows::isInSight(stage.outline, "Movement Keys"));
}

void tst_myoutlinekeys::theTabKeyReachesTheOutlineAndTellsNobody()
{
    TreeStage stage;
    HoverButton before(&stage.window, {10, 0, 20, 8});
    before.show();
    before.setFocus();
    keyboard::tabTo(stage.outline);
    QCOMPARE(stage.choices.count(), std::size_t{0});
    QCOMPARE(stage.selected(), QString());
}

void tst_myoutlinekeys::theFirstArrowKeySelectsTheFirstRow_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("down") << Qt::Key_Down;
    QTest::newRow("up") << Qt::Key_Up;
}

void tst_myoutlinekeys::theFirstArrowKeySelectsTheFirstRow()
{
    QFETCH(Qt::Key, key);
    const TreeStage stage;
    keyboard::tabTo(stage.outline);
    keyboard::press(key);
    QCOMPARE(stage.selected(), QStringLiteral("Movement Keys"));
    QCOMPARE(stage.chosen(), QStringList{QStringLiteral("Movement Keys")});
    keyboard::press(Qt::Key_Down);
    QCOMPARE(stage.selected(), QStringLiteral("Chat Functions"));
    QCOMPARE(stage.choices.count(), std::size_t{2});
}

void tst_myoutlinekeys::fromAClosedCategoryTheKeysGoOnFromItsOwnRow_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QString>("told");
    QTest::newRow("down") << Qt::Key_Down << QStringLiteral("Miscellaneous Functions");
    QTest::newRow("up") << Qt::Key_Up << QStringLiteral("Interface Panel Functions");
    QTest::newRow("return") << Qt::Key_Return << QStringLiteral("Camera Functions");
}

void tst_myoutlinekeys::fromAClosedCategoryTheKeysGoOnFromItsOwnRow()
{
    QFETCH(Qt::Key, key);
    TreeStage stage;
    keyboard::tabTo(stage.outline);
    stage.outline.expandItembyIndex(5);
    stage.outline.setSelectedItembyIndex(24579);
    stage.clickArrow("Camera Functions");
    QCOMPARE(stage.choices.count(), std::size_t{0});
    keyboard::press(key);
    QTEST(stage.chosen().join(QLatin1Char('|')), "told");
    QTEST(stage.selected(), "told");
}

void tst_myoutlinekeys::theTabKeyDoesNotGoFromRowToRow()
{
    TreeStage stage;
    HoverButton beside(&stage.window, {10, 0, 20, 8});
    beside.show();
    keyboard::tabTo(stage.outline);
    stage.outline.setSelectedItembyIndex(1);
    keyboard::press(Qt::Key_Tab);
    QVERIFY(!stage.outline.hasFocus());
    QCOMPARE(stage.selected(), QStringLiteral("Chat Functions"));
    QCOMPARE(stage.choices.count(), std::size_t{0});
}

KYR_GUI_TEST(tst_myoutlinekeys)
#include "tst_myoutlinekeys.moc"
