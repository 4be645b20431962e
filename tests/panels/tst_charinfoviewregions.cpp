#include "charinfostage.h"
#include "support/suite.h"

/// The list of regions that a button of the character dialog opens.
class tst_charinfoviewregions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theListHasTheRegions();
    void theListOpensDirectlyBelowItsButton();
    void aChoiceIsTheRegion_data();
    void aChoiceIsTheRegion();
    void theChosenRegionIsSelectedInTheNextList();
    void aChoiceByKeyAnswersNothingElse();
    void escapeClosesTheListOnly();
    void theListClosesWhenItLosesTheKeyboard();
    void theDesktopMayCloseTheList();
    void whileTheListShowsTheButtonOpensNoOther();
    void aPressOnTheButtonThatClosesTheListOpensNone_data();
    void aPressOnTheButtonThatClosesTheListOpensNone();
    void anotherListChoosesNoRegion();
};

void tst_charinfoviewregions::theListHasTheRegions()
{
    const CharInfoStage stage;
    const pngListBox &list = stage.openList();
    QCOMPARE(list.getCount(), 5);
    for (int row = 0; row < 5; ++row)
        QCOMPARE(list.stringAt(row), QString::fromLatin1(kRegionCaptions[row]));
    QCOMPARE(list.tag(), 0x2000);
    QCOMPARE(list.getcursel(), 0);
    QVERIFY(openLists().front()->windowFlags().testFlag(Qt::FramelessWindowHint));
    QVERIFY(!openLists().front()->windowTitle().isEmpty());
    QVERIFY(stage.log.lines.empty());
}

void tst_charinfoviewregions::theListOpensDirectlyBelowItsButton()
{
    const CharInfoStage stage;
    for (const QPoint at : {QPoint(100, 150), QPoint(170, 60)}) {
        stage.window->move(at);
        const pngListBox &list = stage.openList();
        QCOMPARE(list.size(), QSize(150, 100));
        QCOMPARE(list.window()->geometry(), QRect(at + QPoint(294, 215 - 115), QSize(150, 100)));
        keystroke::press(keystroke::kEscape);
        QTRY_VERIFY(openLists().empty());
    }
}

void tst_charinfoviewregions::aChoiceIsTheRegion_data()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < 5; ++row)
        QTest::newRow(kRegionCaptions[row]) << row;
}

void tst_charinfoviewregions::aChoiceIsTheRegion()
{
    QFETCH(int, row);
    CharInfoStage stage;
    stage.fill();
    stage.log.lines.clear();
    clickRow(stage.openList(), row);
    QTRY_VERIFY(openLists().empty());
    const std::vector<std::string> lines{"IDC_LISTBOX_REGION:" + std::to_string(row),
                                         "CloseListBox"};
    QCOMPARE(stage.log.lines, lines);
    QCOMPARE(stage.region().captionText(), QString::fromLatin1(kRegionCaptions[row]));
    QVERIFY(stage.stays());
    QVERIFY(stage.isUnchanged());
    QTRY_COMPARE(QApplication::activeWindow(), stage.window.data());
    stage.click("ButtonOK");
    QCOMPARE(CurrentProfile().CHARACTER_INFO.REGION, static_cast<std::uint32_t>(row));
}

void tst_charinfoviewregions::theChosenRegionIsSelectedInTheNextList()
{
    const CharInfoStage stage;
    int before = 0;
    for (const int row : {3, 1, 4}) {
        const pngListBox &list = stage.openList();
        QCOMPARE(list.getcursel(), before);
        clickRow(list, row);
        QTRY_VERIFY(openLists().empty());
        before = row;
    }
}

