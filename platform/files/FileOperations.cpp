#include "FileOperations.h"

#include "FileDescriptor.h"
#include "ScratchFile.h"
#include "SystemCalls.h"

#include <QFile>
#include <QFileInfo>

#include <array>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>

namespace {

/// Does nothing where the file system of the copy has no modes or times.
void keepModeAndTimes(const struct stat &original, const FileDescriptor &copy)
{
    const std::array times{original.st_atim, original.st_mtim};
    ::fchmod(copy.number(), original.st_mode & 07777);
    ::futimens(copy.number(), times.data());
}

/// This path leads to the same file, and its content has not changed.
bool isStill(const QByteArray &path, const struct stat &before)
{
    struct stat now = {};
    return ::lstat(path.constData(), &now) == 0 && now.st_dev == before.st_dev &&
           now.st_ino == before.st_ino && now.st_size == before.st_size &&
           now.st_mtim.tv_sec == before.st_mtim.tv_sec && now.st_mtim.tv_nsec == before.st_mtim.tv_nsec;
}

std::error_code moveAcrossFileSystems(const QString &from, const QString &to)
{
    const QByteArray source = QFile::encodeName(from);
    const FileDescriptor input(::open(source.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    struct stat status = {};
    if (!input.isOpen() || ::fstat(input.number(), &status) != 0) {
        return SystemCalls::lastError();
    }
    auto copy = ScratchFile::create(QFileInfo(to).path());
    if (!copy) {
        return copy.error();
    }
    if (const auto error = SystemCalls::copyContents(input.number(), copy->descriptor().number())) {
        return error;
    }
    keepModeAndTimes(status, copy->descriptor());
    if (const auto error = copy->placeAs(to)) {
        return error;
    }
    // Once more: where no link could be made, the file of this name is a copy of the copy.
    const QByteArray target = QFile::encodeName(to);
    keepModeAndTimes(status, FileDescriptor(::open(target.constData(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC)));
    auto error = SystemCalls::flush(target);
    if (!error) {
        error = SystemCalls::flush(QFile::encodeName(QFileInfo(to).path()));
    }
    if (!error && !isStill(source, status)) {
        error = make_error_code(std::errc::text_file_busy);
    }
    if (error) {
        ::unlink(target.constData());
        return error;
    }
    // The photo is whole in both places now, and stays so when this fails.
    return ::unlink(source.constData()) == 0 ? std::error_code() : SystemCalls::lastError();
}

} // namespace

namespace FileOperations {

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
    std::filesystem::create_directories(QFile::encodeName(path).toStdString(), error);
    return error;
}

std::error_code move(const QString &from, const QString &to)
{
    const auto error = SystemCalls::renameWithoutReplacing(QFile::encodeName(from), QFile::encodeName(to));
    return error == std::errc::cross_device_link ? moveAcrossFileSystems(from, to) : error;
}

} // namespace FileOperations
