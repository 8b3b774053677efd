#include "PhotoFile.h"

#include "PhotoFileName.h"

#include <QFile>
#include <QSysInfo>
#include <QUrl>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>

bool isPhotoFile(const QUrl &url)
{
    return url.isLocalFile() && PhotoFileName::isHeic(url.fileName());
}

QUrl withoutOwnHost(const QUrl &url)
{
    const QString host = url.host();
    const bool isOwn = host.compare(QLatin1String("localhost"), Qt::CaseInsensitive) == 0 ||
                       host.compare(QSysInfo::machineHostName(), Qt::CaseInsensitive) == 0;
    QUrl file = url;
    if (url.isLocalFile() && isOwn) {
        file.setHost(QString());
    }
    return file;
}

FileDescriptor openPhoto(const QUrl &file)
{
    const QByteArray path = QFile::encodeName(file.toLocalFile());
    FileDescriptor photo(::open(path.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    struct stat status = {};
    const bool isRegular = photo.isOpen() && ::fstat(photo.number(), &status) == 0 && S_ISREG(status.st_mode);
    return isRegular ? std::move(photo) : FileDescriptor();
}

bool isBeingWritten(const QUrl &file)
{
    const FileDescriptor photo = openPhoto(file);
    // A writer that comes while the lease is held is announced by a signal; this one is ignored by default.
    if (!photo.isOpen() || ::fcntl(photo.number(), F_SETSIG, SIGURG) != 0) {
        return false;
    }
    if (::fcntl(photo.number(), F_SETLEASE, F_RDLCK) != 0) {
        return errno == EAGAIN;
    }
    ::fcntl(photo.number(), F_SETLEASE, F_UNLCK);
    return false;
}
