#pragma once

#include <QColor>
#include <QCoreApplication>
#include <QImage>
#include <QList>
#include <QString>

class AppModel;

/// What the status item shows of the model: its symbol, its tooltip and its text for screen readers.
struct MenuIcon
{
    Q_DECLARE_TR_FUNCTIONS(MenuIcon)

public:
    /// Desktop panels are light or dark, and none says which. The contrast of this grey to either is 3:1 or
    /// more (WCAG 2.1, 1.4.11). A themed icon name would let panels choose the colour, but some of them would
    /// draw the icon black on dark.
    static constexpr QColor tint{0x80, 0x80, 0x80};

    QString symbol;
    QString toolTip;
    QString accessibilityLabel;

    static MenuIcon forModel(const AppModel &model);

    /// The symbol in the sizes that desktop panels ask for, 16 to 64 pixels.
    QList<QImage> images() const;

    bool operator==(const MenuIcon &) const = default;
};
