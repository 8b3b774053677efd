#include "StatusNotifierItem.h"

#include "ActivationToken.h"
#include "StatusNotifierMenu.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QGuiApplication>
#include <QScreen>

namespace {

constexpr QLatin1String watcherService("org.kde.StatusNotifierWatcher");
constexpr QLatin1String watcherPath("/StatusNotifierWatcher");
constexpr QLatin1String itemPath("/StatusNotifierItem");

/// Converts a host's position, in physical pixels, to Qt's. A screen's origin is the same in both.
QPoint fromScreenPixels(const QPoint &position)
{
    const QList<QScreen *> screens = QGuiApplication::screens();
    for (const QScreen *screen : screens) {
        const QPoint origin = screen->geometry().topLeft();
        const QRect pixels(origin, screen->geometry().size() * screen->devicePixelRatio());
        if (pixels.contains(position)) {
            return origin + (position - origin) / screen->devicePixelRatio();
        }
    }
    return position;
}

} // namespace

StatusNotifierItem::StatusNotifierItem(const QDBusConnection &bus, QObject *parent)
    : StatusItem(parent)
    , m_bus(bus)
    , m_watcher(watcherService, bus, QDBusServiceWatcher::WatchForOwnerChange)
    , m_menu(std::make_unique<StatusNotifierMenu>(bus))
    , m_serviceName(QStringLiteral("org.kde.StatusNotifierItem-%1-1").arg(QGuiApplication::applicationPid()))
{
    registerStatusNotifierTypes();
    m_bus.registerObject(itemPath, this,
                         QDBusConnection::ExportScriptableSlots | QDBusConnection::ExportScriptableSignals |
                             QDBusConnection::ExportAllProperties);
    m_bus.registerService(m_serviceName);
    for (const auto &signal :
         {QStringLiteral("StatusNotifierHostRegistered"), QStringLiteral("StatusNotifierHostUnregistered")}) {
        m_bus.connect(watcherService, watcherPath, watcherService, signal, this, SLOT(askForHost()));
    }
    connect(&m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            &StatusNotifierItem::registerWithWatcher);
    registerWithWatcher();
}

StatusNotifierItem::~StatusNotifierItem()
{
    // The watcher drops the item when its name goes.
    m_bus.unregisterService(m_serviceName);
    m_bus.unregisterObject(itemPath);
}

void StatusNotifierItem::registerWithWatcher()
{
    QDBusMessage message = QDBusMessage::createMethodCall(watcherService, watcherPath, watcherService,
                                                          QStringLiteral("RegisterStatusNotifierItem"));
    message << m_serviceName;
    m_bus.send(message); // without a watcher there is no answer to wait for
    askForHost();
}

void StatusNotifierItem::askForHost()
{
    if (!m_bus.isConnected()) { // a call would never be answered, not even by an error
        QMetaObject::invokeMethod(
            this, [this] { Q_EMIT hostPresenceChanged(false); }, Qt::QueuedConnection);
        return;
    }
    QDBusMessage message = QDBusMessage::createMethodCall(watcherService, watcherPath,
                                                          QStringLiteral("org.freedesktop.DBus.Properties"),
                                                          QStringLiteral("Get"));
    message << watcherService << QStringLiteral("IsStatusNotifierHostRegistered");
    auto *reply = new QDBusPendingCallWatcher(m_bus.asyncCall(message), this);
    connect(reply, &QDBusPendingCallWatcher::finished, this, [this, reply] {
        const QDBusPendingReply<QDBusVariant> answer = *reply;
        m_hasHost = answer.isValid() && answer.value().variant().toBool();
        Q_EMIT hostPresenceChanged(m_hasHost);
        reply->deleteLater();
    });
}

void StatusNotifierItem::setLook(const StatusItemLook &look)
{
    m_look = look;
    Q_EMIT NewIcon();
    Q_EMIT NewToolTip();
}

void StatusNotifierItem::setMenu(const QList<StatusMenuEntry> &entries)
{
    m_menu->setEntries(entries);
}

QDBusObjectPath StatusNotifierItem::menu()
{
    return QDBusObjectPath(StatusNotifierMenu::objectPath);
}

StatusNotifierPixmaps StatusNotifierItem::iconPixmap() const
{
    StatusNotifierPixmaps pixmaps;
    for (const QImage &image : m_look.images) {
        pixmaps.append(StatusNotifierPixmap::fromImage(image));
    }
    return pixmaps;
}

StatusNotifierToolTip StatusNotifierItem::toolTip() const
{
    // With an empty text some hosts show the accessibility label below the title.
    return {.iconName = {}, .pixmaps = {}, .title = title(), .text = m_look.toolTip};
}

void StatusNotifierItem::Activate(int x, int y)
{
    // Hosts that do not know where the item is say 0, 0.
    m_place = x == 0 && y == 0 ? std::nullopt : std::optional(QRect(fromScreenPixels({x, y}), QSize(1, 1)));
    Q_EMIT activated();
}

void StatusNotifierItem::SecondaryActivate(int x, int y)
{
    Activate(x, y);
}

void StatusNotifierItem::ContextMenu(int x, int y)
{
    Activate(x, y); // hosts that can show the menu do not call this
}

void StatusNotifierItem::Scroll(int /*delta*/, const QString & /*orientation*/)
{}

void StatusNotifierItem::ProvideXdgActivationToken(const QString &token)
{
    useActivationToken(token);
}
