#include "dialogs/PopupProgressBar.h"
#include "support/pictures.h"
#include "support/pointer.h"
#include "support/skinpictures.h"
#include "support/suite.h"

/// The insides of the progress window.
class tst_popupprogressbar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theProgressIsBoundedAndWritten_data();
    void theProgressIsBoundedAndWritten();
    void theMessageIsWritten();
    void theBarIsUncoveredAsFarAsTheProgress_data();
    void theBarIsUncoveredAsFarAsTheProgress();
    void theUserCannotChangeTheBar_data();
    void theUserCannotChangeTheBar();
};

namespace {

struct ProgressViewStage
{
    ProgressViewStage()
    {
        window.resize(256, 74);
        window.show();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("the window does not come up");
    }
    pngProgressBar &bar() const { return *view.findChild<pngProgressBar *>(); }

    View window;
    PopupProgressBar view{&window};
};

using UserAct = std::function<void(pngProgressBar &)>;

const QRect kBar(20, 74 - 18 - 16, 180, 16);

} // namespace

void tst_popupprogressbar::theProgressIsBoundedAndWritten_data()
{
    QTest::addColumn<int>("asked");
    QTest::addColumn<int>("progress");
    QTest::addColumn<QString>("text");
    const auto row = [](int asked, int progress, const char *text) {
        QTest::addRow("%d", asked) << asked << progress << QString::fromLatin1(text);
    };
    row(0, 0, "0%");
    row(1, 1, "1%");
    row(57, 57, "57%");
    row(100, 100, "100%");
    row(101, 100, "100%");
    row(-1, 0, "0%");
    row(INT_MAX, 100, "100%");
    row(INT_MIN, 0, "0%");
}

void tst_popupprogressbar::theProgressIsBoundedAndWritten()
{
    QFETCH(int, asked);
    QFETCH(int, progress);
    QFETCH(QString, text);
    ProgressViewStage stage;
    stage.view.SetProgressPos(30);
    stage.view.SetProgressPos(asked);
    QCOMPARE(stage.view.progressPos(), progress);
    QCOMPARE(stage.bar().getPos(), progress);
    QVERIFY(stage.window.isVisible()); // at 100, too: whoever opened it closes it
    const QRect place(206, 74 - 18 - 16, 40, 16);
    QCOMPARE(shown(stage.view).copy(place), withLine(skin("Pop_UP_normal"), text, place, 11));
}

void tst_popupprogressbar::theMessageIsWritten()
{
    ProgressViewStage stage;
    const QString message = QStringLiteral("Applying profile to on-board memory...");
    const QRect place(12, 74 - 44 - 15, 232, 15);
    QCOMPARE(shown(stage.view).copy(place), withLine(skin("Pop_UP_normal"), message, place, 11));
}

void tst_popupprogressbar::theBarIsUncoveredAsFarAsTheProgress_data()
{
    QTest::addColumn<int>("progress");
    QTest::addColumn<int>("uncovered");
    QTest::newRow("nothing") << 0 << 0;
    QTest::newRow("half") << 50 << 90;
    QTest::newRow("all") << 100 << 180;
}

void tst_popupprogressbar::theBarIsUncoveredAsFarAsTheProgress()
{
    QFETCH(int, progress);
    QFETCH(int, uncovered);
    ProgressViewStage stage;
    stage.view.SetProgressPos(progress);
    QPixmap expected = skin("Pop_UP_normal");
    QVERIFY(expected.copy(kBar).toImage() != skin("Pop_UP_over").copy(kBar).toImage());
    QPainter painter(&expected);
    painter.setClipRect(QRect(kBar.topLeft(), QSize(uncovered, kBar.height())));
    painter.drawPixmap(QPoint(), skin("Pop_UP_over"));
    painter.end();
    const QImage picture = shown(stage.view).copy(kBar);
    QCOMPARE(picture, expected.copy(kBar).toImage().convertToFormat(picture.format()));
}

void tst_popupprogressbar::theUserCannotChangeTheBar_data()
{
    QTest::addColumn<UserAct>("act");
    const auto row = [](const char *name, const UserAct &act) { QTest::newRow(name) << act; };
    row("click", [](pngProgressBar &bar) { pointer::click(bar, {90, 8}); });
    row("drag", [](pngProgressBar &bar) {
        pointer::press(bar, {10, 8});
        pointer::move(bar, {150, 8});
        pointer::release(bar, {150, 8});
    });
    row("key", [](pngProgressBar &bar) {
        bar.setFocus();
        QTest::keyClick(pointer::windowOf(bar), Qt::Key_End);
    });
    row("wheel", [](pngProgressBar &bar) { pointer::turnWheel(bar, 120); });
}

void tst_popupprogressbar::theUserCannotChangeTheBar()
{
    QFETCH(UserAct, act);
    ProgressViewStage stage;
    stage.view.SetProgressPos(30);
    act(stage.bar());
    QCOMPARE(stage.bar().getPos(), 30);
    QCOMPARE(stage.view.progressPos(), 30);
}

KYR_GUI_TEST(tst_popupprogressbar)
#include "tst_popupprogressbar.moc"
