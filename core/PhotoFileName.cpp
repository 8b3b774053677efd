#include "PhotoFileName.h"

namespace PhotoFileName {

QString extension(const QString &fileName)
{
    const qsizetype point = fileName.lastIndexOf(QLatin1Char('.'));
    return point > 0 ? fileName.mid(point + 1) : QString();
}

QString base(const QString &fileName)
{
    const qsizetype point = fileName.lastIndexOf(QLatin1Char('.'));
    return point > 0 ? fileName.left(point) : fileName;
}

bool isHeic(const QString &fileName)
{
    const QString lower = extension(fileName).toLower();
    return lower == QLatin1String("heic") || lower == QLatin1String("heif");
}

} // namespace PhotoFileName
