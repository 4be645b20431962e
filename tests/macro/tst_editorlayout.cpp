#include "editorstage.h"
#include "support/suite.h"

/// Where the controls of the macro editor stand in each mode, and which the tab key reaches.
class tst_editorlayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theWindowIsAsLargeAsTheDialog();
    void theWindowStandsAtItsOwnersCorner();
    void theDialogIsNamed();
    void everyControlStandsInItsPlace_data();
    void everyControlStandsInItsPlace();
    void buttonsAreNamedAndNumbered_data();
    void buttonsAreNamedAndNumbered();
    void controlsTellWhatTheyAre_data();
    void controlsTellWhatTheyAre();
    void theTabKeyReachesWhatShows_data();
    void theTabKeyReachesWhatShows();
    void aHiddenControlLetsGoOfTheKeyboard_data();
    void aHiddenControlLetsGoOfTheKeyboard();
    void theEventListFillsItsScrollArea();
};

namespace {

struct PlaceRow
{
    const char *name = "";
    UpRect copyPaste;
    UpRect events;
};

constexpr UpRect kNowhere{};

constexpr PlaceRow kPlaces[] = {
    {"pTextfieldMacroName", {80, 417, 165, 24}, {80, 417, 165, 24}},
    {"MacroscrollView", kNowhere, {15, 272, 230, 140}},
    {"ButtonStartKey", {25, 388, 17, 17}, kNowhere},
    {"pStartDisplayView", {15, 365, 230, 18}, kNowhere},
    {"pCopyTextfield", {15, 273, 230, 90}, kNowhere},
    {"pSendDisplayView", {15, 252, 230, 18}, kNowhere},
    {"ButtonSendKey", {25, 227, 17, 17}, kNowhere},
    {"ButtonCopy", {24, 196, 18, 18}, {24, 250, 18, 18}},
    {"ButtonText", {24, 174, 18, 18}, {24, 227, 18, 18}},
    {"ButtonRecordDelay", {24, 151, 18, 18}, {24, 205, 18, 18}},
    {"ButtonNoDelay", {24, 127, 18, 18}, {24, 180, 18, 18}},
    {"ButtonLoop", kNowhere, {24, 148, 18, 18}},
    {"pLoopTextfield", kNowhere, {109, 142, 50, 30}},
    {"ButtonOK", {64, 48, 135, 38}, {64, 48, 135, 38}},
    {"ButtonClear", {64, 85, 135, 38}, {64, 85, 135, 38}},
    {"ButtonCancel", {64, 11, 135, 38}, {64, 11, 135, 38}},
    {"ButtonClose", {219, 483, 32, 32}, {219, 483, 32, 32}},
};

/// The controls from the first one on, in the order of the tab key.
QStringList tabWay(const EditorStage &stage)
{
    QStringList way;
    stage.name().setFocus();
    constexpr int most = 30;
    for (int step = 0; step < most; ++step) {
        way << QApplication::focusWidget()->objectName();
        keyboard::press(Qt::Key_Tab);
        if (stage.name().hasFocus())
            break;
    }
    return way;
}

} // namespace

void tst_editorlayout::theWindowIsAsLargeAsTheDialog()
{
    const EditorStage stage;
    QCOMPARE(stage.window->size(), QSize(261, 522));
    QCOMPARE(stage.view->geometry(), QRect(0, 0, 261, 522));
    QCOMPARE(stage.window->minimumSize(), QSize(261, 522));
    QCOMPARE(stage.window->maximumSize(), QSize(261, 522));
    QVERIFY(stage.window->windowFlags() & Qt::FramelessWindowHint);
}

void tst_editorlayout::theWindowStandsAtItsOwnersCorner()
{
    const EditorStage stage;
    QVERIFY(stage.window->frame().origin() == stage.owner.frame().origin());
    QCOMPARE(stage.window->parentWidget(), &stage.owner);
}

void tst_editorlayout::theDialogIsNamed()
{
    const EditorStage stage;
    QCOMPARE(stage.window->windowTitle(), QStringLiteral("Custom Macro"));
    QCOMPARE(stage.view->accessibleName(), QStringLiteral("Custom Macro"));
}

void tst_editorlayout::everyControlStandsInItsPlace_data()
{
    QTest::addColumn<QByteArray>("first");
    QTest::addColumn<QByteArray>("then");
    QTest::addColumn<bool>("isCopyPaste");
    for (const char *first : kModeButtons) {
        for (const char *then : kModeButtons)
            QTest::addRow("%s, then %s", first, then)
                << QByteArray(first) << QByteArray(then) << (QByteArray(then) == kModeButtons[0]);
    }
}

void tst_editorlayout::everyControlStandsInItsPlace()
{
    QFETCH(QByteArray, first);
    QFETCH(QByteArray, then);
    QFETCH(bool, isCopyPaste);
    const EditorStage stage;
    stage.click(first.constData());
    stage.click(then.constData());
    for (const auto &[name, copyPaste, events] : kPlaces) {
        const QWidget &control = stage.find(name);
        const UpRect place = isCopyPaste ? copyPaste : events;
        QVERIFY2(UpHost(522).up(control.geometry()) == place ||
                     (place == kNowhere && control.size().isEmpty()),
                 name);
        QVERIFY2(control.isVisible() == (place != kNowhere), name);
    }
}

