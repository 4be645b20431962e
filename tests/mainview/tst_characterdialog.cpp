#include "charactersettings.h"
#include "quickliststage.h"
#include "support/keyboard.h"
#include "support/keystroke.h"
#include "support/suite.h"
#include "support/webserver.h"

#include <QtWidgets/QLineEdit>

/// The character dialog as the main view opens it.
class tst_characterdialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPressInTheAreaOpensIt_data();
    void aPressInTheAreaOpensIt();
    void onlyTheLeftButtonOpensIt();
    void aDragFromTheAreaMovesTheMainWindow();
    void itsWindowIsADialogInTheMiddleOfTheScreen();
    void itsWindowCanBeDragged();
    void anotherPressBringsItToFront();
    void openedAgainItIsEmpty_data();
    void openedAgainItIsEmpty();
    void theMainWindowWorksOn();
    void okGoesToTheProfileThatIsCurrentThen();
    void cancellingAsksNobody_data();
    void cancellingAsksNobody();
    void itMayEndWithTheProgram_data();
    void itMayEndWithTheProgram();
};

namespace {

/// The character dialogs that are open.
std::vector<QWidget *> characterDialogs()
{
    std::vector<QWidget *> found;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->objectName() == QLatin1String("pCharInfoWindow") && window->isVisible())
            found.push_back(window);
    }
    return found;
}

struct CharacterDialogStage : MainWindowStage
{
    using MainWindowStage::MainWindowStage;

    /// A point of the main view, y downwards.
    QPoint down(UpPoint point) const { return UpHost(view().height()).down(point); }
    void pressAt(UpPoint point, Qt::MouseButton button = Qt::LeftButton) const
    {
        pointer::click(view(), down(point), button);
    }
    /// The dialog, opened or brought to front by a press, with the keyboard.
    QWidget &open() const
    {
        pressAt({100, 450});
        if (characterDialogs().size() != 1)
            qFatal("the dialog does not open");
        QWidget &dialog = *characterDialogs().front();
        if (!QTest::qWaitFor([&] { return QApplication::activeWindow() == &dialog; }))
            qFatal("the dialog does not get the keyboard");
        return dialog;
    }

    static QLineEdit &field(const QWidget &dialog, const char *name)
    {
        return *dialog.findChild<QLineEdit *>(QString::fromLatin1(name));
    }
    static void click(const QWidget &dialog, const char *name)
    {
        pointer::click(*dialog.findChild<HoverButton *>(QString::fromLatin1(name)));
    }
    /// "Ra" and "Na", which are quickly typed.
    static void fill(QWidget &dialog)
    {
        for (const char *name : {"pTextfieldRealm", "pTextfieldName"}) {
            pointer::click(field(dialog, name));
            QTest::keyClick(dialog.windowHandle(), name[10]); // R or N
            QTest::keyClick(dialog.windowHandle(), 'a');
        }
    }
};

} // namespace

void tst_characterdialog::aPressInTheAreaOpensIt_data()
{
    QTest::addColumn<QPoint>("at"); ///< y upwards
    QTest::addColumn<bool>("opens");
    const auto row = [](int x, int y, bool opens) {
        QTest::addRow("%d,%d", x, y) << QPoint(x, y) << opens;
    };
    row(55, 420, true);
    row(200, 490, true);
    row(55, 490, true);
    row(200, 420, true);
    row(130, 455, true);
    row(54, 450, false);
    row(201, 450, false);
    row(100, 419, false);
    row(100, 491, false);
    row(130, 640 - 455, false);
}

void tst_characterdialog::aPressInTheAreaOpensIt()
{
    QFETCH(QPoint, at);
    QFETCH(bool, opens);
    const CharacterDialogStage stage;
    QCOMPARE(stage.view().childAt(stage.down({at.x(), at.y()})), nullptr);
    pointer::press(stage.view(), stage.down({at.x(), at.y()}));
    QCOMPARE(characterDialogs().size(), std::size_t{opens});
}

