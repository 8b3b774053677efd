#include "MenuBarViewController.h"

#include "AppModel.h"

MenuBarViewController::MenuBarViewController(AppModel &model, Actions actions, QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_actions(std::move(actions))
{
    connect(&model, &AppModel::itemsChanged, this, &MenuBarViewController::arrivalChanged);
    connect(&model, &AppModel::settingsChanged, this, &MenuBarViewController::formatChanged);
}

bool MenuBarViewController::hasArrival() const
{
    return !m_model.items().isEmpty();
}

QString MenuBarViewController::arrivalName() const
{
    if (!hasArrival()) {
        return {};
    }
    const ConversionItem newest = m_model.items().constFirst();
    return newest.outputName.value_or(newest.sourceName);
}

QString MenuBarViewController::arrivalStatus() const
{
    if (!hasArrival()) {
        return {};
    }
    const ConversionItem newest = m_model.items().constFirst();
    switch (newest.status) {
    case ConversionStatus::queued:
        return tr("Waiting to convert");
    case ConversionStatus::converting:
        return tr("Converting on your Mac");
    case ConversionStatus::ready:
        return tr("Ready to use");
    case ConversionStatus::failed:
        return newest.errorMessage.value_or(tr("Needs attention"));
    }
    Q_UNREACHABLE();
}

QUrl MenuBarViewController::arrivalFile() const
{
    if (!hasArrival()) {
        return {};
    }
    const ConversionItem newest = m_model.items().constFirst();
    return newest.outputURL.value_or(newest.sourceURL);
}

bool MenuBarViewController::canReveal() const
{
    return hasArrival() && m_model.items().constFirst().status == ConversionStatus::ready;
}

int MenuBarViewController::format() const
{
    return static_cast<int>(m_model.settings().format);
}

void MenuBarViewController::setFormat(int choice)
{
    ConversionSettings settings = m_model.settings();
    settings.format = static_cast<OutputFormat>(choice);
    m_model.setSettings(settings);
}

void MenuBarViewController::reveal()
{
    if (hasArrival()) {
        m_model.reveal(m_model.items().constFirst());
    }
}
