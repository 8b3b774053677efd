#pragma once

#include "StatusItem.h"

class QAction;
class QActionGroup;
class QMenu;
class QSystemTrayIcon;

/// A status item in an XEmbed tray. Without a tray it waits until one comes. These trays show a picture
/// and a tooltip: there is no way to give the icon an accessibility label of its own.
class TrayIconItem : public StatusItem
{
    Q_OBJECT

public:
    explicit TrayIconItem(QObject *parent = nullptr);
    ~TrayIconItem() override;

    void setLook(const StatusItemLook &look) override;
    void setMenu(const QList<StatusMenuEntry> &entries) override;
    std::optional<QRect> place() const override;
    bool isShown() const override;

private:
    void addLine();
    void show(const StatusMenuEntry &entry, QAction &line);

    QList<StatusMenuEntry> m_entries;
    std::unique_ptr<QMenu> m_menu;
    std::unique_ptr<QActionGroup> m_choices; ///< one of them holds
    std::unique_ptr<QSystemTrayIcon> m_icon;
};
