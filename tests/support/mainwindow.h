#pragma once

#include "app/interface.h"
#include "mainview/MainView.h"
#include "support/attendedpanels.h"
#include "support/localnotificationcenter.h"
#include "support/logcapture.h"
#include "support/plistxml.h"
#include "support/pointer.h"
#include "support/testsettings.h"

#include <QtGui/QScreen>

/// The program's windows, shown, with a settings file, notifications, file panels and a way to quit
/// of their own. Without `file` there is no settings file: the program starts with its defaults.
/// The web is as silent as it can be, but for a `host` that stands for the game service in all
/// regions.
struct MainWindowStage
{
    explicit MainWindowStage(const QByteArray &file = {}, const std::string &host = {})
    {
        hosts.fill(host);
        if (!file.isEmpty())
            settings.put(file);
        start(settings.path());
    }

    void start(const std::string &path)
    {
        interface = std::make_unique<Interface>(Environment{
            path, &center, [this] { ++quits; }, &panels,
            [this](const std::string &file) { openedFiles.push_back(file); },
            [this](const std::string &address) { openedAddresses.push_back(address); }, hosts});
        if (!QTest::qWaitForWindowActive(&window()) ||
            !QTest::qWaitFor([this] { return hasBars(); }))
            qFatal("the main window does not come up");
    }

    /// Whether the last of the bars is there, which come after the main window.
    bool hasBars() const
    {
        const auto *const last = window().findChild<custumwindow *>(QStringLiteral("BottomBar"));
        return last && last->isVisible();
    }

    custumwindow &window() const { return interface->mainWindow(); }
    MainView &view() const { return interface->mainView(); }
    HoverButton &button(const QString &name) const
    {
        auto *const found = view().findChild<HoverButton *>(name);
        if (!found)
            qFatal("no button %s", qPrintable(name));
        return *found;
    }
    HoverButton &button(const char *name) const { return button(QString::fromLatin1(name)); }
    /// The 14 mouse buttons count from 1, like their names.
    HoverButton &mouseButton(int number) const
    {
        return button(QStringLiteral("Button%1").arg(number));
    }
    HoverButton &profileKey(int number) const
    {
        return button(QStringLiteral("BtnProfile%1").arg(number));
    }
    bool applyIsEnabled() const { return button("ButtonApply").isEnabled(); }

    /// The numbers of the mouse buttons, or profile keys, that are on.
    std::vector<int> buttonsOn() const { return numbersOn("Button", 14); }
    std::vector<int> profileKeysOn() const { return numbersOn("BtnProfile", 10); }

    /// A report of the driver process with one value.
    void report(const char *object, const char *key, const QVariant &value)
    {
        center.post(QStringLiteral("QuarnsetKt7R4"), QString::fromLatin1(object),
                    {{QString::fromLatin1(key), value}});
    }
    /// The mouse now plays the profile of that number, counted from 1.
    void reportProfile(const QVariant &number)
    {
        report("Kt7R4ProfileChange", "ProfileNumber", number);
    }

    /// What was posted to the driver process since the start's two requests.
    std::vector<QVariantMap> requestsSinceStart() const
    {
        std::vector<QVariantMap> requests;
        for (const auto &posted : center.posted) {
            if (posted.object == QLatin1String("Kt7R4SettingChange"))
                requests.push_back(posted.userInfo);
        }
        requests.erase(requests.begin(), requests.begin() + 2);
        return requests;
    }
    /// The settings file, read without the program's own means; empty when there is none.
    QVariantMap written() const { return readPlist(settings.bytes()); }

    TestSettings settings;
    LocalNotificationCenter center;
    AttendedPanels panels;
    std::vector<std::string> openedFiles;
    std::vector<std::string> openedAddresses;
    RegionHosts hosts;
    LogCapture log;
    int quits = 0;
    std::unique_ptr<Interface> interface;

private:
    std::vector<int> numbersOn(const char *name, int count) const
    {
        std::vector<int> numbers;
        for (int number = 1; number <= count; ++number) {
            if (button(QString::fromLatin1(name) + QString::number(number)).isChecked())
                numbers.push_back(number);
        }
        return numbers;
    }
};

/// A settings file whose root holds these integers.
inline QByteArray settingsWith(std::initializer_list<std::pair<const char *, int>> numbers)
{
    QByteArray entries;
    for (const auto &[key, value] : numbers)
        entries += plistEntry(key, "<integer>" + QByteArray::number(value) + "</integer>");
    return plistOf(entries);
}

/// The request that tells the driver process to take the settings.
inline QVariantMap takeSettings()
{
    return {{QStringLiteral("Kt7R4SettingChangeType"), 0}};
}
