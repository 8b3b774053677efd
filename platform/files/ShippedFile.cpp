#include "ShippedFile.h"

#include <QCoreApplication>
#include <QFileInfo>

QString shippedFile(const QString &name)
{
    const QString programFolder = QCoreApplication::applicationDirPath();
    for (const QString &folder : {programFolder + QStringLiteral("/../share/lumaport/"),
                                  programFolder + QStringLiteral("/resources/")}) {
        if (QFileInfo::exists(folder + name)) {
            return folder + name;
        }
    }
    return {};
}
