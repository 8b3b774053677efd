#pragma once

#include "AppModel.h"

#include <QJSEngine>
#include <QtQml/qqml.h>

/// Makes the program's one AppModel the QML singleton `AppModel`. Its owner provides it before the first QML
/// file is loaded, and keeps it until the last engine has ended.
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
