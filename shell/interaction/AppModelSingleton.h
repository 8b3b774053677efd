#pragma once

#include "AppModel.h"

#include <QJSEngine>
#include <QtQml/qqml.h>

/// Shows the program's one AppModel to QML, as the singleton `AppModel`. Whoever owns it provides it before
/// the first QML file is loaded, and keeps it for as long as an engine lives.
struct AppModelSingleton
{
    Q_GADGET
    QML_FOREIGN(AppModel)
    QML_SINGLETON
    QML_NAMED_ELEMENT(AppModel)

public:
    static void provide(AppModel &instance) { s_instance = &instance; }

    static AppModel *create(QQmlEngine *, QJSEngine *)
    {
        Q_ASSERT(s_instance);
        QJSEngine::setObjectOwnership(s_instance, QJSEngine::CppOwnership);
        return s_instance;
    }

private:
    inline static AppModel *s_instance = nullptr;
};
