#include "PhotoFile.h"

#include "PhotoFileName.h"

#include <QFile>
#include <QUrl>

#include <fcntl.h>
#include <sys/stat.h>

bool isPhotoFile(const QUrl &url)
{
    return url.isLocalFile() && PhotoFileName::isHeic(url.fileName());
}

FileDescriptor openPhoto(const QUrl &file)
{
    const QByteArray path = QFile::encodeName(file.toLocalFile());
    FileDescriptor photo(::open(path.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    struct stat status = {};
    const bool isRegular = photo.isOpen() && ::fstat(photo.number(), &status) == 0 && S_ISREG(status.st_mode);
    return isRegular ? std::move(photo) : FileDescriptor();
}
