#include "SystemCalls.h"

#include "FileDescriptor.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/sendfile.h>
#include <unistd.h>

namespace {

/// For file systems that cannot rename without replacing. A kill between the two steps leaves the file under
/// both names, whole.
std::error_code renameByLink(const QByteArray &from, const QByteArray &to)
{
    if (::link(from.constData(), to.constData()) != 0 || ::unlink(from.constData()) != 0) {
        return SystemCalls::lastError();
    }
    return {};
}

} // namespace

namespace SystemCalls {

std::error_code lastError()
{
    return {errno, std::generic_category()};
}

std::error_code renameWithoutReplacing(const QByteArray &from, const QByteArray &to)
{
    if (::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0) {
        return {};
    }
    const bool isUnsupported = errno == EINVAL || errno == ENOSYS;
    return isUnsupported ? renameByLink(from, to) : lastError();
}

std::error_code copyContents(int from, int to)
{
    constexpr std::size_t chunk = 1U << 24U; // bytes; large enough that the number of calls does not matter
    off_t offset = 0;
    if (::lseek(to, 0, SEEK_SET) < 0) {
        return lastError();
    }
    for (;;) {
        const ssize_t copied = ::sendfile(to, from, &offset, chunk);
        if (copied == 0) {
            return {};
        }
        if (copied < 0 && errno != EINTR) {
            return lastError();
        }
    }
}

std::error_code flush(const QByteArray &path)
{
    const FileDescriptor file(::open(path.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    // Some file systems do not flush folders.
    return file.isOpen() && (::fsync(file.number()) == 0 || errno == EINVAL) ? std::error_code()
                                                                             : lastError();
}

} // namespace SystemCalls
