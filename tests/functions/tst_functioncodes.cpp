#include "gamecommands.h"

#include "functions/functioncodes.h"
#include "model/fixedtext.h"
#include "support/suite.h"

/// What the codes on the mouse's buttons mean.
class tst_functioncodes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_Config = {}; }

    void everyBasicFunctionHasItsCaption_data();
    void everyBasicFunctionHasItsCaption();
    void everyGameCommandHasItsCodeNameAndSize_data();
    void everyGameCommandHasItsCodeNameAndSize();
    void thereAreNoOtherGameCommands();
    void theCategoriesAreInOrder();
    void everyOtherCodeHasNoCaption();
    void aCodeFarAwayHasNoCaption_data();
    void aCodeFarAwayHasNoCaption();
    void aMacroIsCalledByItsName_data();
    void aMacroIsCalledByItsName();
    void aMacroNameIsThatOfTheGivenProfile();
    void aMacroNameThatFillsItsFieldIsShownWhole();
    void onlyCodesInTheMacroRangeHaveASlot();
    void aPlaceNamesItsCommand_data();
    void aPlaceNamesItsCommand();
};

namespace {

struct KnownCaption
{
    FunctionCode code;
    const char *caption;
};

constexpr KnownCaption kKnownCaptions[] = {
    {1, "Left-Click"},    {2, "Right-Click"},      {3, "Double Click"},  {4, "Button 4"},
    {5, "Button 5"},      {6, "Universal Scroll"}, {9, "Disable/Clear"}, {11, "Scroll Up"},
    {12, "Scroll Down"},  {16, "CPI 800"},         {17, "CPI 1600"},     {18, "CPI 2400"},
    {19, "CPI 3200"},     {20, "CPI 4000"},        {21, "CPI 5000"},     {22, "CPI UP"},
    {23, "CPI DOWN"},     {32, "Profile 1"},       {33, "Profile 2"},    {34, "Profile 3"},
    {35, "Profile 4"},    {36, "Profile 5"},       {37, "Profile 6"},    {38, "Profile 7"},
    {39, "Profile 8"},    {40, "Profile 9"},       {41, "Profile 10"},   {42, "Profile UP"},
    {43, "Profile DOWN"},
};

bool isKnown(FunctionCode code)
{
    return std::ranges::count(kKnownCaptions, code, &KnownCaption::code) > 0 ||
           std::ranges::count(kKnownCommands, code, &KnownCommand::code) > 0;
}

QString captionOf(FunctionCode code)
{
    return functions::caption(code, m_Config.PROFILE[0]);
}

} // namespace

void tst_functioncodes::everyBasicFunctionHasItsCaption_data()
{
    QTest::addColumn<FunctionCode>("code");
    QTest::addColumn<QString>("caption");
    for (const KnownCaption &known : kKnownCaptions)
        QTest::newRow(known.caption) << known.code << QString::fromLatin1(known.caption);
}

void tst_functioncodes::everyBasicFunctionHasItsCaption()
{
    QFETCH(FunctionCode, code);
    QTEST(captionOf(code), "caption");
    QCOMPARE(GetTreeListName(code), QString());
}

void tst_functioncodes::everyGameCommandHasItsCodeNameAndSize_data()
{
    QTest::addColumn<FunctionCode>("code");
    QTest::addColumn<QString>("name");
    QTest::addColumn<unsigned>("size");
    for (const KnownCommand &known : kKnownCommands)
        QTest::newRow(known.name) << known.code << QString::fromLatin1(known.name) << known.size;
}

void tst_functioncodes::everyGameCommandHasItsCodeNameAndSize()
{
    QFETCH(FunctionCode, code);
    QFETCH(QString, name);
    QCOMPARE(captionOf(code), name);
    QCOMPARE(GetTreeListName(code), name);
    QCOMPARE(GetSubTitle((code >> 12U) - 1, (code & 0xFFFU) - 1), name);
    QVERIFY(functions::gameCommand(code));
    QTEST(functions::gameCommand(code)->size, "size");
}

void tst_functioncodes::thereAreNoOtherGameCommands()
{
    QCOMPARE(std::size(kKnownCommands), std::size_t{131});
    long named = 0;
    for (FunctionCode code = 0; code <= 0xFFFF; ++code)
        named += GetTreeListName(code).isEmpty() ? 0 : 1;
    QCOMPARE(named, 131);
}

void tst_functioncodes::theCategoriesAreInOrder()
{
    struct Category
    {
        const char *name;
        std::size_t commands;
    };
    constexpr Category known[] = {
        {"Movement Keys", 14},
        {"Chat Functions", 10},
        {"Action Bar Functions", 52},
        {"Targeting Functions", 21},
        {"Interface Panel Functions", 21},
        {"Camera Functions", 4},
        {"Miscellaneous Functions", 9},
    };
    QCOMPARE(functions::gameCategories().size(), std::size(known));
    for (std::size_t i = 0; i < std::size(known); ++i) {
        QCOMPARE(functions::gameCategories()[i].name, known[i].name);
        QCOMPARE(functions::gameCategories()[i].commands.size(), known[i].commands);
    }
}

