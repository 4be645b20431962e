#include "platform/desktoppanels.h"
#include "support/suite.h"

#include <QtCore/QDir>
#include <QtCore/QPointer>
#include <QtCore/QTemporaryDir>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

#include <fnmatch.h>

#include <deque>
#include <functional>
#include <memory>

/// The file panels, as the toolkit shows them where the desktop has none of its own.
class tst_desktoppanels : public QObject
{
    Q_OBJECT

public:
    static void initMain();

private Q_SLOTS:
    void init();
    void cleanupTestCase();
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
    void cancellingGivesNothing_data();
    void cancellingGivesNothing();
    void replacingIsAskedFor_data();
    void replacingIsAskedFor();
    void whoDoesNotWantToReplaceIsAskedForAnotherName();
    void aLinkToNowhereIsAskedForToo();
    void theFirstFolderIsTheDocuments();
    void withoutDocumentsItIsTheHome();
    void theFolderUsedLastComesAgain();
    void aFolderThatIsGoneDoesNotComeAgain();
    void aCancelledPanelLeavesTheFolder();
    void aWindowThatGoesTakesThePanelAlong_data();
    void aWindowThatGoesTakesThePanelAlong();
    void aWindowThatGoesTakesTheQuestionAlong();
    void quittingCancels_data();
    void quittingCancels();
    void aPanelNeedsNoWindow();
};

namespace {

using Path = std::optional<std::string>;

std::unique_ptr<QTemporaryDir> home;

QDir documents()
{
    return QDir(home->filePath(QStringLiteral("Documents")));
}

std::string documentPath(const QString &name)
{
    return documents().filePath(name).toStdString();
}

void put(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write("old") != 3)
        qFatal("cannot write the test's file");
}

/// The user: has an answer for each dialog that gets the keyboard, in turn. A dialog without an
/// answer is closed, and counts.
class User : public QObject
{
public:
    using Answer = std::function<void(QDialog &dialog)>;

    User() { qApp->installEventFilter(this); }

    User &then(Answer answer)
    {
        m_answers.push_back(std::move(answer));
        return *this;
    }
    bool isDone() const { return m_answers.empty() && m_surplus == 0; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *const dialog = qobject_cast<QDialog *>(watched);
        if (!dialog)
            return false;
        // A desktop gives the keyboard back by itself.
        if (event->type() == QEvent::Hide && dialog->parentWidget())
            dialog->parentWidget()->activateWindow();
        if (event->type() == QEvent::WindowActivate) {
            const auto look = [this, shown = QPointer(dialog)] { answer(shown); };
            QMetaObject::invokeMethod(this, look, Qt::QueuedConnection);
        }
        return false;
    }

private:
    void answer(const QPointer<QDialog> &dialog)
    {
        if (!dialog || !dialog->isActiveWindow())
            return;
        const bool isExpected = !m_answers.empty();
        if (isExpected) {
            const Answer next = std::move(m_answers.front());
            m_answers.pop_front();
            next(*dialog);
        }
        m_surplus += !isExpected;
        // A panel that nobody answers would hold up the test.
        if (dialog && (!isExpected || QTest::currentTestFailed()))
            dialog->reject();
    }

    std::deque<Answer> m_answers;
    int m_surplus = 0;
};

void press(Qt::Key key)
{
    QTest::keyClick(QApplication::focusWidget(), key);
}

void cancel(QDialog & /*dialog*/)
{
    press(Qt::Key_Escape);
}

void confirm(QDialog & /*dialog*/)
{
    press(Qt::Key_Return);
}

/// Types a name over the one offered and confirms.
User::Answer type(const QString &name)
{
    return [name](QDialog &dialog) {
        auto *const edit = qobject_cast<QLineEdit *>(QApplication::focusWidget());
        QVERIFY(edit && edit->window() == &dialog);
        QTest::keyClick(edit, Qt::Key_A, Qt::ControlModifier);
        for (const QChar letter : name)
            QTest::sendKeyEvent(QTest::Click, edit, Qt::Key_unknown, QString(letter), {});
        press(Qt::Key_Return);
    };
}

