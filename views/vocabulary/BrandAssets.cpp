#include "BrandAssets.h"

#include <QFile>

QIcon BrandAssets::loadIcon(const QString &resource, const QString &themeName)
{
    if (QFile::exists(resource)) {
        // An icon is made from any file name; only one that gives pixels is an icon.
        QIcon icon(resource);
        if (!icon.pixmap(16, 16).isNull()) {
            return icon;
        }
    }
    return QIcon::fromTheme(themeName);
}

const QIcon &BrandAssets::icon()
{
    static const QIcon shared =
        loadIcon(QStringLiteral(":/icon/AppIcon.svg"), QStringLiteral("io.lumaport.Lumaport"));
    return shared;
}
