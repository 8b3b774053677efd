#include "MonitoringControlController.h"

#include "AppModelSingleton.h"

MonitoringControlController::MonitoringControlController(AppModel &model, QObject *parent)
    : QObject(parent)
    , m_model(model)
{
    connect(&model, &AppModel::isWatchingChanged, this, &MonitoringControlController::changed);
    connect(&model, &AppModel::monitorAvailableChanged, this, &MonitoringControlController::changed);
}

MonitoringControlController *MonitoringControlController::create(QQmlEngine *engine, QJSEngine *scriptEngine)
{
    return new MonitoringControlController(*AppModelSingleton::create(engine, scriptEngine));
}

bool MonitoringControlController::isAutomatic() const
{
    return m_model.monitorAvailable() && m_model.isWatching();
}

QString MonitoringControlController::buttonTitle() const
{
    if (!m_model.monitorAvailable()) {
        return tr("Retry");
    }
    return m_model.isWatching() ? tr("Pause") : tr("Resume");
}

void MonitoringControlController::act()
{
    if (m_model.monitorAvailable()) {
        m_model.setIsWatching(!m_model.isWatching());
    } else {
        m_model.retryMonitoring();
    }
}
