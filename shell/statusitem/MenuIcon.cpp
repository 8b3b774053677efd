#include "MenuIcon.h"

#include "AppModel.h"

#include <QCoreApplication>

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
    const QString toolTip = model.isBusy()
                                ? QCoreApplication::translate("MenuIcon", "Lumaport: %1. Converting photos.")
                                : QCoreApplication::translate("MenuIcon", "Lumaport: %1");
    return {.symbol = symbolFor(model),
            .toolTip = toolTip.arg(title),
            .accessibilityLabel = QCoreApplication::translate("MenuIcon", "Lumaport, %1").arg(title)};
}
