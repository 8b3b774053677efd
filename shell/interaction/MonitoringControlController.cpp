#include "MonitoringControlController.h"

void MonitoringControlController::setModel(AppModel *model)
{
    if (m_model == model) {
        return;
    }
    if (m_model) {
        m_model->disconnect(this);
    }
    m_model = model;
    connect(model, &AppModel::isWatchingChanged, this, &MonitoringControlController::stateChanged);
    connect(model, &AppModel::monitorAvailableChanged, this, &MonitoringControlController::stateChanged);
    Q_EMIT modelChanged();
    Q_EMIT stateChanged();
}

bool MonitoringControlController::isAutomatic() const
{
    return m_model && m_model->monitorAvailable() && m_model->isWatching();
}

QString MonitoringControlController::buttonTitle() const
{
    if (m_model && !m_model->monitorAvailable()) {
        return tr("Retry");
    }
    return isAutomatic() ? tr("Pause") : tr("Resume");
}

void MonitoringControlController::act()
{
    if (m_model->monitorAvailable()) {
        m_model->setIsWatching(!m_model->isWatching());
    } else {
        m_model->retryMonitoring();
    }
}
