#include "DesktopStatusItem.h"

#include "StatusNotifierItem.h"
#include "TrayIconItem.h"

#include <QGuiApplication>

namespace {

/// An XEmbed tray needs the X server; null without one.
std::unique_ptr<StatusItem> trayIconItem()
{
    return QGuiApplication::platformName() == QLatin1String("xcb") ? std::make_unique<TrayIconItem>()
                                                                   : nullptr;
}

} // namespace

std::unique_ptr<StatusItem> StatusItem::create()
{
    return std::make_unique<DesktopStatusItem>(
        std::make_unique<StatusNotifierItem>(QDBusConnection::sessionBus()), trayIconItem);
}

DesktopStatusItem::DesktopStatusItem(std::unique_ptr<StatusNotifierItem> notifierItem,
                                     std::function<std::unique_ptr<StatusItem>()> makeFallback)
    : m_notifierItem(std::move(notifierItem))
    , m_makeFallback(std::move(makeFallback))
{
    connect(m_notifierItem.get(), &StatusItem::activated, this, &StatusItem::activated);
    connect(m_notifierItem.get(), &StatusNotifierItem::hostPresenceChanged, this,
            &DesktopStatusItem::setHostPresent);
}

DesktopStatusItem::~DesktopStatusItem() = default;

void DesktopStatusItem::setHostPresent(bool isPresent)
{
    if (isPresent) {
        m_fallback.reset();
    } else if (!m_fallback) {
        m_fallback = m_makeFallback();
        if (!m_fallback) {
            return;
        }
        connect(m_fallback.get(), &StatusItem::activated, this, &StatusItem::activated);
        m_fallback->setMenu(m_entries);
        m_fallback->setLook(m_look);
    }
}

void DesktopStatusItem::setLook(const StatusItemLook &look)
{
    m_look = look;
    m_notifierItem->setLook(look);
    if (m_fallback) {
        m_fallback->setLook(look);
    }
}

void DesktopStatusItem::setMenu(const QList<StatusMenuEntry> &entries)
{
    m_entries = entries;
    m_notifierItem->setMenu(entries);
    if (m_fallback) {
        m_fallback->setMenu(entries);
    }
}

bool DesktopStatusItem::isShown() const
{
    return m_notifierItem->isShown() || (m_fallback && m_fallback->isShown());
}

std::optional<QRect> DesktopStatusItem::place() const
{
    const auto inTray = m_fallback ? m_fallback->place() : std::nullopt;
    return inTray ? inTray : m_notifierItem->place();
}
