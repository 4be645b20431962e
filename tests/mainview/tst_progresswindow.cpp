#include "progressstage.h"
#include "support/suite.h"

/// The window that shows the progress of an on-board write.
class tst_progresswindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theWindowIsBorderlessAndOfItsSize();
    void theWindowComesUpInTheMiddleOfTheScreen();
    void theWindowCannotBeDragged();
    void theWindowLeavesTheKeyboardWhereItIs();
    void shownAlreadyTheWindowIsRaisedWhereItStands();
    void theWindowCanBeShownAgain();
    void shownAgainTheWindowStartsFromZero();
    void closedByTheDesktopTheWindowEndsTheProgress();
};

namespace {

/// Counts how often a widget is put in front of the others.
class RaiseCounter : public QObject
{
public:
    explicit RaiseCounter(QWidget &widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        raises += event->type() == QEvent::ZOrderChange ? 1 : 0;
        return false;
    }
    int raises = 0;
};

bool isCentred(const QWidget &window)
{
    const QPoint middle = QGuiApplication::primaryScreen()->availableGeometry().center();
    return (window.geometry().center() - middle).manhattanLength() <= 1;
}

/// The main window with the progress window in front of it.
struct ShownStage : ProgressStage
{
    ShownStage()
    {
        saveOnBoard();
        if (!QTest::qWaitForWindowExposed(progressWindow()))
            qFatal("the progress window does not come up");
    }
};

} // namespace

void tst_progresswindow::shownAgainTheWindowStartsFromZero()
{
    ShownStage stage;
    stage.progress(100);
    QVERIFY(!stage.showsProgress());
    QCOMPARE(stage.progressView().progressPos(), 100);
    stage.saveOnBoard();
    QCOMPARE(stage.progressView().progressPos(), 0);
}

void tst_progresswindow::theWindowIsBorderlessAndOfItsSize()
{
    const ShownStage stage;
    const custumwindow &window = *stage.progressWindow();
    QVERIFY(window.windowFlags().testFlag(Qt::FramelessWindowHint));
    QCOMPARE(window.windowType(), Qt::Tool); // attached to the main window
    QCOMPARE(window.parentWidget(), &stage.window());
    QVERIFY(!window.isModal());
    QCOMPARE(window.size(), QSize(256, 74));
    QCOMPARE(stage.progressView().geometry(), QRect(0, 0, 256, 74));
}

void tst_progresswindow::theWindowComesUpInTheMiddleOfTheScreen()
{
    ProgressStage stage;
    stage.window().move(0, 0);
    stage.saveOnBoard();
    QVERIFY(isCentred(*stage.progressWindow()));
}

void tst_progresswindow::theWindowCannotBeDragged()
{
    const ShownStage stage;
    const custumwindow &window = *stage.progressWindow();
    const QPoint before = window.pos();
    pointer::press(window, {10, 10});
    pointer::move(window, {60, 40});
    pointer::release(window, {60, 40});
    QCOMPARE(window.pos(), before);
}

void tst_progresswindow::theWindowLeavesTheKeyboardWhereItIs()
{
    const ShownStage stage;
    QVERIFY(stage.progressWindow()->testAttribute(Qt::WA_ShowWithoutActivating));
}

void tst_progresswindow::shownAlreadyTheWindowIsRaisedWhereItStands()
{
    const ShownStage stage;
    custumwindow &window = *stage.progressWindow();
    window.move(5, 6);
    const RaiseCounter counter(window);
    stage.saveOnBoard();
    QCOMPARE(counter.raises, 1);
    QCOMPARE(window.pos(), QPoint(5, 6));
    QVERIFY(window.isVisible());
}

void tst_progresswindow::theWindowCanBeShownAgain()
{
    ShownStage stage;
    stage.progress(100);
    QVERIFY(!stage.showsProgress());
    stage.saveOnBoard();
    QVERIFY(stage.showsProgress());
    stage.progress(20);
    QCOMPARE(stage.progressView().progressPos(), 20);
    const QString name = QStringLiteral("pPopUpBarWindow");
    QCOMPARE(stage.window().findChildren<QWidget *>(name).size(), 1);
}

void tst_progresswindow::closedByTheDesktopTheWindowEndsTheProgress()
{
    ShownStage stage;
    stage.progress(40);
    stage.progressWindow()->move(5, 6);
    stage.progressWindow()->windowHandle()->close();
    QVERIFY(!stage.showsProgress());
    stage.progress(50);
    QCOMPARE(stage.progressView().progressPos(), 40);
    stage.saveOnBoard();
    QVERIFY(stage.showsProgress());
    QVERIFY(isCentred(*stage.progressWindow()));
    stage.progress(50);
    QCOMPARE(stage.progressView().progressPos(), 50);
}

KYR_GUI_TEST(tst_progresswindow)
#include "tst_progresswindow.moc"