User::Answer click(QMessageBox::StandardButton button)
{
    return [button](QDialog &dialog) {
        auto *const box = qobject_cast<QMessageBox *>(&dialog);
        QVERIFY(box && box->button(button));
        QTest::mouseClick(box->button(button), Qt::LeftButton);
    };
}

QFileDialog &panel(QDialog &dialog)
{
    auto *const found = qobject_cast<QFileDialog *>(&dialog);
    if (!found)
        qFatal("the dialog is no file panel");
    return *found;
}

QString nameIn(QDialog &dialog)
{
    return panel(dialog).findChild<QLineEdit *>()->text();
}

QStringList listedIn(QDialog &dialog)
{
    const auto *const list = dialog.findChild<QListView *>(QStringLiteral("listView"));
    QStringList names;
    for (int row = 0; row < list->model()->rowCount(list->rootIndex()); ++row)
        names += list->model()->index(row, 0, list->rootIndex()).data().toString();
    names.sort();
    return names;
}

/// A window with the keyboard, the panels, and a user.
struct PanelStage
{
    PanelStage()
    {
        window->show();
        window->activateWindow();
        if (!QTest::qWaitForWindowActive(window.get()))
            qFatal("the window does not come up");
    }
    Path open() { return panels.openPanel("Import Profile", "XML"); }
    Path save(const char *name = "Profile0")
    {
        return panels.savePanel("Export Profile", name, "XML");
    }
    Path ask(bool isSave) { return isSave ? save() : open(); }

    std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
    DesktopPanels panels;
    User user;
};

void addBothPanels()
{
    QTest::addColumn<bool>("isSave");
    QTest::newRow("open") << false;
    QTest::newRow("save") << true;
}

} // namespace

