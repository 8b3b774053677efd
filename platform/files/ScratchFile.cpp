#include "ScratchFile.h"

#include "SystemCalls.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace {

FileDescriptor openUnnamed(const QString &folder)
{
    constexpr mode_t mode = 0666; // less what the user's mask takes away
    return FileDescriptor(
        ::open(QFile::encodeName(folder).constData(), O_TMPFILE | O_RDWR | O_CLOEXEC, mode));
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
    auto error = SystemCalls::copyContents(content.number(), part->number());
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
        file = openUnnamed(QDir::tempPath());
    }
    if (!file.isOpen()) {
        return tl::unexpected(SystemCalls::lastError());
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
    if (copy.isOpen() && !SystemCalls::copyContents(m_descriptor.number(), copy.number()) && !flush(copy)) {
        const auto linkError = giveName(copy, target);
        if (!linkError || linkError == std::errc::file_exists) {
            return linkError;
        }
    }
    return placeThroughPart(m_descriptor, QFile::encodeName(folder), target);
}
