#include "countingsource.h"
#include "knowncategories.h"
#include "support/suite.h"
#include "treestage.h"

#include <QtCore/QMimeData>
#include <QtTest/QAbstractItemModelTester>

/// An outline's rows as an item model.
class tst_outlinemodel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theModelKeepsTheToolkitsRules();
    void everyRowStandsWhereItBelongs();
    void aCategoryIsAskedForOnce();
    void onlyCategoriesHaveChildren();
    void theTextIsAllThatARowShows();
    void theColumnIsCalledName();
    void nothingIsAskedForBelowAClosedCategory();
    void oneOpenedCategoryAsksBelowNoOther();
    void searchingAsksBelowNoClosedCategory();
    void aRowCarriesItsIndexAsPlainText();
    void theFirstCategoryCarriesNothing();
};

namespace {

std::unique_ptr<QMimeData> carriedBy(const char *name)
{
    TreeStage stage;
    stage.outline.expandAll();
    return std::unique_ptr<QMimeData>(
        stage.outline.model()->mimeData({outlinerows::row(stage.outline, name)}));
}

} // namespace

void tst_outlinemodel::theModelKeepsTheToolkitsRules()
{
    TreeStage stage;
    stage.outline.expandAll();
    const QAbstractItemModelTester tester(stage.outline.model(),
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    QCOMPARE(stage.outline.model()->rowCount(), 7);
}

void tst_outlinemodel::everyRowStandsWhereItBelongs()
{
    const OutlineModel model(std::make_shared<TreeCtrlDataSource>(), nullptr);
    QCOMPARE(model.columnCount({}), 1);
    for (const KnownCategory &known : kKnownCategories) {
        const QModelIndex category = model.index(static_cast<int>(known.number), 0, {});
        QCOMPARE(OutlineModel::itemAt(category)->getIndexId(), std::ptrdiff_t{known.number});
        QVERIFY(!category.parent().isValid());
        const int commands = static_cast<int>(known.commands);
        QCOMPARE(model.rowCount(category), commands);
        const QModelIndex last = model.index(commands - 1, 0, category);
        QCOMPARE(last.parent(), category);
        QCOMPARE(OutlineModel::itemAt(last)->getIndexId(),
                 (std::ptrdiff_t{known.number} + 1) * 4096 +
                     static_cast<std::ptrdiff_t>(known.commands));
        QVERIFY(!model.index(commands, 0, category).isValid());
        QVERIFY(!model.index(0, 1, category).isValid());
    }
    QVERIFY(!model.index(7, 0, {}).isValid());
    QCOMPARE(OutlineModel::itemAt({}), nullptr);
}

void tst_outlinemodel::aCategoryIsAskedForOnce()
{
    const auto source = std::make_shared<CountingSource>();
    const OutlineModel model(source, nullptr);
    QCOMPARE(source->topRows, 0);
    const QModelIndex first = model.index(2, 0, {});
    QCOMPARE(model.index(2, 0, {}), first);
    QCOMPARE(source->topRows, 1);
}

void tst_outlinemodel::onlyCategoriesHaveChildren()
{
    const OutlineModel model(std::make_shared<TreeCtrlDataSource>(), nullptr);
    const QModelIndex category = model.index(5, 0, {});
    const QModelIndex command = model.index(0, 0, category);
    QVERIFY(model.hasChildren({}));
    QVERIFY(model.hasChildren(category));
    QVERIFY(!model.hasChildren(command));
    QCOMPARE(model.rowCount(command), 0);
    QVERIFY(!model.index(0, 0, command).isValid());
}

void tst_outlinemodel::theTextIsAllThatARowShows()
{
    const OutlineModel model(std::make_shared<TreeCtrlDataSource>(), nullptr);
    const QModelIndex category = model.index(5, 0, {});
    QCOMPARE(category.data(), QVariant(QStringLiteral("Camera Functions")));
    QCOMPARE(model.index(3, 0, category).data(), QVariant(QStringLiteral("Zoom Out")));
    for (const int role : {Qt::EditRole, Qt::DecorationRole, Qt::ToolTipRole, Qt::CheckStateRole})
        QVERIFY(!category.data(role).isValid());
    QVERIFY(!(model.flags(category) & Qt::ItemIsEditable));
}

void tst_outlinemodel::theColumnIsCalledName()
{
    const OutlineModel model(std::make_shared<TreeCtrlDataSource>(), nullptr);
    QCOMPARE(model.headerData(0, Qt::Horizontal, Qt::DisplayRole),
             QVariant(QStringLiteral("Name")));
    QVERIFY(!model.headerData(0, Qt::Vertical, Qt::DisplayRole).isValid());
    QVERIFY(!model.headerData(1, Qt::Horizontal, Qt::DisplayRole).isValid());
    QVERIFY(!model.headerData(0, Qt::Horizontal, Qt::DecorationRole).isValid());
}

void tst_outlinemodel::nothingIsAskedForBelowAClosedCategory()
{
    const auto source = std::make_shared<CountingSource>();
    TreeStage stage(source);
    stage.window.grab();
    stage.click("Camera Functions");
    keyboard::press(Qt::Key_Down);
    keyboard::press(Qt::Key_Home);
    QCOMPARE(stage.selected(), QStringLiteral("Movement Keys"));
    QCOMPARE(source->lookedBelow, QStringList());
    QCOMPARE(source->topRows, 7);
}

void tst_outlinemodel::oneOpenedCategoryAsksBelowNoOther()
{
    const auto source = std::make_shared<CountingSource>();
    TreeStage stage(source);
    stage.clickArrow("Camera Functions");
    stage.window.grab();
    stage.click("Zoom In");
    QCOMPARE(source->lookedBelow, QStringList{QStringLiteral("Camera Functions")});
    stage.clickArrow("Movement Keys");
    QCOMPARE(source->lookedBelow,
             (QStringList{QStringLiteral("Camera Functions"), QStringLiteral("Movement Keys")}));
    QCOMPARE(source->topRows, 7);
}

void tst_outlinemodel::searchingAsksBelowNoClosedCategory()
{
    const auto source = std::make_shared<CountingSource>();
    TreeStage stage(source);
    QVERIFY(!stage.outline.findItembyIndex(4104));
    stage.outline.setSelectedItembyIndex(4104);
    QCOMPARE(source->lookedBelow, QStringList());
}

void tst_outlinemodel::aRowCarriesItsIndexAsPlainText()
{
    const auto jump = carriedBy("Jump");
    QVERIFY(jump);
    QCOMPARE(jump->formats(), QStringList{QStringLiteral("text/plain")});
    QCOMPARE(jump->text(), QStringLiteral("4104"));
    const auto camera = carriedBy("Camera Functions");
    QVERIFY(camera);
    QCOMPARE(camera->text(), QStringLiteral("5"));
}

void tst_outlinemodel::theFirstCategoryCarriesNothing()
{
    QVERIFY(!carriedBy("Movement Keys"));
    const OutlineModel model(std::make_shared<TreeCtrlDataSource>(), nullptr);
    QVERIFY(!model.mimeData({}));
    QCOMPARE(model.mimeTypes(), QStringList{QStringLiteral("text/plain")});
}

KYR_GUI_TEST(tst_outlinemodel)
#include "tst_outlinemodel.moc"
