#include "functions/TreeCtrlDataSource.h"
#include "knowncategories.h"
#include "support/suite.h"

/// What the game command tree answers an outline.
class tst_treectrldatasource : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyRowTellsHowManyChildrenItHas();
    void theTopRowsAreTheCategories();
    void aCategoryIsANewRowOnEachCall();
    void theChildrenOfACategoryAreItsCommands();
    void onlyCommandsCannotBeExpanded();
    void whetherARowCanBeExpandedIsKnownWithoutItsChildren();
    void theTextOfARowIsItsName();
    void aDragCarriesTheIndexOfTheFirstRow_data();
    void aDragCarriesTheIndexOfTheFirstRow();
    void nothingIsDraggedWithoutAnIndex();

private:
    TreeCtrlDataSource source;
};

namespace {

/// A row without commands and with an index of its own.
GameCommandItem rowOfIndex(std::ptrdiff_t index)
{
    GameCommandItem row({}, nullptr);
    row.setIndexId(index);
    return row;
}

} // namespace

void tst_treectrldatasource::everyRowTellsHowManyChildrenItHas()
{
    QCOMPARE(source.numberOfChildrenOfItem(nullptr), std::size_t{7});
    for (const KnownCategory &known : kKnownCategories) {
        const auto category = source.child(known.number, nullptr);
        QCOMPARE(source.numberOfChildrenOfItem(category.get()), known.commands);
        QCOMPARE(source.numberOfChildrenOfItem(category->childAtIndex(0).get()),
                 GameCommandItem::kLeafMark);
    }
}

void tst_treectrldatasource::theTopRowsAreTheCategories()
{
    for (const KnownCategory &known : kKnownCategories) {
        const auto category = source.child(known.number, nullptr);
        QCOMPARE(category->GetTilteName(), QLatin1String(known.name));
        QCOMPARE(category->getIndexId(), std::ptrdiff_t{known.number});
    }
    QVERIFY(!source.child(7, nullptr));
}

void tst_treectrldatasource::aCategoryIsANewRowOnEachCall()
{
    const auto first = source.child(2, nullptr);
    QVERIFY(source.child(2, nullptr) != first);
}

void tst_treectrldatasource::theChildrenOfACategoryAreItsCommands()
{
    const auto category = source.child(0, nullptr);
    const auto jump = source.child(7, category.get());
    QCOMPARE(jump->GetTilteName(), QStringLiteral("Jump"));
    QCOMPARE(jump->getIndexId(), std::ptrdiff_t{4104});
    QCOMPARE(source.child(7, category.get()), jump);
    QVERIFY(!source.child(14, category.get()));
    QVERIFY(!source.child(0, jump.get()));
}

void tst_treectrldatasource::onlyCommandsCannotBeExpanded()
{
    QVERIFY(source.isItemExpandable(nullptr));
    for (const KnownCategory &known : kKnownCategories) {
        const auto category = source.child(known.number, nullptr);
        QVERIFY(source.isItemExpandable(category.get()));
        QVERIFY(!source.isItemExpandable(category->childAtIndex(0).get()));
    }
}

void tst_treectrldatasource::whetherARowCanBeExpandedIsKnownWithoutItsChildren()
{
    GameCommandItem row = rowOfIndex(5);
    QVERIFY(source.isItemExpandable(&row));
    // Children made by the question would be those of the camera.
    row.setIndexId(1);
    QCOMPARE(source.numberOfChildrenOfItem(&row), std::size_t{10});
}

void tst_treectrldatasource::theTextOfARowIsItsName()
{
    const auto category = source.child(5, nullptr);
    QCOMPARE(source.objectValueForTableColumn(category.get()), QStringLiteral("Camera Functions"));
    QCOMPARE(source.objectValueForTableColumn(category->childAtIndex(2).get()),
             QStringLiteral("Zoom In"));
    QCOMPARE(source.objectValueForTableColumn(nullptr), QString());
}

void tst_treectrldatasource::aDragCarriesTheIndexOfTheFirstRow_data()
{
    QTest::addColumn<std::ptrdiff_t>("index");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *text, std::ptrdiff_t index) {
        QTest::newRow(text) << index << QString::fromLatin1(text);
    };
    row("1", 1); // a category's number is taken for a basic function
    row("5", 5);
    row("4097", 4097);
    row("28681", 28681);
}

void tst_treectrldatasource::aDragCarriesTheIndexOfTheFirstRow()
{
    QFETCH(std::ptrdiff_t, index);
    GameCommandItem dragged = rowOfIndex(index);
    GameCommandItem first = rowOfIndex(0);
    GameCommandItem other = rowOfIndex(2);
    const auto text = source.writeItems({&dragged, &first, &other});
    QVERIFY(text);
    QTEST(*text, "text");
}

void tst_treectrldatasource::nothingIsDraggedWithoutAnIndex()
{
    QVERIFY(!source.writeItems({}));
    GameCommandItem first = rowOfIndex(0);
    GameCommandItem other = rowOfIndex(4104);
    QVERIFY(!source.writeItems({&first}));
    QVERIFY(!source.writeItems({&first, &other}));
}

KYR_PLAIN_TEST(tst_treectrldatasource)
#include "tst_treectrldatasource.moc"
