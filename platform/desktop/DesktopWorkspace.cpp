#include "DesktopWorkspace.h"

#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDesktopServices>

namespace {

/// Whether the answer says that nothing was shown. A missing answer does not: a slow file manager may still
/// open its window, and there would be two.
bool isRefusal(const QDBusError &error)
{
    const QList<QDBusError::ErrorType> missing{QDBusError::NoReply, QDBusError::Timeout,
                                               QDBusError::TimedOut};
    return error.isValid() && !missing.contains(error.type());
}

} // namespace

std::unique_ptr<Workspace> Workspace::create()
{
    return std::make_unique<DesktopWorkspace>(QDBusConnection::sessionBus());
}

DesktopWorkspace::DesktopWorkspace(const QDBusConnection &bus)
    : m_bus(bus)
{}

void DesktopWorkspace::reveal(const QUrl &file, const QString &activationToken)
{
    if (!m_bus.isConnected()) {
        open(file.adjusted(QUrl::RemoveFilename)); // a call on no bus would never be answered
        return;
    }
    const QString interface = QStringLiteral("org.freedesktop.FileManager1");
    QDBusMessage message = QDBusMessage::createMethodCall(
        interface, QStringLiteral("/org/freedesktop/FileManager1"), interface, QStringLiteral("ShowItems"));
    message << QStringList{QString::fromLatin1(file.toEncoded())} << activationToken;

    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, file] {
        if (isRefusal(watcher->error())) {
            open(file.adjusted(QUrl::RemoveFilename));
        }
        watcher->deleteLater();
    });
}

void DesktopWorkspace::open(const QUrl &folder)
{
    QDesktopServices::openUrl(folder);
}
