#include "SystemCalls.h"

#include "FileDescriptor.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/sendfile.h>

namespace {

/// For file systems that cannot rename without replacing: an empty file takes the name first, so that it is
/// the only file that the rename can replace.
std::error_code renameOverReservation(const QByteArray &from, const QByteArray &to)
{
    const FileDescriptor reservation(::open(to.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    if (!reservation.isOpen()) {
        return SystemCalls::lastError();
    }
    if (::rename(from.constData(), to.constData()) != 0) {
        const auto error = SystemCalls::lastError();
        ::unlink(to.constData());
        return error;
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
    return isUnsupported ? renameOverReservation(from, to) : lastError();
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

} // namespace SystemCalls