void tst_characterdialog::onlyTheLeftButtonOpensIt()
{
    const CharacterDialogStage stage;
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton})
        stage.pressAt({100, 450}, button);
    QVERIFY(characterDialogs().empty());
}

void tst_characterdialog::aDragFromTheAreaMovesTheMainWindow()
{
    const CharacterDialogStage stage;
    const QPoint before = stage.window().pos();
    const QPoint from = stage.down({100, 450});
    pointer::press(stage.view(), from);
    pointer::move(stage.view(), from + QPoint(15, 20));
    pointer::release(stage.view(), from);
    QCOMPARE(stage.window().pos(), before + QPoint(15, 20));
    QCOMPARE(characterDialogs().size(), std::size_t{1});
}

void tst_characterdialog::itsWindowIsADialogInTheMiddleOfTheScreen()
{
    const CharacterDialogStage stage;
    stage.window().move(210, 70);
    const QWidget &dialog = stage.open();
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Add a Kyr Character"));
    const QRect screen = dialog.screen()->availableGeometry();
    QCOMPARE(dialog.geometry(),
             QRect(screen.left() + (screen.width() - 453) / 2,
                   screen.top() + screen.height() - 215 - (screen.height() - 215) / 2, 453, 215));
    QCOMPARE(dialog.minimumSize(), QSize(453, 215));
    QCOMPARE(dialog.maximumSize(), QSize(453, 215));
    QVERIFY(dialog.windowFlags().testFlag(Qt::FramelessWindowHint));
    QCOMPARE(dialog.windowType(), Qt::Dialog);
    QVERIFY(!dialog.isModal());
    QCOMPARE(dialog.parentWidget(), &stage.window());
}

void tst_characterdialog::itsWindowCanBeDragged()
{
    const CharacterDialogStage stage;
    const QWidget &dialog = stage.open();
    const QPoint before = dialog.pos();
    const QPoint main = stage.window().pos();
    pointer::press(dialog, {20, 150});
    pointer::move(dialog, {30, 170});
    pointer::release(dialog, {20, 150});
    QCOMPARE(dialog.pos(), before + QPoint(10, 20));
    QCOMPARE(stage.window().pos(), main);
}

void tst_characterdialog::anotherPressBringsItToFront()
{
    const CharacterDialogStage stage;
    QWidget &dialog = stage.open();
    CharacterDialogStage::fill(dialog);
    stage.window().activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), &stage.window());
    QCOMPARE(&stage.open(), &dialog);
    QCOMPARE(CharacterDialogStage::field(dialog, "pTextfieldRealm").text(), QStringLiteral("Ra"));
    QCOMPARE(CharacterDialogStage::field(dialog, "pTextfieldName").text(), QStringLiteral("Na"));
}

void tst_characterdialog::openedAgainItIsEmpty_data()
{
    QTest::addColumn<QByteArray>("button");
    for (const char *name : {"ButtonOK", "ButtonCancel", "ButtonClose"})
        QTest::newRow(name) << QByteArray(name);
}

void tst_characterdialog::openedAgainItIsEmpty()
{
    QFETCH(QByteArray, button);
    const CharacterDialogStage stage;
    QWidget &first = stage.open();
    CharacterDialogStage::fill(first);
    pointer::click(*first.findChild<HoverButton *>(QStringLiteral("ButtonRegion")));
    QTRY_COMPARE(openLists().size(), std::size_t{1});
    clickRow(*openLists().front()->findChild<pngListBox *>(), 3);
    QTRY_VERIFY(openLists().empty());
    CharacterDialogStage::click(first, button.constData());
    QTRY_VERIFY(characterDialogs().empty());
    const QWidget &second = stage.open();
    QCOMPARE(CharacterDialogStage::field(second, "pTextfieldRealm").text(), QString());
    QCOMPARE(CharacterDialogStage::field(second, "pTextfieldName").text(), QString());
    QCOMPARE(second.findChild<HoverButton *>(QStringLiteral("ButtonRegion"))->captionText(),
             QStringLiteral("US&Oceanic"));
}

