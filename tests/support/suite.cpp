#include "support/suite.h"

#include <cstdio>
#include <cstring>

namespace suite {

namespace {

const Entry *&first()
{
    static const Entry *entry = nullptr;
    return entry;
}

} // namespace

Entry::Entry(const char *name, Main main) : m_name(name), m_main(main), m_next(first())
{
    first() = this;
}

const Entry *Entry::find(const char *name)
{
    const Entry *entry = first();
    while (entry && std::strcmp(entry->m_name, name) != 0)
        entry = entry->m_next;
    return entry;
}

void Entry::printNames()
{
    for (const Entry *entry = first(); entry; entry = entry->m_next)
        std::fprintf(stderr, "  %s\n", entry->m_name);
}

} // namespace suite

int main(int argc, char **argv)
{
    const suite::Entry *const entry = argc > 1 ? suite::Entry::find(argv[1]) : nullptr;
    if (!entry) {
        std::fprintf(stderr, "usage: %s TEST [ARGUMENTS of Qt Test]; the tests are\n", argv[0]);
        suite::Entry::printNames();
        return 2;
    }
    // The class sees the program's name and the arguments that are meant for it.
    argv[1] = argv[0];
    return entry->run(argc - 1, argv + 1);
}
