#include "controls/buttonstage.h"
#include "support/drop.h"
#include "support/suite.h"

/// The skinned button as a place to drop texts on.
class tst_hoverbuttondrop : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDroppedTextIsReadAsANumber_data();
    void aDroppedTextIsReadAsANumber();
    void theDropActionIsSentAfterTheNumberIsRead();
    void aDropIsRefused_data();
    void aDropIsRefused();
    void theFaceShowsADragOverTheButton();
    void aFrameShowsADragOverTheButton();
    void noFrameShowsADragThatIsRefused_data();
    void noFrameShowsADragThatIsRefused();
    void aDropIsACopyWhateverIsOffered();
};

namespace {

/// A button that takes drops.
struct DropStage : ButtonStage
{
    DropStage()
    {
        setAllFaces();
        button.enableDragDrop({&drops, &Clicks::receive});
    }
    QImage picture() { return shown(button); }

    Clicks drops;
};

} // namespace

void tst_hoverbuttondrop::aDroppedTextIsReadAsANumber_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("number");
    const auto row = [](const char *text, int number) {
        QTest::newRow(text) << QString::fromLatin1(text) << number;
    };
    row("258", 258);
    row("abc", 0);
    row("", 0);
    row("  4104", 4104);
    row("17 and more", 17);
    row("12.9", 12);
    row("0x10", 0);
    row("-3", -3);
    row("+5", 5);
    row("99999999999999999999", INT_MAX);
    row("-2147483648", INT_MIN);
    row("-99999999999999999999", INT_MIN);
}

void tst_hoverbuttondrop::aDroppedTextIsReadAsANumber()
{
    QFETCH(QString, text);
    DropStage stage;
    dropText(stage.button, QStringLiteral("9999"));
    QCOMPARE(stage.button.getDropindex(), 9999);
    QVERIFY(dropText(stage.button, text));
    QTEST(stage.button.getDropindex(), "number");
}

void tst_hoverbuttondrop::theDropActionIsSentAfterTheNumberIsRead()
{
    struct Reader : QObject
    {
        void receive(HoverButton *button) { read.push_back(button->getDropindex()); }
        std::vector<int> read;
    };
    ButtonStage stage;
    Reader reader;
    stage.button.enableDragDrop({&reader, &Reader::receive});
    dropText(stage.button, QStringLiteral("36"));
    dropText(stage.button, QStringLiteral("37"));
    QCOMPARE(reader.read, (std::vector<int>{36, 37}));
    QCOMPARE(stage.clicks.count() + stage.rightClicks.count(), std::size_t{0});
}

void tst_hoverbuttondrop::aDropIsRefused_data()
{
    QTest::addColumn<bool>("enabledForDrops");
    QTest::addColumn<bool>("disabled");
    QTest::addColumn<QString>("format");
    QTest::addColumn<bool>("taken");
    const QString text = QStringLiteral("text/plain");
    QTest::newRow("taken") << true << false << text << true;
    QTest::newRow("not enabled for drops") << false << false << text << false;
    QTest::newRow("disabled") << true << true << text << false;
    QTest::newRow("a picture") << true << false << QStringLiteral("image/png") << false;
    QTest::newRow("a file") << true << false << QStringLiteral("text/uri-list") << false;
}

void tst_hoverbuttondrop::aDropIsRefused()
{
    QFETCH(bool, enabledForDrops);
    QFETCH(bool, disabled);
    QFETCH(QString, format);
    QFETCH(bool, taken);
    ButtonStage stage;
    ButtonStage::Clicks drops;
    if (enabledForDrops)
        stage.button.enableDragDrop({&drops, &ButtonStage::Clicks::receive});
    stage.button.setDisable(disabled);
    QMimeData data;
    data.setData(format, "42");
    QCOMPARE(dropOn(stage.button, data), taken);
    QCOMPARE(drops.count(), std::size_t{taken ? 1U : 0U});
    QCOMPARE(stage.button.getDropindex(), taken ? 42 : 0);
}

void tst_hoverbuttondrop::theFaceShowsADragOverTheButton()
{
    DropStage stage;
    QMimeData data;
    data.setText(QStringLiteral("1"));
    QVERIFY(dragOver(stage.button, data));
    QCOMPARE(stage.face(), kHoverFace);
    dragAway(stage.button);
    QCOMPARE(stage.face(), kNormalFace);
    QVERIFY(dropOn(stage.button, data));
    QCOMPARE(stage.face(), kNormalFace);
}

void tst_hoverbuttondrop::aFrameShowsADragOverTheButton()
{
    DropStage stage;
    QMimeData data;
    data.setText(QStringLiteral("1"));
    for (int round = 0; round < 2; ++round) {
        QVERIFY(extentOf(stage.picture(), kGoldBright).isEmpty());
        QVERIFY(dragOver(stage.button, data));
        // Two points broad, all around.
        const QRect inner = stage.button.rect().adjusted(2, 2, -2, -2);
        QCOMPARE(extentOfOther(stage.picture(), kGoldBright), inner);
        QVERIFY(extentOf(stage.picture().copy(inner), kGoldBright).isEmpty());
        dragAway(stage.button);
    }
    QVERIFY(dropOn(stage.button, data));
    QVERIFY(extentOf(stage.picture(), kGoldBright).isEmpty());
}

void tst_hoverbuttondrop::noFrameShowsADragThatIsRefused_data()
{
    QTest::addColumn<bool>("disabled");
    QTest::addColumn<QString>("format");
    QTest::newRow("disabled") << true << QStringLiteral("text/plain");
    QTest::newRow("a picture") << false << QStringLiteral("image/png");
}

void tst_hoverbuttondrop::noFrameShowsADragThatIsRefused()
{
    QFETCH(bool, disabled);
    QFETCH(QString, format);
    DropStage stage;
    stage.button.setDisable(disabled);
    QMimeData data;
    data.setData(format, "42");
    QVERIFY(!dragOver(stage.button, data));
    QVERIFY(extentOf(stage.picture(), kGoldBright).isEmpty());
    QCOMPARE(stage.face(), disabled ? kDisabledFace : kNormalFace);
}

/// Moved, what is dragged would be gone where it came from.
void tst_hoverbuttondrop::aDropIsACopyWhateverIsOffered()
{
    DropStage stage;
    QMimeData data;
    data.setText(QStringLiteral("1"));
    const QPoint at = stage.button.rect().center();
    const Qt::DropActions offered = Qt::CopyAction | Qt::MoveAction;
    QDragEnterEvent enter(at, offered, &data, Qt::LeftButton, {});
    enter.setDropAction(Qt::MoveAction);
    QApplication::sendEvent(&stage.button, &enter);
    QCOMPARE(enter.dropAction(), Qt::CopyAction);
    QDropEvent drop(at, offered, &data, Qt::LeftButton, {});
    drop.setDropAction(Qt::MoveAction);
    QApplication::sendEvent(&stage.button, &drop);
    QCOMPARE(drop.dropAction(), Qt::CopyAction);
    QCOMPARE(stage.drops.count(), std::size_t{1});
}

KYR_GUI_TEST(tst_hoverbuttondrop)
#include "tst_hoverbuttondrop.moc"
