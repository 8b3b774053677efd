#include "SingleInstance.h"

#include "ActivationToken.h"

#include <QDBusMessage>
#include <QStandardPaths>

#include <unistd.h>

namespace {

constexpr QLatin1String serviceName("io.lumaport.Lumaport");
constexpr QLatin1String objectPath("/io/lumaport/Lumaport");

void useTokenOf(const QVariantMap &platformData)
{
    useActivationToken(platformData.value(QStringLiteral("activation-token")).toString());
}

} // namespace

SingleInstance::SingleInstance(const QDBusConnection &bus, QObject *parent)
    : QObject(parent)
    , m_bus(bus)
    , m_lock(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) +
             QStringLiteral("/lumaport.lock"))
{
    m_lock.setStaleLockTime(0); // however old, it holds while its process lives
}

SingleInstance::~SingleInstance()
{
    if (m_isClaimed) {
        m_bus.unregisterService(serviceName);
        m_bus.unregisterObject(objectPath);
    }
}

bool SingleInstance::takeStartByBus()
{
    const bool isStarter = qEnvironmentVariableIsSet("DBUS_STARTER_BUS_TYPE");
    qunsetenv("DBUS_STARTER_BUS_TYPE");
    qunsetenv("DBUS_STARTER_ADDRESS");
    // A terminal or a launcher that the bus started hands its variables on to what a person starts in it.
    const bool isByHand = ::isatty(STDIN_FILENO) != 0 || qEnvironmentVariableIsSet("DESKTOP_STARTUP_ID") ||
                          qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN");
    return isStarter && !isByHand;
}

bool SingleInstance::claim()
{
    if (!m_bus.isConnected()) {
        // Where no lock can be made, nothing tells of another process.
        return m_lock.tryLock() || m_lock.error() != QLockFile::LockFailedError;
    }
    // The object first: whoever sees the name may call at once.
    m_bus.registerObject(objectPath, this, QDBusConnection::ExportAllSlots);
    m_isClaimed = m_bus.registerService(serviceName);
    if (!m_isClaimed) {
        m_bus.unregisterObject(objectPath);
    }
    return m_isClaimed;
}

bool SingleInstance::forward(const QList<QUrl> &files, const QDeadlineTimer &patience) const
{
    const QString method = files.isEmpty() ? QStringLiteral("Activate") : QStringLiteral("Open");
    QDBusMessage message = QDBusMessage::createMethodCall(
        serviceName, objectPath, QStringLiteral("org.freedesktop.Application"), method);
    if (!files.isEmpty()) {
        QStringList uris;
        for (const QUrl &file : files) {
            uris << QString::fromLatin1(file.toEncoded());
        }
        message << uris;
    }
    // What the desktop gave this start so that its window may come to the front goes to the first process.
    QVariantMap platformData;
    const QString token = qEnvironmentVariable("XDG_ACTIVATION_TOKEN");
    if (!token.isEmpty()) {
        platformData.insert(QStringLiteral("activation-token"), token);
    }
    message << platformData;
    const auto remaining = static_cast<int>(patience.remainingTime());
    return m_bus.call(message, QDBus::Block, remaining).type() == QDBusMessage::ReplyMessage;
}

void SingleInstance::Activate(const QVariantMap &platformData)
{
    useTokenOf(platformData);
    Q_EMIT activated();
}

void SingleInstance::Open(const QStringList &uris, const QVariantMap &platformData)
{
    useTokenOf(platformData);
    QList<QUrl> files;
    for (const QString &uri : uris) {
        files.append(QUrl(uri, QUrl::StrictMode));
    }
    Q_EMIT activated();
    Q_EMIT opened(files);
}

void SingleInstance::ActivateAction(const QString & /*action*/, const QVariantList & /*parameter*/,
                                    const QVariantMap &platformData)
{
    useTokenOf(platformData);
    Q_EMIT activated();
}
