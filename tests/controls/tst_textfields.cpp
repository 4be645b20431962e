#include "fieldstage.h"
#include "support/keyboard.h"
#include "support/pictures.h"
#include "support/suite.h"

#include <QtWidgets/QScrollBar>

/// The text fields of the dialogs: their looks, and who gets keys and clicks.
class tst_textfields : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFieldStandsWhereItsFrameSays();
    void aFieldIsWhiteWithoutABorder();
    void aFieldThatCannotBeEditedIsGrey();
    void theTabKeyLeavesAnArea();
    void returnIsALineOfAnArea();
    void anAreaIsWrappedAndScrollsUpAndDownOnly();
    void aPressInAFieldIsNoneOnTheWindowBehind_data();
    void aPressInAFieldIsNoneOnTheWindowBehind();
    void theSelectionIsOfTheSkinsColours();
    void theReleaseOfAKeyInAFieldReachesTheWindow();
};

namespace {

/// Keeps the keys that come up in the window.
class ReleasedKeys : public QObject
{
public:
    explicit ReleasedKeys(QWidget &window) : m_window(window) { window.installEventFilter(this); }

    std::vector<int> keys;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == &m_window && event->type() == QEvent::KeyRelease)
            keys.push_back(static_cast<QKeyEvent *>(event)->key());
        return false;
    }

private:
    QWidget &m_window;
};

} // namespace

void tst_textfields::aFieldStandsWhereItsFrameSays()
{
    const FieldStage stage;
    QCOMPARE(stage.field.geometry(), QRect(20, 26, 120, 24));
    QCOMPARE(stage.area.geometry(), QRect(20, 90, 120, 90));
    QVERIFY(stage.field.frame() == kFieldFrame);
}

void tst_textfields::aFieldIsWhiteWithoutABorder()
{
    FieldStage stage;
    QVERIFY(extentOfOther(shown(stage.field), Qt::white).isEmpty());
    QVERIFY(extentOfOther(shown(stage.area), Qt::white).isEmpty());
    stage.field.setText(QStringLiteral("M"));
    stage.area.setPlainText(QStringLiteral("M"));
    QVERIFY(!extentOfOther(shown(stage.field), Qt::white).isEmpty());
    QVERIFY(!extentOfOther(shown(stage.area), Qt::white).isEmpty());
    QCOMPARE(stage.field.font().pixelSize(), 12);
    QCOMPARE(stage.area.font().pixelSize(), 12);
}

void tst_textfields::aFieldThatCannotBeEditedIsGrey()
{
    FieldStage stage;
    const QColor grey(170, 170, 170);
    stage.field.setEditable(false);
    QVERIFY(extentOfOther(shown(stage.field), grey).isEmpty());
    stage.field.setEditable(true);
    QVERIFY(extentOfOther(shown(stage.field), Qt::white).isEmpty());
}

void tst_textfields::theTabKeyLeavesAnArea()
{
    const FieldStage stage;
    pointer::click(stage.area);
    QVERIFY(stage.area.hasFocus());
    keyboard::press(Qt::Key_Tab);
    QVERIFY(stage.field.hasFocus());
    QCOMPARE(stage.area.plainText(), QString());
    keyboard::press(Qt::Key_Backtab);
    QVERIFY(stage.area.hasFocus());
}

void tst_textfields::returnIsALineOfAnArea()
{
    const FieldStage stage;
    pointer::click(stage.area);
    keyboard::press(Qt::Key_A);
    keyboard::press(Qt::Key_Return);
    keyboard::press(Qt::Key_B);
    QCOMPARE(stage.area.plainText(), QStringLiteral("a\nb"));
}

void tst_textfields::anAreaIsWrappedAndScrollsUpAndDownOnly()
{
    FieldStage stage;
    QVERIFY(!stage.area.verticalScrollBar()->isVisible());
    stage.area.setPlainText(QString(500, u'M'));
    QTRY_VERIFY(stage.area.verticalScrollBar()->isVisible());
    QVERIFY(!stage.area.horizontalScrollBar()->isVisible());
    QVERIFY(stage.area.verticalScrollBar()->maximum() > 0);
    QCOMPARE(stage.area.verticalScrollBar()->width(), 7);
}

void tst_textfields::aPressInAFieldIsNoneOnTheWindowBehind_data()
{
    QTest::addColumn<bool>("inArea");
    QTest::addColumn<bool>("isEditable");
    QTest::newRow("field") << false << true;
    QTest::newRow("field that cannot be edited") << false << false;
    QTest::newRow("area") << true << true;
}

void tst_textfields::aPressInAFieldIsNoneOnTheWindowBehind()
{
    QFETCH(bool, inArea);
    QFETCH(bool, isEditable);
    FieldStage stage;
    stage.field.setEditable(isEditable);
    const QWidget &control = inArea ? static_cast<QWidget &>(stage.area) : stage.field;
    const QPoint before = stage.window.pos();
    pointer::press(stage.window, {190, 10});
    const UpPoint press = stage.window.initialLocation();
    pointer::release(stage.window, {190, 10});
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::MiddleButton}) {
        pointer::press(control, {5, 5}, button);
        pointer::move(control, {60, 15});
        pointer::release(control, {60, 15}, button);
    }
    QVERIFY(stage.window.initialLocation() == press);
    QCOMPARE(stage.window.pos(), before);
}

void tst_textfields::theSelectionIsOfTheSkinsColours()
{
    FieldStage stage;
    stage.field.setText(QStringLiteral("M M M"));
    stage.area.setPlainText(QStringLiteral("M M M"));
    for (QWidget *field :
         {static_cast<QWidget *>(&stage.field), static_cast<QWidget *>(&stage.area)}) {
        pointer::click(*field);
        QVERIFY(extentOf(shown(*field), kMoonDeep).isEmpty());
        QTest::keyClick(stage.window.windowHandle(), Qt::Key_A, Qt::ControlModifier);
        QVERIFY(!extentOf(shown(*field), kMoonDeep).isEmpty());
    }
}

/// The window's dialog answers to some keys when they come up.
void tst_textfields::theReleaseOfAKeyInAFieldReachesTheWindow()
{
    FieldStage stage;
    const ReleasedKeys released(stage.window);
    pointer::click(stage.field);
    const std::vector<int> keys{Qt::Key_A, Qt::Key_Left, Qt::Key_Return, Qt::Key_Escape};
    for (const int key : keys)
        keyboard::press(Qt::Key(key));
    QCOMPARE(released.keys, keys);
    QCOMPARE(stage.field.text(), QStringLiteral("a"));
}

KYR_GUI_TEST(tst_textfields)
#include "tst_textfields.moc"
