#include "platform/numbers.h"
#include "support/suite.h"

class tst_numbers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void digitsAreReadUpToTheFirstOther_data();
    void digitsAreReadUpToTheFirstOther();
    void aNumberEndsWithItsView();
};

void tst_numbers::digitsAreReadUpToTheFirstOther_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("integer");

    QTest::newRow("empty") << QByteArray() << 0 << 0;
    QTest::newRow("plain") << QByteArray("42") << 42 << 42;
    QTest::newRow("leading zeros") << QByteArray("007") << 7 << 7;
    QTest::newRow("blanks before") << QByteArray(" \t\r\n\v\f9") << 9 << 9;
    QTest::newRow("only blanks") << QByteArray("  ") << 0 << 0;
    QTest::newRow("more behind") << QByteArray("12 34") << 12 << 12;
    QTest::newRow("letters") << QByteArray("x1") << 0 << 0;
    QTest::newRow("a fraction") << QByteArray("1.9") << 1 << 1;
    QTest::newRow("minus") << QByteArray("-5") << 0 << -5;
    QTest::newRow("plus") << QByteArray("+5") << 0 << 5;
    QTest::newRow("sign alone") << QByteArray("-") << 0 << 0;
    QTest::newRow("two signs") << QByteArray("--5") << 0 << 0;
    QTest::newRow("blank behind the sign") << QByteArray("- 5") << 0 << 0;
    QTest::newRow("largest") << QByteArray("2147483647") << 2147483647 << 2147483647;
    QTest::newRow("too large") << QByteArray("2147483648") << 2147483647 << 2147483647;
    QTest::newRow("smallest") << QByteArray("-2147483648") << 0 << -2147483647 - 1;
    QTest::newRow("endless") << QByteArray(1000, '9') << 2147483647 << 2147483647;
}

void tst_numbers::digitsAreReadUpToTheFirstOther()
{
    QFETCH(const QByteArray, text);
    QTEST(leadingNumber(text.toStdString()), "number");
    QTEST(leadingInteger(text.toStdString()), "integer");
}

void tst_numbers::aNumberEndsWithItsView()
{
    const std::string_view text = "123456";
    QCOMPARE(leadingNumber(text.substr(0, 3)), 123);
    QCOMPARE(leadingInteger(text.substr(1, 2)), 23);
}

KYR_CORE_TEST(tst_numbers)
#include "tst_numbers.moc"
