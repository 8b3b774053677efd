#pragma once

#include <QImage>
#include <QList>
#include <QObject>
#include <QPoint>
#include <QRect>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

/// What a status item looks and reads like.
struct StatusItemLook
{
    QList<QImage> images; ///< the icon in several sizes
    QString toolTip;
    QString accessibilityLabel;
};

/// One line of the item's own menu.
struct StatusMenuEntry
{
    enum class Kind { command, toggle, separator };

    Kind kind = Kind::command;
    QString title;
    bool isEnabled = true;
    std::optional<bool> isChecked; ///< of a toggle; of a command that is one choice of several
    std::function<void()> action;

    /// Equal in all but the action, which does not show.
    bool looksLike(const StatusMenuEntry &other) const
    {
        return kind == other.kind && title == other.title && isEnabled == other.isEnabled &&
               isChecked == other.isChecked;
    }
};

/// The application's icon in the desktop's panel. Without any tray it shows nowhere, until one comes.
class StatusItem : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    virtual void setLook(const StatusItemLook &look) = 0;
    /// The menu of a right click; on desktops that know nothing else, of every click.
    virtual void setMenu(const QList<StatusMenuEntry> &entries) = 0;
    /// Where on the desktop the item is, in device-independent pixels, as far as that is known.
    virtual std::optional<QRect> place() const = 0;
    /// A tray shows the item at present.
    virtual bool isShown() const = 0;

    /// A StatusNotifierItem where the desktop has a host for these, else an icon in an XEmbed tray; follows
    /// when either comes or goes.
    static std::unique_ptr<StatusItem> create();

Q_SIGNALS:
    /// The user clicked the item.
    void activated();
};