void tst_editorlayout::buttonsAreNamedAndNumbered_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<int>("tag");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<bool>("isCheckable");
    const auto row = [](const char *name, int tag, const char *caption, bool isCheckable) {
        QTest::newRow(name) << QByteArray(name) << tag << QString::fromLatin1(caption)
                            << isCheckable;
    };
    row("ButtonOK", 4096, "OK", false);
    row("ButtonCancel", 4097, "CANCEL", false);
    row("ButtonClear", 4098, "CLEAR", false);
    row("ButtonClose", 4099, "", false);
    row("ButtonStartKey", 4100, "", true);
    row("ButtonSendKey", 4101, "", true);
    row("ButtonCopy", 4102, "", true);
    row("ButtonText", 4103, "", true);
    row("ButtonRecordDelay", 4104, "", true);
    row("ButtonNoDelay", 4105, "", true);
    row("ButtonLoop", 4106, "", true);
}

void tst_editorlayout::buttonsAreNamedAndNumbered()
{
    QFETCH(QByteArray, name);
    const EditorStage stage;
    const HoverButton &button = stage.button(name.constData());
    QTEST(button.tag(), "tag");
    QTEST(button.captionText(), "caption");
    QTEST(button.isCheckable(), "isCheckable");
}

void tst_editorlayout::controlsTellWhatTheyAre_data()
{
    QTest::addColumn<QString>("description");
    const auto row = [](const char *name, const char *description) {
        QTest::newRow(name) << QString::fromLatin1(description);
    };
    row("pTextfieldMacroName", "Name");
    row("pMacroDisplayView", "Events");
    row("pStartDisplayView", "Start key");
    row("pCopyTextfield", "Text");
    row("pSendDisplayView", "Send key");
    row("pLoopTextfield", "Loop count");
    row("ButtonClose", "Close");
    row("ButtonStartKey", "Start Key");
    row("ButtonCopy", "Copy & Paste(Driver Only)");
    row("ButtonText", "Text(Auto Delay)");
    row("ButtonRecordDelay", "Record Delay");
    row("ButtonNoDelay", "No Delay");
    row("ButtonLoop", "Loop");
}

void tst_editorlayout::controlsTellWhatTheyAre()
{
    const EditorStage stage;
    QTEST(stage.find(QTest::currentDataTag()).accessibleName(), "description");
}

void tst_editorlayout::theTabKeyReachesWhatShows_data()
{
    QTest::addColumn<QString>("way");
    const QString modes = QStringLiteral("ButtonCopy ButtonText ButtonRecordDelay ButtonNoDelay ");
    const QString end = QStringLiteral("ButtonClear ButtonOK ButtonCancel ButtonClose");
    QTest::newRow("ButtonCopy") << QStringLiteral("pTextfieldMacroName ButtonStartKey "
                                                  "pCopyTextfield ButtonSendKey ") +
                                       modes + end;
    for (const char *button : {"ButtonText", "ButtonRecordDelay", "ButtonNoDelay"})
        QTest::newRow(button) << QStringLiteral("pTextfieldMacroName ") + modes +
                                     QStringLiteral("ButtonLoop pLoopTextfield ") + end;
}

void tst_editorlayout::theTabKeyReachesWhatShows()
{
    const EditorStage stage;
    stage.click(QTest::currentDataTag());
    QTEST(tabWay(stage).join(u' '), "way");
}

void tst_editorlayout::aHiddenControlLetsGoOfTheKeyboard_data()
{
    QTest::addColumn<QByteArray>("hiddenBy");
    QTest::newRow("pLoopTextfield") << QByteArray("ButtonCopy");
    QTest::newRow("pMacroDisplayView") << QByteArray("ButtonCopy");
    QTest::newRow("pCopyTextfield") << QByteArray("ButtonText");
    QTest::newRow("pStartDisplayView") << QByteArray("ButtonText");
    QTest::newRow("pSendDisplayView") << QByteArray("ButtonText");
}

void tst_editorlayout::aHiddenControlLetsGoOfTheKeyboard()
{
    QFETCH(QByteArray, hiddenBy);
    const EditorStage stage;
    stage.click(hiddenBy == "ButtonCopy" ? "ButtonText" : "ButtonCopy");
    QWidget &control = stage.find(QTest::currentDataTag());
    pointer::click(control);
    QVERIFY(control.hasFocus());
    stage.click(hiddenBy.constData());
    QCOMPARE(QApplication::focusWidget(), nullptr);
}

void tst_editorlayout::theEventListFillsItsScrollArea()
{
    const EditorStage stage;
    const auto &area = stage.find<QAbstractScrollArea>("MacroscrollView");
    QCOMPARE(stage.events().size(), QSize(230, 140));
    QVERIFY(area.isAncestorOf(&stage.events()));
    QCOMPARE(stage.events().mapTo(&area, QPoint()), QPoint(0, 0));
}

KYR_GUI_TEST(tst_editorlayout)
#include "tst_editorlayout.moc"
