#include "panelstage.h"
#include "support/suite.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QListView>

#include <fnmatch.h>

/// The file panels, as the toolkit shows them where the desktop has none of its own.
class tst_desktoppanels : public PanelTest
{
    Q_OBJECT

private Q_SLOTS:
    void thePanelSaysWhatItIsFor_data();
    void thePanelSaysWhatItIsFor();
    void onlyFilesOfTheTypeAreOffered();
    void theTypeIsFoundInAnyLetterCase();
    void anExistingFileIsOpened();
    void aFileThatIsNotThereIsNotOpened();
    void aFileOfAnotherTypeIsNotOpened();
    void theProposedNameIsOffered();
    void aSavedFileEndsInTheType_data();
    void aSavedFileEndsInTheType();
    void replacingIsAskedFor_data();
    void replacingIsAskedFor();
    void whoDoesNotWantToReplaceIsAskedForAnotherName();
    void aLinkToNowhereIsAskedForToo();
};

namespace {

QStringList listedIn(QDialog &dialog)
{
    const auto *const list = dialog.findChild<QListView *>(QStringLiteral("listView"));
    QStringList names;
    for (int row = 0; row < list->model()->rowCount(list->rootIndex()); ++row)
        names += list->model()->index(row, 0, list->rootIndex()).data().toString();
    names.sort();
    return names;
}

} // namespace

void tst_desktoppanels::thePanelSaysWhatItIsFor_data()
{
    addBothPanels();
}

void tst_desktoppanels::thePanelSaysWhatItIsFor()
{
    QFETCH(bool, isSave);
    PanelStage stage;
    stage.user.then([&](QDialog &dialog) {
        QCOMPARE(dialog.objectName(), QStringLiteral("FilePanel"));
        QCOMPARE(dialog.windowTitle(),
                 isSave ? QStringLiteral("Export Profile") : QStringLiteral("Import Profile"));
        QCOMPARE(dialog.parentWidget(), stage.window.get());
        QVERIFY(dialog.isModal());
        QCOMPARE(panel(dialog).acceptMode(),
                 isSave ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
        cancel(dialog);
    });
    QVERIFY(!stage.ask(isSave));
    QVERIFY(stage.user.isDone());
}

void tst_desktoppanels::onlyFilesOfTheTypeAreOffered()
{
    for (const char *name : {"a.xml", "b.XML", "c.Xml", "d.txt", "e", "xml", "f.xml~"})
        putFile(documents().filePath(QLatin1String(name)));
    PanelStage stage;
    stage.user.then([](QDialog &dialog) {
        const auto *const types = dialog.findChild<QComboBox *>(QStringLiteral("fileTypeCombo"));
        QCOMPARE(types->count(), 1);
        QCOMPARE(types->currentText(), QStringLiteral("XML"));
        QTRY_COMPARE(listedIn(dialog),
                     (QStringList{QStringLiteral("a.xml"), QStringLiteral("b.XML"),
                                  QStringLiteral("c.Xml")}));
        cancel(dialog);
    });
    QVERIFY(!stage.open());
    QVERIFY(stage.user.isDone());
}

void tst_desktoppanels::theTypeIsFoundInAnyLetterCase()
{
    PanelStage stage;
    stage.user.then([](QDialog &dialog) {
        const QStringList filters = panel(dialog).nameFilters();
        QCOMPARE(filters.size(), 1);
        const QString &all = filters.constFirst();
        const QByteArray pattern = all.mid(all.indexOf(u'(') + 1).chopped(1).toLocal8Bit();
        for (const char *name : {"a.xml", "a.XML", "a.Xml", "a.xMl", "a.xmL"})
            QVERIFY2(::fnmatch(pattern.constData(), name, 0) == 0, name);
        for (const char *name : {"a.txt", "axml", "xml", "a.xml2"})
            QVERIFY2(::fnmatch(pattern.constData(), name, 0) == FNM_NOMATCH, name);
        cancel(dialog);
    });
    QVERIFY(!stage.save());
    QVERIFY(stage.user.isDone());
}

void tst_desktoppanels::anExistingFileIsOpened()
{
    const QString name = QStringLiteral("Pröfil é.xml");
    putFile(documents().filePath(name));
    PanelStage stage;
    stage.user.then(type(name));
    QCOMPARE(stage.open(), Path(documentPath(name)));
    QVERIFY(stage.user.isDone());
}

void tst_desktoppanels::aFileThatIsNotThereIsNotOpened()
{
    PanelStage stage;
    stage.user.then(type(QStringLiteral("none.xml"))).then(click(QMessageBox::Ok)).then(cancel);
    QVERIFY(!stage.open());
    QVERIFY(stage.user.isDone());
}

void tst_desktoppanels::aFileOfAnotherTypeIsNotOpened()
{
    putFile(documents().filePath(QStringLiteral("notes.txt")));
    putFile(documents().filePath(QStringLiteral("good.xml")));
    PanelStage stage;
    stage.user.then(type(QStringLiteral("notes.txt"))).then(type(QStringLiteral("good.xml")));
    QCOMPARE(stage.open(), Path(documentPath(QStringLiteral("good.xml"))));
    QVERIFY(stage.user.isDone());
}

void tst_desktoppanels::theProposedNameIsOffered()
{
    PanelStage stage;
    stage.user.then([](QDialog &dialog) {
        QCOMPARE(nameIn(dialog), QStringLiteral("Profile7"));
        confirm(dialog);
    });
    QCOMPARE(stage.save("Profile7"), Path(documentPath(QStringLiteral("Profile7.XML"))));
    QVERIFY(stage.user.isDone());
    QVERIFY(documents().isEmpty());
}

void tst_desktoppanels::aSavedFileEndsInTheType_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("saved");
    const auto row = [](const char *typed, const char *saved) {
        QTest::newRow(typed) << QString::fromUtf8(typed) << QString::fromUtf8(saved);
    };
    row("mine", "mine.XML");
    row("mine.XML", "mine.XML");
    row("mine.xml", "mine.xml");
    row("mine.xMl", "mine.xMl");
    row("mine.txt", "mine.txt.XML");
    row("mine.xml.old", "mine.xml.old.XML");
    row("mineXML", "mineXML.XML");
    row("mäine", "mäine.XML");
}

