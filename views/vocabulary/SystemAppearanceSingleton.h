#pragma once

#include "SystemAppearance.h"

#include <QJSEngine>
#include <QtQml/qqml.h>

/// Shows the program's one SystemAppearance to QML, as the singleton `SystemAppearance`. Whoever owns it
/// provides it before the first QML file is loaded, and keeps it for as long as an engine lives.
struct SystemAppearanceSingleton
{
    Q_GADGET
    QML_FOREIGN(SystemAppearance)
    QML_SINGLETON
    QML_NAMED_ELEMENT(SystemAppearance)

public:
    static void provide(SystemAppearance &instance) { provided = &instance; }

    static SystemAppearance *create(QQmlEngine *, QJSEngine *)
    {
        Q_ASSERT(provided);
        QJSEngine::setObjectOwnership(provided, QJSEngine::CppOwnership);
        return provided;
    }

private:
    inline static SystemAppearance *provided = nullptr;
};
