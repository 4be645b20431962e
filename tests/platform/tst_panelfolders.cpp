#include "panelstage.h"
#include "support/suite.h"

/// The folder in which a file panel opens.
class tst_panelfolders : public PanelTest
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstFolderIsTheDocuments();
    void withoutDocumentsItIsTheHome();
    void theFolderUsedLastComesAgain();
    void aFolderThatIsGoneDoesNotComeAgain();
    void aCancelledPanelLeavesTheFolder();
};

void tst_panelfolders::theFirstFolderIsTheDocuments()
{
    PanelStage stage;
    stage.user.then([](QDialog &dialog) {
        QCOMPARE(panel(dialog).directory(), documents());
        cancel(dialog);
    });
    QVERIFY(!stage.open());
    QVERIFY(stage.user.isDone());
}

void tst_panelfolders::withoutDocumentsItIsTheHome()
{
    const QString config = home->filePath(QStringLiteral("config"));
    QFile folders(config + QStringLiteral("/user-dirs.dirs"));
    QVERIFY(QDir().mkpath(config) && folders.open(QIODevice::WriteOnly));
    folders.write("XDG_DOCUMENTS_DIR=\"$HOME/none/Documents\"\n");
    folders.close();
    PanelStage stage;
    stage.user.then(confirm);
    QCOMPARE(stage.save(), Path(home->filePath(QStringLiteral("Profile0.XML")).toStdString()));
    QVERIFY(stage.user.isDone());
    QVERIFY(folders.remove());
}

void tst_panelfolders::theFolderUsedLastComesAgain()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("mine.xml"));
    putFile(path);
    PanelStage stage;
    stage.user.then(type(path)).then(confirm).then(type(QStringLiteral("mine.xml")));
    QCOMPARE(stage.open(), Path(path.toStdString()));
    QCOMPARE(stage.save(), Path(folder.filePath(QStringLiteral("Profile0.XML")).toStdString()));
    QCOMPARE(stage.open(), Path(path.toStdString()));
    QVERIFY(stage.user.isDone());
}

void tst_panelfolders::aFolderThatIsGoneDoesNotComeAgain()
{
    QTemporaryDir folder;
    PanelStage stage;
    stage.user.then(type(folder.filePath(QStringLiteral("mine")))).then(confirm);
    QCOMPARE(stage.save(), Path(folder.filePath(QStringLiteral("mine.XML")).toStdString()));
    QVERIFY(folder.remove());
    QCOMPARE(stage.save(), Path(documentPath(QStringLiteral("Profile0.XML"))));
    QVERIFY(stage.user.isDone());
}

void tst_panelfolders::aCancelledPanelLeavesTheFolder()
{
    QVERIFY(documents().mkdir(QStringLiteral("inner")));
    PanelStage stage;
    stage.user.then([](QDialog &dialog) {
        type(QStringLiteral("inner"))(dialog); // goes into the folder, the panel stays
        QVERIFY(dialog.isVisible());
        QCOMPARE(panel(dialog).directory().dirName(), QStringLiteral("inner"));
        cancel(dialog);
    });
    QVERIFY(!stage.save());
    stage.user.then(confirm);
    QCOMPARE(stage.save(), Path(documentPath(QStringLiteral("Profile0.XML"))));
    QVERIFY(stage.user.isDone());
}

KYR_GUI_TEST(tst_panelfolders)
#include "tst_panelfolders.moc"