void tst_desktoppanels::aSavedFileEndsInTheType()
{
    QFETCH(QString, typed);
    QFETCH(QString, saved);
    PanelStage stage;
    stage.user.then(type(typed));
    QCOMPARE(stage.save(), Path(documentPath(saved)));
    QVERIFY(stage.user.isDone());
}

void tst_desktoppanels::replacingIsAskedFor_data()
{
    QTest::addColumn<QString>("typed");
    QTest::newRow("whole name") << QStringLiteral("Profile0.XML");
    QTest::newRow("without the suffix") << QStringLiteral("Profile0");
}

void tst_desktoppanels::replacingIsAskedFor()
{
    QFETCH(QString, typed);
    putFile(documents().filePath(QStringLiteral("Profile0.XML")));
    PanelStage stage;
    stage.user.then(type(typed)).then([](QDialog &dialog) {
        auto *const box = qobject_cast<QMessageBox *>(&dialog);
        QVERIFY(box && box->isModal());
        QVERIFY(box->text().contains(QLatin1String("Profile0.XML already exists.")));
        QCOMPARE(box->defaultButton(), box->button(QMessageBox::No));
        click(QMessageBox::Yes)(dialog);
    });
    QCOMPARE(stage.save(), Path(documentPath(QStringLiteral("Profile0.XML"))));
    QVERIFY(stage.user.isDone());
    QVERIFY(stage.window->findChildren<QDialog *>().isEmpty());
}

void tst_desktoppanels::whoDoesNotWantToReplaceIsAskedForAnotherName()
{
    putFile(documents().filePath(QStringLiteral("Profile0.XML")));
    PanelStage stage;
    stage.user.then(confirm).then(confirm); // the default answer is no
    stage.user.then([](QDialog &dialog) {
        QCOMPARE(nameIn(dialog), QStringLiteral("Profile0.XML"));
        confirm(dialog);
    });
    stage.user.then(click(QMessageBox::No)).then(type(QStringLiteral("Profile1")));
    QCOMPARE(stage.save(), Path(documentPath(QStringLiteral("Profile1.XML"))));
    QVERIFY(stage.user.isDone());
}

void tst_desktoppanels::aLinkToNowhereIsAskedForToo()
{
    QVERIFY(QFile::link(QStringLiteral("nowhere"),
                        documents().filePath(QStringLiteral("Profile0.XML"))));
    PanelStage stage;
    stage.user.then(confirm).then(click(QMessageBox::Yes));
    QCOMPARE(stage.save(), Path(documentPath(QStringLiteral("Profile0.XML"))));
    QVERIFY(stage.user.isDone());
}

KYR_GUI_TEST(tst_desktoppanels)
#include "tst_desktoppanels.moc"
