#pragma once

#include <QtTest/QTest>
#include <QtWidgets/QApplication>

/// The tests of a folder are one program, which runs the class that its first argument names: made
/// and linked once instead of once a class, and still every class in a process of its own.
namespace suite {

using Main = int (*)(int argc, char **argv);

/// A class of the program. Each registers itself by one of the macros below, before main() begins.
class Entry
{
public:
    Entry(const char *name, Main main);

    /// The one of that name; null where the program has none.
    static const Entry *find(const char *name);
    static void printNames();

    int run(int argc, char **argv) const { return m_main(argc, argv); }

private:
    const char *const m_name;
    const Main m_main;
    const Entry *const m_next;
};

template <class Test>
int runAlone(int argc, char **argv)
{
    Test test;
    return QTest::qExec(&test, argc, argv);
}

/// Runs it within an application of that kind, at 96 dots per inch whatever the display. A class
/// that must prepare something before there is an application does so in a static initMain().
template <class Test, class Application>
int runWithin(int argc, char **argv)
{
    if constexpr (requires { Test::initMain(); })
        Test::initMain();
    const Application application(argc, argv);
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi, true);
    return runAlone<Test>(argc, argv);
}

} // namespace suite

/// A test class that is run by `main`, a function like the language's own.
#define KYR_TEST_RUN_BY(Class, main)                                                               \
    namespace {                                                                                    \
    const suite::Entry entryOf_##Class{#Class, main};                                              \
    }
/// A test class that needs no application object, one that needs an event loop, and one that needs
/// windows.
#define KYR_PLAIN_TEST(Class) KYR_TEST_RUN_BY(Class, (suite::runAlone<Class>))
#define KYR_CORE_TEST(Class) KYR_TEST_RUN_BY(Class, (suite::runWithin<Class, QCoreApplication>))
#define KYR_GUI_TEST(Class) KYR_TEST_RUN_BY(Class, (suite::runWithin<Class, QApplication>))
