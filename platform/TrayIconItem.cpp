#include "TrayIconItem.h"

#include <QIcon>
#include <QMenu>
#include <QPixmap>
#include <QSystemTrayIcon>

TrayIconItem::TrayIconItem(QObject *parent)
    : StatusItem(parent)
    , m_menu(std::make_unique<QMenu>())
    , m_icon(std::make_unique<QSystemTrayIcon>())
{
    m_icon->setContextMenu(m_menu.get());
    connect(m_icon.get(), &QSystemTrayIcon::activated, this,
            [this](QSystemTrayIcon::ActivationReason reason) {
                // The second of two quick clicks counts as much as the first.
                if (reason == QSystemTrayIcon::Trigger || reason == QSystemTrayIcon::DoubleClick) {
                    Q_EMIT activated();
                }
            });
}

TrayIconItem::~TrayIconItem() = default;

void TrayIconItem::setLook(const StatusItemLook &look)
{
    QIcon icon;
    for (const QImage &image : look.images) {
        icon.addPixmap(QPixmap::fromImage(image));
    }
    m_icon->setIcon(icon);
    m_icon->setToolTip(look.toolTip);
    m_icon->show(); // an icon without a picture is not taken
}

void TrayIconItem::setMenu(const QList<StatusMenuEntry> &entries)
{
    m_menu->clear();
    for (const StatusMenuEntry &entry : entries) {
        if (entry.kind == StatusMenuEntry::Kind::separator) {
            m_menu->addSeparator();
        } else {
            QAction *action = m_menu->addAction(entry.title);
            action->setEnabled(entry.isEnabled);
            action->setCheckable(entry.isChecked.has_value());
            action->setChecked(entry.isChecked.value_or(false));
            connect(action, &QAction::triggered, this, entry.action);
        }
    }
}

std::optional<QRect> TrayIconItem::place() const
{
    const QRect geometry = m_icon->geometry();
    return geometry.isEmpty() ? std::nullopt : std::optional(geometry);
}
