#pragma once

#include "model/fixedtext.h"
#include "panels/charInfoView.h"
#include "quickliststage.h"
#include "support/mainwindow.h"
#include "support/webserver.h"

#include <QtCore/QDir>
#include <QtGui/QInputMethodEvent>

/// What a profile says of its character once it was looked up.
struct Character
{
    std::uint32_t level;
    std::string className;
    std::string portrait;

    bool operator==(const Character &) const = default;
};

inline Character characterOf(std::uint32_t profile)
{
    const CharacterInfo &info = ProfileAt(profile).CHARACTER_INFO;
    return {info.LEVEL, std::string(GetText(info.CLASS)), std::string(GetText(info.RACE))};
}

/// For the messages of failed comparisons.
inline char *toString(const Character &character)
{
    return QTest::toString(QStringLiteral("%1, \"%2\", \"%3\"")
                               .arg(character.level)
                               .arg(QString::fromStdString(character.className),
                                    QString::fromStdString(character.portrait)));
}

/// What is asked for, for the realm "Realm" and the name "Name".
inline constexpr char kCharacter[] = "/api/kyr/character/Realm/Name";

/// What the game service says of a character that it knows.
inline QByteArray characterText(const QByteArray &id = "8", const QByteArray &level = "60",
                                const QByteArray &thumbnail = "realm/12/123-avatar.jpg")
{
    return "{\n  \"class\": " + id + ",\n  \"level\": " + level + ",\n  \"thumbnail\":\"" +
           thumbnail + "\",\n  \"more\": 1\n}\n";
}

inline QByteArray characterAnswer(const QByteArray &id = "8", const QByteArray &level = "60",
                                  const QByteArray &thumbnail = "realm/12/123-avatar.jpg")
{
    return webAnswer(characterText(id, level, thumbnail));
}

/// A settings file with the third profile current.
inline QByteArray smallSettings()
{
    return settingsWith({{"PROFILE_ID", 2}});
}

/// Before the windows, so that they go first.
struct GameService
{
    WebServer service;
};

/// The program with a game service of the test's own.
struct LookupStage : GameService, MainWindowStage
{
    explicit LookupStage(const QByteArray &file = {}) : MainWindowStage(file, service.host())
    {
        setCharacter("Realm", "Name");
        log.lines.clear();
    }

    /// The program anew, with a game service that may be silent for so long.
    void restart(std::chrono::milliseconds silence)
    {
        interface.reset();
        interface = std::make_unique<Interface>(Environment{.settingsPath = settings.path(),
                                                            .notifications = &center,
                                                            .quit = [this] { ++quits; },
                                                            .hosts = hosts,
                                                            .webTimeout = silence});
        setCharacter("Realm", "Name");
        log.lines.clear();
    }

    /// Puts into the current profile what the dialog would, and what the dialog cannot.
    static void setCharacter(const std::string &realm, const std::string &name,
                             std::uint32_t region = 0)
    {
        CharacterInfo &info = CurrentProfile().CHARACTER_INFO;
        info = {};
        info.REGION = region;
        realm.copy(info.SERVER, sizeof info.SERVER - 1);
        name.copy(info.NAME, sizeof info.NAME - 1);
    }
    /// Looks up the character that the current profile names, as the dialog's end does.
    void ask() const { view().CharInfoAction(kCharInfoOK); }

    /// The dialog, opened by a click on the character's place.
    charInfoView &openDialog() const
    {
        const QPoint place(100, view().height() - 450);
        pointer::click(view(), place);
        auto *const dialog = openDialogView();
        if (!dialog || !QTest::qWaitForWindowActive(dialog->window()))
            qFatal("the character dialog does not open");
        return *dialog;
    }
    static charInfoView *openDialogView()
    {
        for (QWidget *widget : QApplication::allWidgets()) {
            auto *const dialog = dynamic_cast<charInfoView *>(widget);
            if (dialog && dialog->isVisible())
                return dialog;
        }
        return nullptr;
    }
    /// A control of the dialog by its name.
    static QWidget &part(const charInfoView &dialog, const char *name)
    {
        auto *const found = dialog.findChild<QWidget *>(QString::fromLatin1(name));
        if (!found)
            qFatal("no %s in the dialog", name);
        return *found;
    }
    /// Types, as far as there are keys for it; the rest comes as from an input method.
    static void type(QWidget &field, const QString &text)
    {
        pointer::click(field);
        for (const QChar character : text) {
            if (character.unicode() < 128) {
                QTest::keyClick(&field, character.toLatin1());
                continue;
            }
            QInputMethodEvent event;
            event.setCommitString(character);
            QCoreApplication::sendEvent(&field, &event);
        }
    }
    static void chooseRegion(const charInfoView &dialog, int row)
    {
        pointer::click(part(dialog, "ButtonRegion"));
        if (openLists().size() != 1 || !QTest::qWaitForWindowActive(openLists().front()))
            qFatal("the list of regions does not open");
        clickRow(*openLists().front()->findChild<pngListBox *>(), row);
        if (!QTest::qWaitFor([] { return openLists().empty(); }))
            qFatal("the list of regions does not close");
    }
    /// Looks a character up in the way that a player does.
    void lookUp(const QString &realm, const QString &name, int region = 0)
    {
        const charInfoView &dialog = openDialog();
        type(part(dialog, "pTextfieldRealm"), realm);
        type(part(dialog, "pTextfieldName"), name);
        if (region > 0)
            chooseRegion(dialog, region);
        log.lines.clear();
        pointer::click(part(dialog, "ButtonOK"));
    }

    /// What was asked for so far.
    std::vector<QByteArray> requested()
    {
        service.settle();
        return service.paths();
    }
    /// Waits for the request of that number, counted from 0.
    WebVisit &visit(std::size_t number) const
    {
        if (!QTest::qWaitFor([&] { return service.count() > number; }))
            qFatal("request %zu does not arrive", number);
        return service.visit(number);
    }
    std::string portraitFile(const char *name = "123-avatar.jpg") const
    {
        return settings.folder().toStdString() + '/' + name;
    }
    /// Of a file beside the settings; "none" when there is none.
    QByteArray bytesOf(const char *name) const
    {
        QFile file(QString::fromStdString(portraitFile(name)));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
    }
    /// The names of all that is in the settings' folder.
    QStringList entries() const
    {
        return QDir(settings.folder())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                       QDir::Name);
    }
    /// Whether a log line begins like that.
    bool hasLogged(const std::string &begin) const
    {
        return std::ranges::any_of(
            log.lines, [&](const std::string &line) { return line.starts_with(begin); });
    }
};

inline constexpr char kReceived[] = "Succeeded! Received ";
inline constexpr char kFailed[] = "Connection failed! Error - ";

/// A copy of the record, whose current profile has a character already.
inline std::unique_ptr<ConfigData> profileFilled()
{
    CharacterInfo &info = CurrentProfile().CHARACTER_INFO;
    info.LEVEL = 70;
    SetText(info.CLASS, "Before");
    SetText(info.RACE, "/before.jpg");
    return std::make_unique<ConfigData>(m_Config);
}

/// The log line of a reply that has come.
inline std::string received(std::size_t bytes)
{
    return kReceived + std::to_string(bytes) + " bytes of data";
}
