#include "lightingstage.h"
#include "support/suite.h"

/// What opens from the bottom bar's controls, and where.
class tst_bottomviewpopups : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itOpensBelowWhereTheScreenHasRoom_data() { lightRows(); }
    void itOpensBelowWhereTheScreenHasRoom();
    void itOpensAboveWhereOnlyThereIsRoom_data() { lightRows(); }
    void itOpensAboveWhereOnlyThereIsRoom();
    void itOpensBelowDownToTheEdgeOfTheScreen_data() { lightRows(); }
    void itOpensBelowDownToTheEdgeOfTheScreen();
    void itIsAWindowWithTheKeyboard_data() { lightRows(); }
    void itIsAWindowWithTheKeyboard();
    void aListHasItsRows_data() { lightLevelRows(); }
    void aListHasItsRows();
    void theListBeginsAtTheStoredLevel_data() { lightLevelCodeRows(); }
    void theListBeginsAtTheStoredLevel();
    void theListBeginsWithoutARowAtACodeWithoutALevel_data();
    void theListBeginsWithoutARowAtACodeWithoutALevel();
    void aListOpenedByKeyShowsTheFrame_data() { lightLevelRows(); }
    void aListOpenedByKeyShowsTheFrame();
    void aListOpensAtTheReleaseOnItsButton_data() { lightLevelRows(); }
    void aListOpensAtTheReleaseOnItsButton();
    void theColourPictureOpensAtThePress();
    void openingChangesNothing_data() { lightRows(); }
    void openingChangesNothing();
    void aClickWhileTheBarSlidesOpensNothing_data() { lightRows(); }
    void aClickWhileTheBarSlidesOpensNothing();
    void theSpaceKeyOpensIt_data() { lightRows(); }
    void theSpaceKeyOpensIt();
};

namespace {

/// The bar open, the windows where there is room below it.
struct RaisedLighting : LightingStage
{
    RaisedLighting()
    {
        makeRoomBelow();
        toggleBottom();
    }
};

} // namespace

void tst_bottomviewpopups::itOpensBelowWhereTheScreenHasRoom()
{
    QFETCH(const KnownLight *, known);
    const RaisedLighting stage;
    QCOMPARE(stage.openFrom(*known).window()->geometry(), stage.onScreen(known->below));
    const QWidget &button = stage.button(*known);
    QCOMPARE(openPopups()[0]->x() - button.mapToGlobal(QPoint()).x(),
             known == &kColorLight ? 4 : 0);
}

void tst_bottomviewpopups::itOpensAboveWhereOnlyThereIsRoom()
{
    QFETCH(const KnownLight *, known);
    LightingStage stage;
    stage.toggleBottom();
    QCOMPARE(stage.openFrom(*known).window()->geometry(), stage.onScreen(known->above));
}

void tst_bottomviewpopups::itOpensBelowDownToTheEdgeOfTheScreen()
{
    QFETCH(const KnownLight *, known);
    RaisedLighting stage;
    const int spare = stage.content().screen()->availableGeometry().bottom() -
                      stage.onScreen(known->below).bottom();
    QVERIFY(spare > 0);
    QWidget &window = stage.program.window();
    window.move(window.pos() + QPoint(0, spare));
    QCOMPARE(stage.openFrom(*known).window()->geometry(), stage.onScreen(known->below));
    QTest::keyClick(openPopups()[0]->windowHandle(), Qt::Key_Escape);
    QTRY_VERIFY(openPopups().empty());
    window.move(window.pos() + QPoint(0, 1));
    QCOMPARE(stage.openFrom(*known).window()->geometry(), stage.onScreen(known->above));
}

void tst_bottomviewpopups::itIsAWindowWithTheKeyboard()
{
    QFETCH(const KnownLight *, known);
    const RaisedLighting stage;
    const QWidget &content = stage.openFrom(*known);
    const QWidget &window = *content.window();
    QCOMPARE(window.windowTitle(), QLatin1String(known->label));
    QCOMPARE(content.accessibleName(), QLatin1String(known->label));
    QVERIFY(window.windowFlags().testFlag(Qt::FramelessWindowHint));
    QVERIFY(dynamic_cast<const custumwindow *>(&window));
    QCOMPARE(content.size(), window.size());
    QCOMPARE(static_cast<const PopupContent &>(content).tag(), known->contentTag);
    QVERIFY(content.hasFocus());
    QVERIFY(!window.testAttribute(Qt::WA_ShowWithoutActivating)); // it asks for the keyboard
}

