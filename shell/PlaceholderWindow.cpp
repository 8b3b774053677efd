#include "PlaceholderWindow.h"

#include "AppModel.h"

#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

PlaceholderWindow::PlaceholderWindow(AppModel &model)
    : m_model(model)
    , m_status(new QLabel(model.lastEventText()))
    , m_items(new QListWidget)
{
    setWindowTitle(QStringLiteral("Lumaport"));
    resize(900, 780);
    auto *column = new QVBoxLayout(this);
    auto *monitor = new QLabel(model.monitorDetail());
    column->addWidget(monitor);
    column->addWidget(m_status);
    column->addWidget(m_items);
    connect(&model, &AppModel::lastEventTextChanged, this,
            [this] { m_status->setText(m_model.lastEventText()); });
    connect(&model, &AppModel::monitorTextsChanged, this,
            [this, monitor] { monitor->setText(m_model.monitorDetail()); });
    connect(&model, &AppModel::itemsChanged, this, &PlaceholderWindow::showItems);
    showItems();
}

void PlaceholderWindow::showItems()
{
    m_items->clear();
    const QList<ConversionItem> items = m_model.items();
    for (const ConversionItem &item : items) {
        m_items->addItem(item.outputName.value_or(item.sourceName) + QStringLiteral(" – ") +
                         rawValue(item.status) + item.errorMessage.value_or(QString()));
    }
}
