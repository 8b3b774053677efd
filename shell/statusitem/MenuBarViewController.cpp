#include "MenuBarViewController.h"

#include "AppModel.h"
#include "ConversionItemTexts.h"

#include <QCoreApplication>

MenuBarViewController::MenuBarViewController(AppModel &model, std::function<void()> openMain, QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_openMain(std::move(openMain))
{
    connect(&model, &AppModel::itemsChanged, this, &MenuBarViewController::arrivalChanged);
}

ConversionItem MenuBarViewController::arrival() const
{
    return m_model.items().value(0);
}

bool MenuBarViewController::hasArrival() const
{
    return !m_model.items().isEmpty();
}

QString MenuBarViewController::arrivalName() const
{
    return ConversionItemTexts::displayName(arrival());
}

QString MenuBarViewController::arrivalStatus() const
{
    return ConversionItemTexts::statusText(arrival(), tr("Needs attention"));
}

QUrl MenuBarViewController::arrivalFile() const
{
    return ConversionItemTexts::displayFile(arrival());
}

bool MenuBarViewController::canReveal() const
{
    return arrival().status == ConversionStatus::ready;
}

void MenuBarViewController::reveal()
{
    m_model.reveal(arrival());
}

void MenuBarViewController::quit()
{
    QCoreApplication::quit();
}
