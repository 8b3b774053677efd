#include "DesktopWorkspace.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDesktopServices>

namespace {

/// A file manager that has to be started first takes its time; one that hangs must not take the click with
/// it.
constexpr int replyTimeoutMilliseconds = 5000;

} // namespace

std::unique_ptr<Workspace> Workspace::create()
{
    return std::make_unique<DesktopWorkspace>(QDBusConnection::sessionBus());
}

DesktopWorkspace::DesktopWorkspace(const QDBusConnection &bus)
    : m_bus(bus)
{}

void DesktopWorkspace::reveal(const QUrl &file)
{
    if (!m_bus.isConnected()) {
        open(file.adjusted(QUrl::RemoveFilename)); // a call on no bus would never be answered
        return;
    }
    const QString interface = QStringLiteral("org.freedesktop.FileManager1");
    QDBusMessage message = QDBusMessage::createMethodCall(
        interface, QStringLiteral("/org/freedesktop/FileManager1"), interface, QStringLiteral("ShowItems"));
    message << QStringList{QString::fromLatin1(file.toEncoded())} << QString();

    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message, replyTimeoutMilliseconds), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, file] {
        if (watcher->isError()) {
            open(file.adjusted(QUrl::RemoveFilename));
        }
        watcher->deleteLater();
    });
}

void DesktopWorkspace::open(const QUrl &folder)
{
    QDesktopServices::openUrl(folder);
}