void tst_functioncodes::everyOtherCodeHasNoCaption()
{
    for (FunctionCode code = 0; code <= 0xFFFF; ++code) {
        if (!isKnown(code) && !captionOf(code).isEmpty())
            QFAIL(qPrintable(QStringLiteral("%1 is captioned").arg(code)));
    }
}

void tst_functioncodes::aCodeFarAwayHasNoCaption_data()
{
    QTest::addColumn<FunctionCode>("code");
    for (FunctionCode code : {0x00010001U, 0x00010100U, 0x00011002U, 0x7FFFFFFFU, 0x80000000U,
                              0x80000001U, 0x80001002U, 0xFFFF1002U, 0xFFFFFF00U, 0xFFFFFFFFU})
        QTest::addRow("%x", code) << code;
}

void tst_functioncodes::aCodeFarAwayHasNoCaption()
{
    QFETCH(FunctionCode, code);
    SetText(m_Config.PROFILE[0].MACRO[0].MACRO_NAME, "a macro");
    QCOMPARE(captionOf(code), QString());
    QCOMPARE(GetTreeListName(code), QString());
}

void tst_functioncodes::aMacroIsCalledByItsName_data()
{
    QTest::addColumn<FunctionCode>("code");
    QTest::addColumn<QString>("caption");
    QTest::newRow("the slot before") << FunctionCode{255} << QString();
    QTest::newRow("first slot") << FunctionCode{256} << QStringLiteral("Combo");
    QTest::newRow("slot without a name") << FunctionCode{257} << QString();
    QTest::newRow("last slot") << FunctionCode{305} << QStringLiteral("Gr\u00fc\u00dfe");
    QTest::newRow("past the last slot") << FunctionCode{306} << QString();
    QTest::newRow("end of the range") << FunctionCode{4095} << QString();
    QTest::newRow("past the range") << FunctionCode{4096} << QString();
}

void tst_functioncodes::aMacroIsCalledByItsName()
{
    QFETCH(FunctionCode, code);
    ProfileInfo &profile = m_Config.PROFILE[0];
    SetText(profile.MACRO[0].MACRO_NAME, "Combo");
    SetText(profile.MACRO[49].MACRO_NAME, "Gr\u00fc\u00dfe");
    // What lies behind the last slot must not be taken for a name.
    SetText(m_Config.PROFILE[1].CHARACTER_INFO.SERVER, "behind");
    QTEST(captionOf(code), "caption");
}

void tst_functioncodes::aMacroNameIsThatOfTheGivenProfile()
{
    SetText(m_Config.PROFILE[0].MACRO[3].MACRO_NAME, "first");
    SetText(m_Config.PROFILE[9].MACRO[3].MACRO_NAME, "tenth");
    QCOMPARE(functions::caption(259, m_Config.PROFILE[9]), QStringLiteral("tenth"));
}

void tst_functioncodes::aMacroNameThatFillsItsFieldIsShownWhole()
{
    MacroInfo &macro = m_Config.PROFILE[0].MACRO[0];
    std::ranges::fill(macro.MACRO_NAME, 'x');
    macro.MODE = 0x79797979; // would read on as "yyyy"
    QCOMPARE(captionOf(256), QString(100, QLatin1Char('x')));
}

void tst_functioncodes::onlyCodesInTheMacroRangeHaveASlot()
{
    QVERIFY(!functions::macroSlot(255));
    QCOMPARE(functions::macroSlot(256), std::optional<std::uint32_t>(0));
    QCOMPARE(functions::macroSlot(4095), std::optional<std::uint32_t>(3839));
    QVERIFY(!functions::macroSlot(4096));
}

void tst_functioncodes::aPlaceNamesItsCommand_data()
{
    QTest::addColumn<unsigned>("category");
    QTest::addColumn<unsigned>("item");
    QTest::addColumn<QString>("name");
    const auto row = [](unsigned category, unsigned item, const char *name) {
        QTest::addRow("%u/%u", category, item) << category << item << QString::fromLatin1(name);
    };
    row(0, 0, "Move and Steer");
    row(0, 13, "Toggle Run / Walk");
    row(0, 14, "");
    row(1, 9, "Toggle Combat Log");
    row(1, 10, "");
    row(2, 51, "Next Action Bar");
    row(2, 52, "");
    row(3, 20, "Pet Attack");
    row(3, 21, "");
    row(4, 20, "Toggle Channel Pullout");
    row(4, 21, "");
    row(5, 0, "Next View");
    row(5, 3, "Zoom Out");
    row(5, 4, "");
    row(6, 8, "Screen Shot");
    row(6, 9, "");
    row(7, 0, "");
    row(0, UINT_MAX, "");
    row(UINT_MAX, 0, "");
    row(UINT_MAX, UINT_MAX, "");
}

void tst_functioncodes::aPlaceNamesItsCommand()
{
    QFETCH(unsigned, category);
    QFETCH(unsigned, item);
    QTEST(GetSubTitle(category, item), "name");
}

KYR_PLAIN_TEST(tst_functioncodes)
#include "tst_functioncodes.moc"
