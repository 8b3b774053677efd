#include "ScratchFile.h"

#include "SystemCalls.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <linux/magic.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/statfs.h>
#include <sys/statvfs.h>

namespace {

FileDescriptor openUnnamed(const QString &folder)
{
    constexpr mode_t mode = 0666; // less what the user's mask takes away
    return FileDescriptor(
        ::open(QFile::encodeName(folder).constData(), O_TMPFILE | O_RDWR | O_CLOEXEC, mode));
}

/// Whether the file system of `file` takes `bytes` more and keeps a reserve for the rest of the machine.
std::error_code checkSpace(const FileDescriptor &file, std::uint64_t bytes)
{
    constexpr std::uint64_t LargestReserve = 64U << 20U; // bytes
    constexpr std::uint64_t ReservedPart = 16;           // one of so many
    struct statvfs system = {};
    if (::fstatvfs(file.number(), &system) != 0) {
        return SystemCalls::lastError();
    }
    const std::uint64_t total = std::uint64_t{system.f_blocks} * system.f_frsize;
    const std::uint64_t available = std::uint64_t{system.f_bavail} * system.f_frsize;
    const std::uint64_t reserve = std::min(LargestReserve, total / ReservedPart);
    // Some file systems do not know their size.
    const bool fits = total == 0 || available >= reserve + bytes;
    return fits ? std::error_code() : std::make_error_code(std::errc::no_space_on_device);
}

bool isInMemory(const FileDescriptor &file)
{
    struct statfs system = {};
    return ::fstatfs(file.number(), &system) == 0 &&
           (system.f_type == TMPFS_MAGIC || system.f_type == RAMFS_MAGIC);
}

/// In the first folder for temporary files that is on a disk: a copy may be larger than the memory that is
/// free.
FileDescriptor openTemporary()
{
    const QString cache = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
    for (const QString &folder :
         {qEnvironmentVariable("TMPDIR"), QStringLiteral("/tmp"), QStringLiteral("/var/tmp"), cache}) {
        FileDescriptor file = folder.isEmpty() ? FileDescriptor() : openUnnamed(folder);
        if (file.isOpen() && !isInMemory(file)) {
            return file;
        }
    }
    return {};
}

std::error_code flush(const FileDescriptor &file)
{
    return ::fdatasync(file.number()) == 0 ? std::error_code() : SystemCalls::lastError();
}

std::error_code giveName(const FileDescriptor &file, const QByteArray &path)
{
    const QByteArray self = "/proc/self/fd/" + QByteArray::number(file.number());
    const int linked = ::linkat(AT_FDCWD, self.constData(), AT_FDCWD, path.constData(), AT_SYMLINK_FOLLOW);
    return linked == 0 ? std::error_code() : SystemCalls::lastError();
}

/// All of `content` to the empty file `copy`, if there is space.
std::error_code copyInto(const FileDescriptor &content, const FileDescriptor &copy)
{
    struct stat status = {};
    if (::fstat(content.number(), &status) != 0) {
        return SystemCalls::lastError();
    }
    const auto error = checkSpace(copy, static_cast<std::uint64_t>(status.st_size));
    return error ? error : SystemCalls::copyContents(content.number(), copy.number());
}

bool bearsName(const FileDescriptor &file, const QByteArray &path)
{
    struct stat opened = {};
    struct stat named = {};
    return ::fstat(file.number(), &opened) == 0 && ::lstat(path.constData(), &named) == 0 &&
           opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

/// A hidden file to copy into. One that an earlier process left under this name is used again.
tl::expected<FileDescriptor, std::error_code> openPart(const QByteArray &path)
{
    FileDescriptor part;
    do {
        part = FileDescriptor(::open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0666));
        if (!part.isOpen() || ::flock(part.number(), LOCK_EX | LOCK_NB) != 0) {
            return tl::unexpected(SystemCalls::lastError());
        }
        // Before the lock was taken, another process may have finished this very file and renamed it.
    } while (!bearsName(part, path));
    if (::ftruncate(part.number(), 0) != 0) {
        return tl::unexpected(SystemCalls::lastError());
    }
    return part;
}

std::error_code placeThroughPart(const FileDescriptor &content, const QByteArray &folder,
                                 const QByteArray &path)
{
    const QByteArray partPath = folder + "/.lumaport-part";
    const auto part = openPart(partPath);
    if (!part) {
        return part.error();
    }
    auto error = copyInto(content, *part);
    if (!error) {
        error = flush(*part);
    }
    if (!error) {
        error = SystemCalls::renameWithoutReplacing(partPath, path);
    }
    if (error) {
        ::unlink(partPath.constData());
    }
    return error;
}

} // namespace

ScratchFile::ScratchFile(FileDescriptor descriptor)
    : m_descriptor(std::move(descriptor))
{}

tl::expected<ScratchFile, std::error_code> ScratchFile::create(const QString &folder)
{
    FileDescriptor file = openUnnamed(folder);
    if (!file.isOpen()) {
        file = openTemporary();
    }
    if (!file.isOpen()) {
        return tl::unexpected(std::make_error_code(std::errc::operation_not_supported));
    }
    if (const auto error = checkSpace(file, 0)) {
        return tl::unexpected(error);
    }
    return ScratchFile(std::move(file));
}

std::error_code ScratchFile::placeAs(const QString &path) const
{
    const QByteArray target = QFile::encodeName(path);
    if (const auto error = flush(m_descriptor)) {
        return error;
    }
    const auto error = giveName(m_descriptor, target);
    if (!error || error == std::errc::file_exists) {
        return error;
    }
    // Another file system, or one that cannot link: the content has to be copied there.
    const QString folder = QFileInfo(path).path();
    const FileDescriptor copy = openUnnamed(folder);
    if (copy.isOpen() && !copyInto(m_descriptor, copy) && !flush(copy)) {
        const auto linkError = giveName(copy, target);
        if (!linkError || linkError == std::errc::file_exists) {
            return linkError;
        }
    }
    return placeThroughPart(m_descriptor, QFile::encodeName(folder), target);
}
