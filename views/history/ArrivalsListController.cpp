#include "ArrivalsListController.h"

#include "ConversionItemTexts.h"

void ArrivalsListController::setModel(AppModel *model)
{
    if (m_model == model) {
        return;
    }
    if (m_model) {
        m_model->disconnect(this);
    }
    m_model = model;
    connect(model, &AppModel::itemsChanged, this, &ArrivalsListController::update);
    connect(model, &AppModel::watchFolderChanged, this, &ArrivalsListController::changed);
    Q_EMIT modelChanged();
    update();
}

bool ArrivalsListController::canClear() const
{
    return m_model && !isEmpty() && !m_model->isBusy();
}

QString ArrivalsListController::readyText() const
{
    return ConversionItemTexts::readyText(m_model ? m_model->readyCount() : 0);
}

QString ArrivalsListController::emptyHint() const
{
    const QUrl folder = m_model ? m_model->watchFolder() : QUrl();
    return tr("AirDrop into %1, or choose a HEIC photo above.").arg(folder.fileName());
}

void ArrivalsListController::reveal(int row)
{
    m_model->reveal(m_arrivals.item(row));
}

void ArrivalsListController::tryAgain(int row)
{
    m_model->convertManually({m_arrivals.item(row).sourceURL});
}

void ArrivalsListController::update()
{
    m_arrivals.setItems(m_model->items());
    Q_EMIT changed();
}