void tst_bottomviewpopups::aListHasItsRows()
{
    QFETCH(const KnownLightLevel *, known);
    const RaisedLighting stage;
    const pngListBox &list = stage.openLevels(*known);
    QCOMPARE(list.getCount(), 4);
    for (int row = 0; row < 4; ++row)
        QCOMPARE(list.stringAt(row), QLatin1String(known->texts[row]));
}

void tst_bottomviewpopups::theListBeginsAtTheStoredLevel()
{
    QFETCH(const KnownLightLevel *, known);
    QFETCH(int, code);
    const RaisedLighting stage;
    CurrentProfile().*known->field = static_cast<std::uint32_t>(code);
    CurrentProfile().*otherThan(*known).field = static_cast<std::uint32_t>(3 - code);
    QCOMPARE(stage.openLevels(*known).getcursel(), code);
}

void tst_bottomviewpopups::theListBeginsWithoutARowAtACodeWithoutALevel_data()
{
    QTest::addColumn<std::uint32_t>("code");
    for (const std::uint32_t code : {4U, 2147483648U, 4294967295U})
        QTest::addRow("%u", code) << code;
}

void tst_bottomviewpopups::theListBeginsWithoutARowAtACodeWithoutALevel()
{
    QFETCH(std::uint32_t, code);
    const RaisedLighting stage;
    CurrentProfile().LED_INTENSITY = code;
    QCOMPARE(stage.openLevels(kKnownLightLevels[0]).getcursel(), -1);
}

void tst_bottomviewpopups::aListOpenedByKeyShowsTheFrame()
{
    QFETCH(const KnownLightLevel *, known);
    const RaisedLighting stage;
    CurrentProfile().*known->field = 2;
    QWidget &clicked = stage.openFrom(known->light);
    QCOMPARE(extentOf(shown(clicked), kGold), QRect());
    QTest::keyClick(pointer::windowOf(clicked), Qt::Key_Escape);
    QTRY_VERIFY(openPopups().empty());
    keyboard::tabTo(stage.button(known->light));
    keyboard::press(Qt::Key_Space);
    QWidget &list = opened(known->light);
    QCOMPARE(extentOf(shown(list), kGold), QRect(2, 40, 118, 20)); // in the frame
}

void tst_bottomviewpopups::aListOpensAtTheReleaseOnItsButton()
{
    QFETCH(const KnownLightLevel *, known);
    const RaisedLighting stage;
    const QAbstractButton &button = stage.button(known->light);
    const QPoint middle = button.rect().center();
    pointer::press(button, middle);
    QVERIFY(openPopups().empty());
    pointer::release(button, {-3, -3});
    QVERIFY(openPopups().empty());
    pointer::press(button, middle);
    pointer::release(button, middle);
    opened(known->light);
}

void tst_bottomviewpopups::theColourPictureOpensAtThePress()
{
    const RaisedLighting stage;
    const colorbutton &button = stage.colorButton();
    pointer::press(button, button.rect().center());
    const QWidget *const picture = &opened(kColorLight);
    pointer::release(button, button.rect().center());
    QCOMPARE(&opened(kColorLight), picture);
    QCOMPARE(stage.program.log.lines, std::vector<std::string>());
}

void tst_bottomviewpopups::openingChangesNothing()
{
    QFETCH(const KnownLight *, known);
    const RaisedLighting stage;
    const auto before = std::make_unique<ConfigData>(m_Config);
    stage.openFrom(*known);
    QCOMPARE(std::memcmp(&m_Config, before.get(), sizeof m_Config), 0);
    QVERIFY(!stage.program.applyIsEnabled());
    QCOMPARE(stage.program.log.lines, std::vector<std::string>());
}

void tst_bottomviewpopups::aClickWhileTheBarSlidesOpensNothing()
{
    QFETCH(const KnownLight *, known);
    LightingStage stage;
    pointer::click(stage.toggle(kBottomBar));
    stage.passHalf();
    const QAbstractButton &button = stage.button(*known);
    QVERIFY(button.isVisible());
    pointer::click(button);
    QVERIFY(openPopups().empty());
    stage.arrive();
    stage.openFrom(*known);
}

void tst_bottomviewpopups::theSpaceKeyOpensIt()
{
    QFETCH(const KnownLight *, known);
    const RaisedLighting stage;
    keyboard::tabTo(stage.button(*known));
    keyboard::press(Qt::Key_Space);
    QCOMPARE(opened(*known).window()->geometry(), stage.onScreen(known->below));
}

KYR_GUI_TEST(tst_bottomviewpopups)
#include "tst_bottomviewpopups.moc"
