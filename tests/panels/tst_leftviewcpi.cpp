#include "cpistage.h"
#include "support/pictures.h"
#include "support/suite.h"

/// The list of CPI steps that the left bar's button opens.
class tst_leftviewcpi : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theListOpensBesideTheButtonWhereThereIsRoom_data();
    void theListOpensBesideTheButtonWhereThereIsRoom();
    void theListHasItsRows();
    void theStoredStepIsSelectedAtFirst_data();
    void theStoredStepIsSelectedAtFirst();
    void spaceOpensTheListToo();
    void theFrameShowsInAListOpenedByKeyOnly();
    void whileTheListShowsTheButtonDoesNothing();
};

void tst_leftviewcpi::theListOpensBesideTheButtonWhereThereIsRoom_data()
{
    QTest::addColumn<QPoint>("at"); ///< the main window
    QTest::addColumn<int>("list");  ///< the list's top in it
    // The list reaches down to 308, and with its lower edge at the screen's it still has room.
    const int lowest = QGuiApplication::primaryScreen()->availableGeometry().bottom() + 1 - 308;
    QTest::newRow("moved up") << QPoint(300, 0) << 640 - 94 - 358;
    QTest::newRow("elsewhere") << QPoint(210, 70) << 640 - 94 - 358;
    QTest::newRow("just room below") << QPoint(300, lowest) << 640 - 94 - 358;
    QTest::newRow("room only above") << QPoint(300, lowest + 1) << 640 - 94 - 358 - 27 - 120;
    QTest::newRow("at the screen's foot") << QPoint(300, lowest + 100) << 640 - 94 - 358 - 27 - 120;
}

void tst_leftviewcpi::theListOpensBesideTheButtonWhereThereIsRoom()
{
    QFETCH(QPoint, at);
    QFETCH(int, list);
    const CpiStage stage;
    stage.program.window().move(at);
    stage.openList();
    QCOMPARE(openLists().front()->geometry(), QRect(at + QPoint(97 - 202, list), QSize(101, 120)));
}

void tst_leftviewcpi::theListHasItsRows()
{
    const CpiStage stage;
    const pngListBox &list = stage.openList();
    QStringList rows;
    for (int row = 0; row < list.getCount(); ++row)
        rows << list.stringAt(row);
    QCOMPARE(rows.join(QLatin1Char('|')), QStringLiteral(" 800| 1600| 2400| 3200| 4000| 5000"));
    QCOMPARE(list.tag(), 0x4000);
    QCOMPARE(list.size(), QSize(101, 120));
    QVERIFY(openLists().front()->windowFlags().testFlag(Qt::FramelessWindowHint));
    QVERIFY(!openLists().front()->windowTitle().isEmpty());
    QCOMPARE(stage.program.log.lines, std::vector<std::string>());
    QVERIFY(!stage.program.applyIsEnabled());
}

void tst_leftviewcpi::theStoredStepIsSelectedAtFirst_data()
{
    QTest::addColumn<std::uint32_t>("code");
    QTest::addColumn<int>("row");
    for (const int row : {0, 1, 2, 3, 4, 5})
        QTest::addRow("%d", row) << static_cast<std::uint32_t>(row) << row;
    for (const std::uint32_t none : {6U, 7U, 0x80000000U, 0xFFFFFFFFU})
        QTest::addRow("%u", none) << none << -1;
}

void tst_leftviewcpi::theStoredStepIsSelectedAtFirst()
{
    QFETCH(std::uint32_t, code);
    const CpiStage stage(code);
    QTEST(stage.openList().getcursel(), "row");
}

void tst_leftviewcpi::spaceOpensTheListToo()
{
    CpiStage stage;
    keyboard::tabTo(stage.cpi());
    for (const std::uint32_t code : {3U, 4U}) {
        stage.forget();
        keyboard::press(Qt::Key_Space);
        openedList();
        keyboard::press(Qt::Key_Down);
        keyboard::press(Qt::Key_Return);
        QTRY_VERIFY(openLists().empty());
        QVERIFY(stage.hasChosen(code));
        // The keyboard is back where it came from.
        QTRY_VERIFY(stage.leftIsKey());
        QVERIFY(stage.cpi().hasFocus() && stage.cpi().showsKeyboard());
    }
}

void tst_leftviewcpi::theFrameShowsInAListOpenedByKeyOnly()
{
    const CpiStage stage;
    QVERIFY(extentOf(shown(stage.openList()), kGold).isEmpty());
    keyboard::press(Qt::Key_Escape);
    QTRY_VERIFY(stage.leftIsKey());
    keyboard::tabTo(stage.cpi());
    keyboard::press(Qt::Key_Space);
    const QRect selectedRow(2, 40, 97, 20); // in the frame
    QCOMPARE(extentOf(shown(openedList()), kGold), selectedRow);
}

void tst_leftviewcpi::whileTheListShowsTheButtonDoesNothing()
{
    const CpiStage stage;
    const pngListBox &list = stage.openList();
    for (int click = 0; click < 3; ++click)
        pointer::click(stage.cpi());
    QCOMPARE(openLists(), std::vector<QWidget *>{list.window()});
    QCOMPARE(list.getcursel(), 2);
    QCOMPARE(stage.program.log.lines, std::vector<std::string>());
    clickRow(list, 3);
    QTRY_VERIFY(openLists().empty());
    QVERIFY(stage.hasChosen(3));
}

KYR_GUI_TEST(tst_leftviewcpi)
#include "tst_leftviewcpi.moc"
