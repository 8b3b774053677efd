#include "MenuIcon.h"

#include "AppModel.h"
#include "Symbol.h"

namespace {

QString symbolFor(const AppModel &model)
{
    if (!model.monitorAvailable()) {
        return QStringLiteral("exclamationmark.triangle");
    }
    if (model.isBusy()) {
        return QStringLiteral("arrow.triangle.2.circlepath");
    }
    return model.isWatching() ? QStringLiteral("photo.on.rectangle") : QStringLiteral("pause.circle");
}

} // namespace

MenuIcon MenuIcon::forModel(const AppModel &model)
{
    const QString title = model.monitorTitle();
    const QString toolTip = model.isBusy() ? tr("Lumaport: %1. Converting photos.") : tr("Lumaport: %1");
    return {.symbol = symbolFor(model),
            .toolTip = toolTip.arg(title),
            .accessibilityLabel = tr("Lumaport, %1").arg(title)};
}

QList<QImage> MenuIcon::images() const
{
    QList<QImage> images;
    for (const int size : {16, 22, 24, 32, 48, 64}) {
        images.append(Symbol::image(symbol, tint, size));
    }
    return images;
}
