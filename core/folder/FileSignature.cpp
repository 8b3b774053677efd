#include "FileSignature.h"

#include <QFile>

#include <sys/stat.h>

std::optional<FileSignature> FileSignature::of(const QUrl &file)
{
    using namespace std::chrono;
    struct stat status = {};
    if (::stat(QFile::encodeName(file.toLocalFile()).constData(), &status) != 0 || !S_ISREG(status.st_mode)) {
        return std::nullopt;
    }
    return FileSignature{.size = status.st_size,
                         .modifiedAt = sys_time<nanoseconds>(seconds(status.st_mtim.tv_sec) +
                                                             nanoseconds(status.st_mtim.tv_nsec))};
}
