#include "functions/GameCommandItem.h"
#include "gamecommands.h"
#include "knowncategories.h"
#include "support/suite.h"

/// A row of the game command tree.
class tst_gamecommanditem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aCategoryHasItsTextAndNumberAndNoParent_data() { categories(); }
    void aCategoryHasItsTextAndNumberAndNoParent();
    void theCategoryMadeLastIsKept();
    void aCategoryIsANewRowOnEachCall();
    void aboveTheLastCategoryThereIsNone_data();
    void aboveTheLastCategoryThereIsNone();
    void aRowKeepsWhatItIsGiven();
    void aCategoryHasItsCommandsInOrder_data() { categories(); }
    void aCategoryHasItsCommandsInOrder();
    void aCommandIsALeaf();
    void pastTheLastChildThereIsNone();
    void childrenAreMadeOnFirstUseAndThenKept();
    void addedChildrenAreNewRowsOfTheReceiver();
    void aCategoryThatThereIsNotHasNoChildren();

private:
    static void categories();
};

namespace {

QStringList namesOf(const GameCommandItem::ChildList &rows)
{
    QStringList names;
    for (const GameCommandItem::Pointer &row : rows)
        names.append(row->GetTilteName());
    return names;
}

std::vector<std::ptrdiff_t> codesOf(const GameCommandItem::ChildList &rows)
{
    std::vector<std::ptrdiff_t> codes;
    for (const GameCommandItem::Pointer &row : rows)
        codes.push_back(row->getIndexId());
    return codes;
}

} // namespace

void tst_gamecommanditem::categories()
{
    QTest::addColumn<const KnownCategory *>("known");
    for (const KnownCategory &known : kKnownCategories)
        QTest::newRow(known.name) << &known;
}

void tst_gamecommanditem::aCategoryHasItsTextAndNumberAndNoParent()
{
    QFETCH(const KnownCategory *, known);
    const auto row = GameCommandItem::rootItem(known->number);
    QVERIFY(row);
    QCOMPARE(row->GetTilteName(), QLatin1String(known->name));
    QCOMPARE(row->getIndexId(), std::ptrdiff_t{known->number});
    QCOMPARE(row->GetParent(), nullptr);
}

void tst_gamecommanditem::theCategoryMadeLastIsKept()
{
    const auto first = GameCommandItem::rootItem(0);
    QCOMPARE(rootItem, first);
    const auto last = GameCommandItem::rootItem(6);
    QCOMPARE(rootItem, last);
}

void tst_gamecommanditem::aCategoryIsANewRowOnEachCall()
{
    const auto first = GameCommandItem::rootItem(3);
    const auto second = GameCommandItem::rootItem(3);
    QVERIFY(first != second);
    QVERIFY(first->childAtIndex(0) != second->childAtIndex(0));
}

void tst_gamecommanditem::aboveTheLastCategoryThereIsNone_data()
{
    QTest::addColumn<unsigned>("category");
    for (const unsigned category : {7U, 8U, 4096U, UINT_MAX})
        QTest::addRow("%u", category) << category;
}

void tst_gamecommanditem::aboveTheLastCategoryThereIsNone()
{
    QFETCH(unsigned, category);
    const auto before = GameCommandItem::rootItem(1);
    QVERIFY(rootItem);
    QVERIFY(!GameCommandItem::rootItem(category));
    QVERIFY(!rootItem);
}

void tst_gamecommanditem::aRowKeepsWhatItIsGiven()
{
    GameCommandItem parent(QStringLiteral("above"), nullptr);
    GameCommandItem row(QStringLiteral("below"), &parent);
    QCOMPARE(row.GetTilteName(), QStringLiteral("below"));
    QCOMPARE(row.GetParent(), &parent);
    QCOMPARE(row.getIndexId(), std::ptrdiff_t{0});
    row.setIndexId(PTRDIFF_MIN);
    QCOMPARE(row.getIndexId(), PTRDIFF_MIN);
}

void tst_gamecommanditem::aCategoryHasItsCommandsInOrder()
{
    QFETCH(const KnownCategory *, known);
    QStringList names;
    std::vector<std::ptrdiff_t> codes;
    for (const KnownCommand &command : kKnownCommands) {
        if (command.code >> 12U != known->number + 1)
            continue;
        names.append(QLatin1String(command.name));
        codes.push_back(command.code);
    }
    const auto row = GameCommandItem::rootItem(known->number);
    QCOMPARE(row->numberOfChildren(), known->commands);
    QVERIFY(row->children());
    QCOMPARE(namesOf(*row->children()), names);
    QCOMPARE(codesOf(*row->children()), codes);
    for (std::size_t i = 0; i < known->commands; ++i) {
        QCOMPARE(row->childAtIndex(i), row->children()->at(i));
        QCOMPARE(row->childAtIndex(i)->GetParent(), row.get());
    }
}

void tst_gamecommanditem::aCommandIsALeaf()
{
    const auto row = GameCommandItem::rootItem(5);
    for (const GameCommandItem::Pointer &command : *row->children()) {
        QVERIFY(!command->children());
        QCOMPARE(command->numberOfChildren(), static_cast<std::size_t>(-1));
        QVERIFY(!command->childAtIndex(0));
    }
}

void tst_gamecommanditem::pastTheLastChildThereIsNone()
{
    const auto row = GameCommandItem::rootItem(5);
    QVERIFY(row->childAtIndex(3));
    QVERIFY(!row->childAtIndex(4));
    QVERIFY(!row->childAtIndex(static_cast<std::size_t>(-1)));
}

void tst_gamecommanditem::childrenAreMadeOnFirstUseAndThenKept()
{
    GameCommandItem row(QStringLiteral("a row that becomes a category"), nullptr);
    row.setIndexId(5);
    const auto *const children = row.children();
    QCOMPARE(children->size(), std::size_t{4}); // by the number that it had by then
    const auto first = row.childAtIndex(0);
    row.setIndexId(1);
    QCOMPARE(row.children(), children);
    QCOMPARE(row.numberOfChildren(), std::size_t{4});
    QCOMPARE(row.childAtIndex(0), first);
}

void tst_gamecommanditem::addedChildrenAreNewRowsOfTheReceiver()
{
    GameCommandItem row(QStringLiteral("Movement Keys"), nullptr);
    const auto added = row.AddChildItem(5);
    const QStringList names{QStringLiteral("Next View"), QStringLiteral("Previous View"),
                            QStringLiteral("Zoom In"), QStringLiteral("Zoom Out")};
    QCOMPARE(namesOf(added), names);
    QCOMPARE(codesOf(added), (std::vector<std::ptrdiff_t>{24577, 24578, 24579, 24580}));
    QCOMPARE(added.front()->GetParent(), &row);
    QVERIFY(row.AddChildItem(5).front() != added.front());
    QCOMPARE(row.numberOfChildren(), std::size_t{14}); // its own are those of its own number
}

void tst_gamecommanditem::aCategoryThatThereIsNotHasNoChildren()
{
    GameCommandItem row(QStringLiteral("nothing below"), nullptr);
    QVERIFY(row.AddChildItem(7).empty());
    QVERIFY(row.AddChildItem(UINT_MAX).empty());
    row.setIndexId(7);
    QCOMPARE(row.numberOfChildren(), std::size_t{0});
    QVERIFY(!row.childAtIndex(0));
}

KYR_PLAIN_TEST(tst_gamecommanditem)
#include "tst_gamecommanditem.moc"
