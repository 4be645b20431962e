#include "lookupstage.h"
#include "support/dialogs.h"
#include "support/drop.h"
#include "support/menus.h"
#include "support/suite.h"

/// A profile that is loaded while the portrait of its character is still to come.
class tst_characterloading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anImportedCharacterStays();
    void aCancelledImportChangesNothing();
    void aReloadedCharacterStays();
    void anotherProfileIsNotConcerned();
};

namespace {

struct LoadingStage : LookupStage
{
    using LookupStage::LookupStage;

    /// Looks up a character, up to its portrait.
    WebVisit &askUpToThePortrait()
    {
        ask();
        visit(0).finish(characterAnswer());
        return visit(1);
    }
    void importProfile() const { chooseFromMenu(button("BtnProfileMenu"), {"Import Profile"}); }
    /// A profile's file, with a character of its level.
    std::string profileFile(const char *level) const
    {
        const QByteArray character =
            plistEntry("LEVEL", "<integer>" + QByteArray(level) + "</integer>");
        QFile file(QString::fromStdString(portraitFile("profile.xml")));
        if (!file.open(QIODevice::WriteOnly) ||
            file.write(plistOf(plistEntry("CHARACTER_INFO", "<dict>" + character + "</dict>"))) < 0)
            qFatal("the profile's file cannot be written");
        return file.fileName().toStdString();
    }
    /// The portrait comes, and all that it entails.
    void finish(WebVisit &portrait)
    {
        portrait.finish(webAnswer("portrait"));
        if (!QTest::qWaitFor([&] { return bytesOf("123-avatar.jpg") == "portrait"; }))
            qFatal("the portrait is not kept");
        QCoreApplication::processEvents();
    }
};

} // namespace

void tst_characterloading::anImportedCharacterStays()
{
    LoadingStage stage;
    WebVisit &portrait = stage.askUpToThePortrait();
    stage.panels.answer = stage.profileFile("77");
    stage.importProfile();
    QTRY_COMPARE(characterOf(0).level, 77U);
    stage.finish(portrait);
    QCOMPARE(characterOf(0), (Character{77, "", ""}));
}

void tst_characterloading::aCancelledImportChangesNothing()
{
    LoadingStage stage;
    WebVisit &portrait = stage.askUpToThePortrait();
    bool wasAsked = false;
    stage.panels.meanwhile = [&] { wasAsked = true; };
    stage.importProfile();
    QTRY_VERIFY(wasAsked);
    stage.finish(portrait);
    QCOMPARE(characterOf(0), (Character{60, "Mage", stage.portraitFile()}));
}

void tst_characterloading::aReloadedCharacterStays()
{
    LoadingStage stage;
    WebVisit &portrait = stage.askUpToThePortrait();
    dropText(stage.mouseButton(5), QStringLiteral("11"));
    const DialogVisitor visitor([](const OpenDialog &dialog) { dialog.click("ButtonCancel"); });
    pointer::click(stage.profileKey(3));
    QCOMPARE(visitor.count(), 1);
    stage.finish(portrait);
    QCOMPARE(characterOf(0), (Character{0, "", ""}));
}

void tst_characterloading::anotherProfileIsNotConcerned()
{
    LoadingStage stage;
    WebVisit &portrait = stage.askUpToThePortrait();
    stage.reportProfile(2);
    stage.panels.answer = stage.profileFile("77");
    stage.importProfile();
    QTRY_COMPARE(characterOf(1).level, 77U);
    stage.finish(portrait);
    QCOMPARE(characterOf(0), (Character{60, "Mage", stage.portraitFile()}));
}

KYR_GUI_TEST(tst_characterloading)
#include "tst_characterloading.moc"