void tst_desktoppanels::initMain()
{
    // The toolkit keeps the looks of its panel in the user's configuration.
    home = std::make_unique<QTemporaryDir>();
    qputenv("HOME", home->path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", home->filePath(QStringLiteral("config")).toLocal8Bit());
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void tst_desktoppanels::init()
{
    documents().removeRecursively();
    QVERIFY(QDir().mkpath(documents().path()));
}

void tst_desktoppanels::cleanupTestCase()
{
    home.reset();
}

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
        put(documents().filePath(QLatin1String(name)));
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
    put(documents().filePath(name));
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
    put(documents().filePath(QStringLiteral("notes.txt")));
    put(documents().filePath(QStringLiteral("good.xml")));
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

void tst_desktoppanels::cancellingGivesNothing_data()
{
    QTest::addColumn<bool>("isSave");
    QTest::addColumn<int>("way");
    for (const bool isSave : {false, true}) {
        const char *const name = isSave ? "save" : "open";
        QTest::addRow("%s, Escape", name) << isSave << 0;
        QTest::addRow("%s, button", name) << isSave << 1;
        QTest::addRow("%s, closed", name) << isSave << 2;
    }
}

void tst_desktoppanels::cancellingGivesNothing()
{
    QFETCH(bool, isSave);
    QFETCH(int, way);
    const auto clickCancel = [](QDialog &dialog) {
        const auto *const buttons = dialog.findChild<QDialogButtonBox *>();
        QTest::mouseClick(buttons->button(QDialogButtonBox::Cancel), Qt::LeftButton);
    };
    const auto close = [](QDialog &dialog) { dialog.close(); };
    const User::Answer ways[] = {cancel, clickCancel, close};
    put(documents().filePath(QStringLiteral("Profile0.XML")));
    PanelStage stage;
    stage.user.then(ways[way]);
    QVERIFY(!stage.ask(isSave));
    QVERIFY(stage.user.isDone());
    QVERIFY(stage.window->findChildren<QDialog *>().isEmpty());
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
    put(documents().filePath(QStringLiteral("Profile0.XML")));
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
    put(documents().filePath(QStringLiteral("Profile0.XML")));
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

void tst_desktoppanels::theFirstFolderIsTheDocuments()
{
    PanelStage stage;
    stage.user.then([](QDialog &dialog) {
        QCOMPARE(panel(dialog).directory(), documents());
        cancel(dialog);
    });
    QVERIFY(!stage.open());
    QVERIFY(stage.user.isDone());
}

void tst_desktoppanels::withoutDocumentsItIsTheHome()
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

void tst_desktoppanels::theFolderUsedLastComesAgain()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("mine.xml"));
    put(path);
    PanelStage stage;
    stage.user.then(type(path)).then(confirm).then(type(QStringLiteral("mine.xml")));
    QCOMPARE(stage.open(), Path(path.toStdString()));
    QCOMPARE(stage.save(), Path(folder.filePath(QStringLiteral("Profile0.XML")).toStdString()));
    QCOMPARE(stage.open(), Path(path.toStdString()));
    QVERIFY(stage.user.isDone());
}

void tst_desktoppanels::aFolderThatIsGoneDoesNotComeAgain()
{
    QTemporaryDir folder;
    PanelStage stage;
    stage.user.then(type(folder.filePath(QStringLiteral("mine")))).then(confirm);
    QCOMPARE(stage.save(), Path(folder.filePath(QStringLiteral("mine.XML")).toStdString()));
    QVERIFY(folder.remove());
    QCOMPARE(stage.save(), Path(documentPath(QStringLiteral("Profile0.XML"))));
    QVERIFY(stage.user.isDone());
}

void tst_desktoppanels::aCancelledPanelLeavesTheFolder()
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

void tst_desktoppanels::aWindowThatGoesTakesThePanelAlong_data()
{
    addBothPanels();
}

void tst_desktoppanels::aWindowThatGoesTakesThePanelAlong()
{
    QFETCH(bool, isSave);
    PanelStage stage;
    QPointer<QDialog> gone;
    stage.user.then([&](QDialog &dialog) {
        gone = &dialog;
        stage.window.reset();
    });
    QVERIFY(!stage.ask(isSave));
    QVERIFY(!gone);
    QVERIFY(stage.user.isDone());
}

void tst_desktoppanels::aWindowThatGoesTakesTheQuestionAlong()
{
    put(documents().filePath(QStringLiteral("Profile0.XML")));
    PanelStage stage;
    QPointer<QDialog> gone;
    stage.user.then(confirm).then([&](QDialog &dialog) {
        gone = &dialog;
        stage.window.reset();
    });
    QVERIFY(!stage.save());
    QVERIFY(!gone);
    QVERIFY(stage.user.isDone());
}

void tst_desktoppanels::quittingCancels_data()
{
    QTest::addColumn<bool>("isSave");
    QTest::addColumn<int>("answersBefore");
    QTest::newRow("open") << false << 0;
    QTest::newRow("save") << true << 0;
    QTest::newRow("the question") << true << 1;
}

void tst_desktoppanels::quittingCancels()
{
    QFETCH(bool, isSave);
    QFETCH(int, answersBefore);
    put(documents().filePath(QStringLiteral("Profile0.XML")));
    PanelStage stage;
    for (int i = 0; i < answersBefore; ++i)
        stage.user.then(confirm);
    stage.user.then([](QDialog & /*dialog*/) { QCoreApplication::exit(7); });
    Path path("not asked");
    const auto ask = [&] {
        path = stage.ask(isSave);
        if (!stage.user.isDone())
            QCoreApplication::exit(); // the answer that quits was not asked for
    };
    QMetaObject::invokeMethod(&stage.user, ask, Qt::QueuedConnection);
    QCOMPARE(QCoreApplication::exec(), 7);
    QVERIFY(!path);
    QVERIFY(stage.user.isDone());
    QVERIFY(stage.window->findChildren<QDialog *>().isEmpty());
}

void tst_desktoppanels::aPanelNeedsNoWindow()
{
    PanelStage stage;
    stage.window.reset();
    stage.user.then([](QDialog &dialog) {
        QVERIFY(!dialog.parentWidget());
        confirm(dialog);
    });
    QCOMPARE(stage.save(), Path(documentPath(QStringLiteral("Profile0.XML"))));
    QVERIFY(stage.user.isDone());
}

KYR_GUI_TEST(tst_desktoppanels)
#include "tst_desktoppanels.moc"