/// The key comes up when the dialog has the keyboard again.
void tst_charinfoviewregions::aChoiceByKeyAnswersNothingElse()
{
    const CharInfoStage stage;
    stage.fill();
    keyboard::tabTo(stage.region());
    keyboard::press(Qt::Key_Space);
    openedList();
    keyboard::press(Qt::Key_Down);
    keystroke::press(keystroke::kReturn);
    QTRY_VERIFY(openLists().empty());
    QTRY_COMPARE(QApplication::activeWindow(), stage.window.data());
    keystroke::release(keystroke::kReturn);
    QVERIFY(stage.log.contains("Get keyUp Event:keycode:24,type:b, "));
    QVERIFY(stage.stays());
    QVERIFY(stage.isUnchanged());
    QCOMPARE(stage.region().captionText(), QStringLiteral("Europe"));
    keystroke::tap(keystroke::kReturn);
    QCOMPARE(CurrentProfile().CHARACTER_INFO.REGION, 1U);
}

void tst_charinfoviewregions::escapeClosesTheListOnly()
{
    CharInfoStage stage;
    stage.fill();
    stage.openList();
    keyboard::press(Qt::Key_Down);
    stage.log.lines.clear();
    keystroke::press(keystroke::kEscape);
    QTRY_VERIFY(openLists().empty());
    QCOMPARE(stage.log.lines, std::vector<std::string>{"CloseListBox"});
    QTRY_COMPARE(QApplication::activeWindow(), stage.window.data());
    keystroke::release(keystroke::kEscape);
    QVERIFY(stage.stays());
    QCOMPARE(stage.region().captionText(), QStringLiteral("US&Oceanic"));
}

void tst_charinfoviewregions::theListClosesWhenItLosesTheKeyboard()
{
    const CharInfoStage stage;
    stage.openList();
    stage.window->activateWindow();
    QTRY_VERIFY(openLists().empty());
    const std::vector<std::string> lines{"windowKeyChange", "CloseListBox"};
    QCOMPARE(stage.log.lines, lines);
    QVERIFY(stage.stays());
    QCOMPARE(stage.region().captionText(), QStringLiteral("US&Oceanic"));
}

void tst_charinfoviewregions::theDesktopMayCloseTheList()
{
    const CharInfoStage stage;
    pointer::windowOf(stage.openList())->close();
    QTRY_VERIFY(openLists().empty());
    QTRY_VERIFY(stage.log.contains("CloseListBox"));
    QVERIFY(stage.stays());
    QTRY_VERIFY(stage.clickOpens());
}

void tst_charinfoviewregions::whileTheListShowsTheButtonOpensNoOther()
{
    const CharInfoStage stage;
    const pngListBox &list = stage.openList();
    pointer::click(stage.region());
    QCOMPARE(openLists(), std::vector<QWidget *>{list.window()});
    stage.view->DisplayRegionListBox();
    QCOMPARE(openLists(), std::vector<QWidget *>{list.window()});
}

void tst_charinfoviewregions::aPressOnTheButtonThatClosesTheListOpensNone_data()
{
    QTest::addColumn<bool>("isToldFirst");
    QTest::newRow("the press is told first") << true;
    QTest::newRow("the loss of the keyboard is told first") << false;
}

void tst_charinfoviewregions::aPressOnTheButtonThatClosesTheListOpensNone()
{
    QFETCH(bool, isToldFirst);
    const CharInfoStage stage;
    constexpr QPoint there(50, 13);
    stage.openList();
    if (!isToldFirst)
        CharInfoStage::giveKeyboardTo(*stage.window);
    pointer::press(stage.region(), there);
    if (isToldFirst)
        CharInfoStage::giveKeyboardTo(*stage.window);
    pointer::release(stage.region(), there);
    QVERIFY(openLists().empty());
    QTRY_VERIFY(stage.clickOpens());
}

void tst_charinfoviewregions::anotherListChoosesNoRegion()
{
    const CharInfoStage stage;
    pngListBox other(nullptr);
    other.setTag(0x2001);
    other.AddString(QStringLiteral("0"));
    other.AddString(QStringLiteral("1"));
    other.setcursel(1);
    stage.view->ListboxAction(&other);
    QVERIFY(stage.log.lines.empty());
    QCOMPARE(stage.region().captionText(), QStringLiteral("US&Oceanic"));
}

KYR_GUI_TEST(tst_charinfoviewregions)
#include "tst_charinfoviewregions.moc"
