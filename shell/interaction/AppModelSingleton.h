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
    static void provide(AppModel &instance) { provided = &instance; }

    static AppModel *create(QQmlEngine *, QJSEngine *)
    {
        Q_ASSERT(provided);
        QJSEngine::setObjectOwnership(provided, QJSEngine::CppOwnership);
        return provided;
    }

private:
    inline static AppModel *provided = nullptr;
};
