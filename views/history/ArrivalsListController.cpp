#include "ArrivalsListController.h"

#include "AppModelSingleton.h"
#include "PhotoFileName.h"

ArrivalsListController::ArrivalsListController(AppModel &model, QObject *parent)
    : QObject(parent)
    , m_model(model)
{
    connect(&model, &AppModel::itemsChanged, this, &ArrivalsListController::update);
    connect(&model, &AppModel::watchFolderChanged, this, &ArrivalsListController::changed);
    update();
}

ArrivalsListController *ArrivalsListController::create(QQmlEngine *engine, QJSEngine *scriptEngine)
{
    return new ArrivalsListController(*AppModelSingleton::create(engine, scriptEngine));
}

bool ArrivalsListController::canClear() const
{
    return !isEmpty() && !m_model.isBusy();
}

QString ArrivalsListController::emptyHint() const
{
    return tr("AirDrop into %1, or choose a HEIC photo above.")
        .arg(PhotoFileName::shown(m_model.watchFolder().fileName()));
}

void ArrivalsListController::reveal(int row)
{
    m_model.reveal(m_arrivals.item(row));
}

void ArrivalsListController::tryAgain(int row)
{
    m_model.convertManually({m_arrivals.item(row).sourceURL});
}

void ArrivalsListController::update()
{
    m_arrivals.setItems(m_model.items());
    Q_EMIT changed();
}
