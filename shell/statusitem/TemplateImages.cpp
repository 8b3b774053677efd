#include "TemplateImages.h"

#include "Symbol.h"

QList<QImage> TemplateImages::forSymbol(const QString &name)
{
    QList<QImage> images;
    for (const int size : {16, 22, 24, 32, 48, 64}) {
        images.append(Symbol::image(name, tint, size));
    }
    return images;
}