void tst_characterdialog::theMainWindowWorksOn()
{
    const CharacterDialogStage stage;
    QWidget &dialog = stage.open();
    pointer::click(stage.mouseButton(3));
    QCOMPARE(stage.buttonsOn(), std::vector{3});
    pointer::click(stage.profileKey(5));
    QCOMPARE(stage.profileKeysOn(), std::vector{5});
    QCOMPARE(characterDialogs(), std::vector{&dialog});
}

void tst_characterdialog::okGoesToTheProfileThatIsCurrentThen()
{
    CharacterDialogStage stage;
    QWidget &dialog = stage.open();
    CharacterDialogStage::fill(dialog);
    pointer::click(stage.profileKey(7));
    stage.log.lines.clear();
    CharacterDialogStage::click(dialog, "ButtonOK");
    QVERIFY(characterDialogs().empty());
    const CharacterInfo &character = m_Config.PROFILE[6].CHARACTER_INFO;
    QCOMPARE(GetString(character.SERVER), QStringLiteral("Ra"));
    QCOMPARE(GetString(character.NAME), QStringLiteral("Na"));
    QCOMPARE(GetString(character.RACE), QString());
    QCOMPARE(GetString(m_Config.PROFILE[0].CHARACTER_INFO.SERVER), QString());
    // A region without a host is not asked.
    QVERIFY(stage.log.lines.empty());
}

void tst_characterdialog::cancellingAsksNobody_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("ButtonCancel") << QByteArray("IDC_CHAR_BUTTON_CANCEL");
    QTest::newRow("Escape") << QByteArray("IDC_CHAR_BUTTON_CANCEL");
    QTest::newRow("ButtonClose") << QByteArray("IDC_CHAR_BUTTON_CLOSE");
    QTest::newRow("the desktop") << QByteArray("IDC_CHAR_BUTTON_CLOSE");
}

void tst_characterdialog::cancellingAsksNobody()
{
    QFETCH(QByteArray, line);
    const QByteArray how = QTest::currentDataTag();
    const WebServer service;
    CharacterDialogStage stage({}, service.host());
    putCharacter(CurrentProfile(), {.name = "Stored", .realm = "Stored"});
    QWidget &dialog = stage.open();
    CharacterDialogStage::fill(dialog);
    stage.log.lines.clear();
    if (how == "Escape")
        keystroke::tap(keystroke::kEscape);
    else if (how == "the desktop")
        dialog.windowHandle()->close();
    else
        CharacterDialogStage::click(dialog, how.constData());
    QVERIFY(characterDialogs().empty());
    QVERIFY(stage.log.contains(line.toStdString()));
    // Before it there may be the release of the key.
    QCOMPARE(stage.log.lines.size(), how == "Escape" ? std::size_t{2} : std::size_t{1});
    QCOMPARE(GetString(CurrentProfile().CHARACTER_INFO.SERVER), QStringLiteral("Stored"));

    QWidget &again = stage.open();
    CharacterDialogStage::fill(again);
    CharacterDialogStage::click(again, "ButtonOK");
    // Who had asked before would have come before.
    QTRY_VERIFY(service.count() > 0);
    QCOMPARE(service.paths().front(), QByteArray("/api/kyr/character/Ra/Na"));
    QCOMPARE(service.connections(), std::size_t{1});
}

void tst_characterdialog::itMayEndWithTheProgram_data()
{
    QTest::addColumn<bool>("withList");
    QTest::newRow("alone") << false;
    QTest::newRow("with its list open") << true;
}

void tst_characterdialog::itMayEndWithTheProgram()
{
    QFETCH(bool, withList);
    CharacterDialogStage stage;
    const QPointer<QWidget> dialog = &stage.open();
    if (withList) {
        CharacterDialogStage::click(*dialog, "ButtonRegion");
        QTRY_COMPARE(openLists().size(), std::size_t{1});
    }
    stage.interface.reset();
    QVERIFY(!dialog);
    QVERIFY(openLists().empty());
}

KYR_GUI_TEST(tst_characterdialog)
#include "tst_characterdialog.moc"
