#include "charinfostage.h"
#include "support/suite.h"

/// What the character dialog is made of, and how it starts.
class tst_charinfoview : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyButtonIsInItsPlace_data();
    void everyButtonIsInItsPlace();
    void theFieldsAreInTheirPlaces();
    void everyControlIsNamedForAssistiveTechnology();
    void itStartsEmptyWhateverTheProfileHolds();
    void theWindowIsCalledWhatTheDialogIs();
    void theRealmHasTheKeyboardAtFirst();
    void theTabKeyGoesRound();
    void aRegionsNameIsShownOnItsButton();
    void aCodeThatIsNoRegionChangesNothing_data();
    void aCodeThatIsNoRegionChangesNothing();
    void aDragOfTheBackgroundMovesTheWindow();
    void itMayEndWithItsOwner();
};

void tst_charinfoview::everyButtonIsInItsPlace_data()
{
    QTest::addColumn<const KnownCharInfoButton *>("known");
    for (const KnownCharInfoButton &known : kCharInfoButtons)
        QTest::newRow(known.name) << &known;
}

void tst_charinfoview::everyButtonIsInItsPlace()
{
    QFETCH(const KnownCharInfoButton *, known);
    const CharInfoStage stage;
    const HoverButton &button = stage.button(known->name);
    QVERIFY(button.frame() == known->place);
    QVERIFY(button.isVisible());
    QCOMPARE(button.tag(), known->tag);
    QCOMPARE(button.captionText(), QString::fromLatin1(known->caption));
    QCOMPARE(stage.view->findChildren<HoverButton *>().size(),
             qsizetype{std::size(kCharInfoButtons)});
}

void tst_charinfoview::theFieldsAreInTheirPlaces()
{
    const CharInfoStage stage;
    QVERIFY((stage.realm().frame() == UpRect{120, 117, 150, 24}));
    QVERIFY((stage.name().frame() == UpRect{120, 88, 150, 24}));
    for (const TextField *field : {&stage.realm(), &stage.name()})
        QVERIFY(field->isVisible() && !field->hasFrame() && !field->isReadOnly());
    QCOMPARE(stage.view->size(), QSize(453, 215));
    QCOMPARE(stage.window->size(), QSize(453, 215));
}

void tst_charinfoview::everyControlIsNamedForAssistiveTechnology()
{
    const CharInfoStage stage;
    const auto nameOf = [&](const char *control) { return stage.find(control).accessibleName(); };
    QCOMPARE(nameOf("pTextfieldRealm"), QStringLiteral("Realm"));
    QCOMPARE(nameOf("pTextfieldName"), QStringLiteral("Character Name"));
    QCOMPARE(nameOf("ButtonRegion"), QStringLiteral("Region"));
    QCOMPARE(nameOf("ButtonOK"), QStringLiteral("OK"));
    QCOMPARE(nameOf("ButtonCancel"), QStringLiteral("Cancel"));
    QCOMPARE(nameOf("ButtonClose"), QStringLiteral("Close"));
}

void tst_charinfoview::itStartsEmptyWhateverTheProfileHolds()
{
    const CharInfoStage stage;
    QCOMPARE(stage.realm().text(), QString());
    QCOMPARE(stage.name().text(), QString());
    QCOMPARE(stage.region().captionText(), QStringLiteral("US&Oceanic"));
    QVERIFY(openLists().empty());
    QVERIFY(stage.isUnchanged());
    QVERIFY(stage.log.lines.empty());
}

void tst_charinfoview::theWindowIsCalledWhatTheDialogIs()
{
    const CharInfoStage stage;
    QCOMPARE(stage.window->windowTitle(), QStringLiteral("Add a Kyr Character"));
    QCOMPARE(stage.view->accessibleName(), QStringLiteral("Add a Kyr Character"));
}

void tst_charinfoview::theRealmHasTheKeyboardAtFirst()
{
    const CharInfoStage stage;
    QCOMPARE(stage.focused(), QStringLiteral("pTextfieldRealm"));
    keyboard::press(Qt::Key_A);
    QCOMPARE(stage.realm().text(), QStringLiteral("a"));
}

void tst_charinfoview::theTabKeyGoesRound()
{
    const CharInfoStage stage;
    const char *const order[] = {"pTextfieldName", "ButtonRegion", "ButtonOK",
                                 "ButtonCancel",   "ButtonClose",  "pTextfieldRealm"};
    for (const char *const name : order) {
        keyboard::press(Qt::Key_Tab);
        QCOMPARE(stage.focused(), QString::fromLatin1(name));
    }
    keyboard::press(Qt::Key_Backtab);
    QCOMPARE(stage.focused(), QStringLiteral("ButtonClose"));
}

void tst_charinfoview::aRegionsNameIsShownOnItsButton()
{
    const CharInfoStage stage;
    for (std::uint32_t code = 5; code-- > 0;) {
        stage.view->setRegionButton(code);
        QCOMPARE(stage.region().captionText(), QString::fromLatin1(kRegionCaptions[code]));
    }
}

void tst_charinfoview::aCodeThatIsNoRegionChangesNothing_data()
{
    QTest::addColumn<std::uint32_t>("code");
    for (const std::uint32_t code : {5U, 6U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU})
        QTest::addRow("%u", code) << code;
}

void tst_charinfoview::aCodeThatIsNoRegionChangesNothing()
{
    QFETCH(std::uint32_t, code);
    const CharInfoStage stage;
    stage.view->setRegionButton(2);
    stage.view->setRegionButton(code);
    QCOMPARE(stage.region().captionText(), QStringLiteral("Korea"));
}

void tst_charinfoview::aDragOfTheBackgroundMovesTheWindow()
{
    const CharInfoStage stage;
    const QPoint before = stage.window->pos();
    pointer::press(*stage.view, {20, 150});
    pointer::move(*stage.view, {50, 140});
    pointer::release(*stage.view, {20, 150});
    QCOMPARE(stage.window->pos(), before + QPoint(30, -10));
    QVERIFY(stage.stays());
}

void tst_charinfoview::itMayEndWithItsOwner()
{
    CharInfoStage stage;
    stage.openList();
    stage.owner.reset();
    QVERIFY(!stage.view && !stage.window);
    QVERIFY(openLists().empty());
    QVERIFY(stage.target.came.empty());
    QVERIFY(stage.isUnchanged());
}

KYR_GUI_TEST(tst_charinfoview)
#include "tst_charinfoview.moc"
