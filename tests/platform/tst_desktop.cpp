#include "platform/desktop.h"
#include "support/suite.h"

/// The choice among the window systems that the desktop offers.
class tst_desktop : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void placedWindowsAreAskedForWhereNothingElseIsChosen_data();
    void placedWindowsAreAskedForWhereNothingElseIsChosen();
};

namespace {

/// An environment variable with a value until the end of the scope; a null one is not set.
class Variable
{
public:
    Variable(const char *name, const QByteArray &value) : m_name(name), m_before(qgetenv(name))
    {
        set(value);
    }
    ~Variable() { set(m_before); }
    Variable(const Variable &) = delete;
    Variable &operator=(const Variable &) = delete;

private:
    void set(const QByteArray &value)
    {
        value.isNull() ? qunsetenv(m_name) : qputenv(m_name, value);
    }

    const char *m_name;
    QByteArray m_before;
};

} // namespace

void tst_desktop::placedWindowsAreAskedForWhereNothingElseIsChosen_data()
{
    QTest::addColumn<QByteArray>("wayland");
    QTest::addColumn<QByteArray>("x11");
    QTest::addColumn<QByteArray>("chosen");
    QTest::addColumn<QByteArray>("platform");
    const auto row = [](const char *name, const QByteArray &wayland, const QByteArray &x11,
                        const QByteArray &chosen, const QByteArray &platform) {
        QTest::newRow(name) << wayland << x11 << chosen << platform;
    };
    row("both offered", "wayland-0", ":0", {}, "xcb");
    row("no X11", "wayland-0", {}, {}, {});
    row("X11 alone", {}, ":0", {}, {});
    row("neither", {}, {}, {}, {});
    row("chosen by the user", "wayland-0", ":0", "wayland", "wayland");
}

void tst_desktop::placedWindowsAreAskedForWhereNothingElseIsChosen()
{
    QFETCH(QByteArray, wayland);
    QFETCH(QByteArray, x11);
    QFETCH(QByteArray, chosen);
    const Variable waylandDisplay("WAYLAND_DISPLAY", wayland);
    const Variable display("DISPLAY", x11);
    const Variable platform("QT_QPA_PLATFORM", chosen);
    preferPlacedWindows();
    QTEST(qgetenv("QT_QPA_PLATFORM"), "platform");
}

KYR_CORE_TEST(tst_desktop)
#include "tst_desktop.moc"
