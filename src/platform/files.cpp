#include "platform/files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>

namespace {

/// Closes a descriptor when it goes out of scope.
class Descriptor
{
public:
    explicit Descriptor(int number) : m_number(number) {}
    ~Descriptor() { close(); }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;

    int number() const { return m_number; }
    bool isOpen() const { return m_number >= 0; }
    bool close()
    {
        const int number = m_number;
        m_number = -1;
        return number < 0 || ::close(number) == 0;
    }

private:
    int m_number;
};

bool writeAll(int descriptor, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

bool readAll(int descriptor, std::string &bytes)
{
    std::size_t filled = 0;
    while (filled < bytes.size()) {
        const ssize_t got = ::read(descriptor, bytes.data() + filled, bytes.size() - filled);
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return false;
        if (got == 0)
            break;
        filled += static_cast<std::size_t>(got);
    }
    bytes.resize(filled);
    return true;
}

mode_t permissionsFor(const std::string &path)
{
    struct stat old = {};
    const bool present = ::stat(path.c_str(), &old) == 0 && S_ISREG(old.st_mode);
    return present ? old.st_mode & 07777U : mode_t{0644};
}

void flushFolderOf(const std::string &path)
{
    const auto slash = path.rfind('/');
    const std::string folder = slash == std::string::npos ? "." : path.substr(0, slash + 1);
    const Descriptor descriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (descriptor.isOpen())
        ::fsync(descriptor.number());
}

bool fillTemporary(int number, std::string_view bytes, mode_t permissions, Flush flush)
{
    Descriptor descriptor(number);
    return writeAll(number, bytes) && ::fchmod(number, permissions) == 0 &&
           (flush == Flush::Later || ::fsync(number) == 0) && descriptor.close();
}

} // namespace

ReadStatus readFile(const std::string &path, std::size_t most, std::string &bytes)
{
    bytes.clear();
    // Not blocking: opening a named pipe would otherwise wait for a writer.
    const Descriptor descriptor(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    // A link that leads nowhere is something, and stands for something of the user's.
    if (!descriptor.isOpen())
        return isPresent(path) ? ReadStatus::Unreadable : ReadStatus::Missing;
    struct stat about = {};
    if (::fstat(descriptor.number(), &about) != 0 || !S_ISREG(about.st_mode))
        return ReadStatus::Unreadable;
    const auto size = static_cast<std::size_t>(about.st_size);
    if (size > most)
        return ReadStatus::Unreadable;
    bytes.resize(size);
    return readAll(descriptor.number(), bytes) ? ReadStatus::Ok : ReadStatus::Unreadable;
}

bool writeFileAtomically(const std::string &path, std::string_view bytes, Flush flush)
{
    const mode_t permissions = permissionsFor(path);
    std::string temporary = path + ".XXXXXX";
    const int number = ::mkostemp(temporary.data(), O_CLOEXEC);
    if (number < 0)
        return false;
    if (!fillTemporary(number, bytes, permissions, flush) ||
        std::rename(temporary.c_str(), path.c_str()) != 0) {
        ::unlink(temporary.c_str());
        return false;
    }
    if (flush == Flush::ToDisk)
        flushFolderOf(path);
    return true;
}

bool isPresent(const std::string &path)
{
    struct stat any = {};
    return ::lstat(path.c_str(), &any) == 0 || (errno != ENOENT && errno != ENOTDIR);
}

std::optional<std::string> keepBeside(const std::string &path, const std::string &suffix)
{
    std::string beside = path + suffix;
    for (int number = 2; isPresent(beside); ++number) {
        constexpr int mostNames = 1000;
        if (number > mostNames)
            return {};
        beside = path + suffix + '.' + std::to_string(number);
    }
    if (::link(path.c_str(), beside.c_str()) != 0 && std::rename(path.c_str(), beside.c_str()) != 0)
        return {};
    return beside;
}
