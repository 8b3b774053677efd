#pragma once

#include <QString>

class AppModel;

/// What the status item tells of the model: its symbol, its tooltip and what a screen reader says.
struct MenuIcon
{
    QString symbol;
    QString toolTip;
    QString accessibilityLabel;

    static MenuIcon forModel(const AppModel &model);

    bool operator==(const MenuIcon &) const = default;
};
