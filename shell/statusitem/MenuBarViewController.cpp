#include "MenuBarViewController.h"

#include "AppModel.h"
#include "ConversionItemTexts.h"

MenuBarViewController::MenuBarViewController(AppModel &model, Actions actions, QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_actions(std::move(actions))
{
    connect(&model, &AppModel::itemsChanged, this, &MenuBarViewController::arrivalChanged);
}

bool MenuBarViewController::hasArrival() const
{
    return !m_model.items().isEmpty();
}

QString MenuBarViewController::arrivalName() const
{
    return hasArrival() ? ConversionItemTexts::displayName(m_model.items().constFirst()) : QString();
}

QString MenuBarViewController::arrivalStatus() const
{
    return hasArrival() ? ConversionItemTexts::statusText(m_model.items().constFirst(), tr("Needs attention"))
                        : QString();
}

QUrl MenuBarViewController::arrivalFile() const
{
    return hasArrival() ? ConversionItemTexts::displayFile(m_model.items().constFirst()) : QUrl();
}

bool MenuBarViewController::canReveal() const
{
    return hasArrival() && m_model.items().constFirst().status == ConversionStatus::ready;
}

void MenuBarViewController::reveal()
{
    if (hasArrival()) {
        m_model.reveal(m_model.items().constFirst());
    }
}
