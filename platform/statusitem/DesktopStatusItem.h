#pragma once

#include "StatusItem.h"

class StatusNotifierItem;

/// The status item in whichever tray the desktop has. The icon for an XEmbed tray exists only while no
/// StatusNotifier host shows the item, so that it is never seen twice.
class DesktopStatusItem : public StatusItem
{
    Q_OBJECT

public:
    /// `makeFallback` answers null where there is nothing to fall back to.
    DesktopStatusItem(std::unique_ptr<StatusNotifierItem> notifierItem,
                      std::function<std::unique_ptr<StatusItem>()> makeFallback);
    ~DesktopStatusItem() override;

    void setLook(const StatusItemLook &look) override;
    void setMenu(const QList<StatusMenuEntry> &entries) override;
    std::optional<QRect> place() const override;
    bool isShown() const override;

private:
    void setHostPresent(bool isPresent);

    std::unique_ptr<StatusNotifierItem> m_notifierItem;
    std::function<std::unique_ptr<StatusItem>()> m_makeFallback;
    std::unique_ptr<StatusItem> m_fallback;
    StatusItemLook m_look;
    QList<StatusMenuEntry> m_entries;
};
