#include "FileOperations.h"

#include "FileDescriptor.h"
#include "ScratchFile.h"

#include <QFile>
#include <QFileInfo>

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/sendfile.h>
#include <sys/stat.h>

namespace {

std::filesystem::path systemPath(const QString &path)
{
    return QFile::encodeName(path).toStdString();
}

/// For file systems that cannot rename without replacing: the name is taken by an empty file of ours first,
/// so that the only file that the rename can replace is that one.
std::error_code renameOverReservation(const QByteArray &from, const QByteArray &to)
{
    const FileDescriptor reservation(::open(to.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    if (!reservation.isOpen()) {
        return FileOperations::lastError();
    }
    if (::rename(from.constData(), to.constData()) != 0) {
        const auto error = FileOperations::lastError();
        ::unlink(to.constData());
        return error;
    }
    return {};
}

/// As far as the file system of the copy knows modes and times.
void keepModeAndTimes(const struct stat &original, const FileDescriptor &copy)
{
    const std::array times{original.st_atim, original.st_mtim};
    ::fchmod(copy.number(), original.st_mode & 07777);
    ::futimens(copy.number(), times.data());
}

std::error_code moveAcrossFileSystems(const QString &from, const QString &to)
{
    const QByteArray source = QFile::encodeName(from);
    const FileDescriptor input(::open(source.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    struct stat status = {};
    if (!input.isOpen() || ::fstat(input.number(), &status) != 0) {
        return FileOperations::lastError();
    }
    auto copy = ScratchFile::create(QFileInfo(to).path());
    if (!copy) {
        return copy.error();
    }
    if (const auto error = FileOperations::copyContents(input.number(), copy->descriptor().number())) {
        return error;
    }
    keepModeAndTimes(status, copy->descriptor());
    if (const auto error = copy->placeAs(to)) {
        return error;
    }
    // Once more: where the name could not be given by a link, it is borne by a copy of the copy.
    const QByteArray target = QFile::encodeName(to);
    keepModeAndTimes(status, FileDescriptor(::open(target.constData(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC)));
    // The photo is whole in both places now; only a failure here would leave it so.
    return ::unlink(source.constData()) == 0 ? std::error_code() : FileOperations::lastError();
}

} // namespace

namespace FileOperations {

std::error_code lastError()
{
    return {errno, std::generic_category()};
}

QString pathIn(const QString &folder, const QString &name)
{
    // No two slashes at the start: in a URL the second part would be a host.
    return folder.endsWith(QLatin1Char('/')) ? folder + name : folder + QLatin1Char('/') + name;
}

bool exists(const QString &path)
{
    struct stat status = {};
    return ::lstat(QFile::encodeName(path).constData(), &status) == 0;
}

std::error_code createFolder(const QString &path)
{
    std::error_code error;
    std::filesystem::create_directories(systemPath(path), error);
    return error;
}

std::error_code move(const QString &from, const QString &to)
{
    const auto error = renameWithoutReplacing(QFile::encodeName(from), QFile::encodeName(to));
    return error == std::errc::cross_device_link ? moveAcrossFileSystems(from, to) : error;
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

} // namespace FileOperations
