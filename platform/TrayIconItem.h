#pragma once

#include "StatusItem.h"

class QMenu;
class QSystemTrayIcon;

/// A status item in an XEmbed tray. Shown without one, it waits for one to come.
class TrayIconItem : public StatusItem
{
    Q_OBJECT

public:
    explicit TrayIconItem(QObject *parent = nullptr);
    ~TrayIconItem() override;

    void setLook(const StatusItemLook &look) override;
    void setMenu(const QList<StatusMenuEntry> &entries) override;
    std::optional<QRect> place() const override;

private:
    std::unique_ptr<QMenu> m_menu;
    std::unique_ptr<QSystemTrayIcon> m_icon;
};
