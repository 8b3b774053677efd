#include "DesktopNotificationCenter.h"

#include "ArrivalChime.h"
#include "JobScheduler.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>

#include <algorithm>

namespace {

constexpr QLatin1String service("org.freedesktop.Notifications");
constexpr QLatin1String objectPath("/org/freedesktop/Notifications");

constexpr qsizetype mostShown = 3; // a further one takes the place of the oldest

QDBusMessage call(const QString &method)
{
    return QDBusMessage::createMethodCall(service, objectPath, service, method);
}

} // namespace

std::shared_ptr<NotificationCenter> NotificationCenter::create()
{
    return std::make_shared<DesktopNotificationCenter>(QDBusConnection::sessionBus(), JobScheduler::create(),
                                                       ArrivalChime::create());
}

DesktopNotificationCenter::DesktopNotificationCenter(const QDBusConnection &bus,
                                                     std::shared_ptr<JobScheduler> jobs,
                                                     std::shared_ptr<ArrivalChime> chime)
    : m_bus(bus)
    , m_jobs(std::move(jobs))
    , m_chime(std::move(chime))
{
    m_bus.connect(service, objectPath, service, QStringLiteral("ActionInvoked"), this,
                  SLOT(actionInvoked(uint, QString)));
    m_bus.connect(service, objectPath, service, QStringLiteral("NotificationClosed"), this,
                  SLOT(notificationClosed(uint, uint)));
    m_bus.connect(service, objectPath, service, QStringLiteral("ActivationToken"), this,
                  SLOT(activationToken(uint, QString)));
    const auto *watcher =
        new QDBusServiceWatcher(service, m_bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            &DesktopNotificationCenter::forgetService);
}

DesktopNotificationCenter::~DesktopNotificationCenter() = default;

void DesktopNotificationCenter::onResponse(std::function<void(const NotificationResponse &)> handler)
{
    m_handler = std::move(handler);
}

void DesktopNotificationCenter::add(const NotificationRequest &request)
{
    if (!m_bus.isConnected()) {
        return;
    }
    m_waiting.insert(request.identifier, m_jobs->after(request.delay, [this, request] {
        m_waiting.remove(request.identifier);
        m_due.append(request);
        if (m_due.size() == 1) {
            postFirstDue();
        }
    }));
}

void DesktopNotificationCenter::postFirstDue()
{
    if (m_capabilities) {
        post(m_due.constFirst());
    } else {
        askForCapabilities();
    }
}

void DesktopNotificationCenter::askForCapabilities()
{
    auto *watcher =
        new QDBusPendingCallWatcher(m_bus.asyncCall(call(QStringLiteral("GetCapabilities"))), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        const QDBusPendingReply<QStringList> reply = *watcher;
        if (reply.isValid()) {
            m_capabilities = reply.value();
        }
        post(m_due.constFirst());
        watcher->deleteLater();
    });
}

void DesktopNotificationCenter::post(const NotificationRequest &request)
{
    QDBusMessage message = call(QStringLiteral("Notify"));
    QVariantMap hints{
        {QStringLiteral("desktop-entry"), QStringLiteral("io.lumaport.Lumaport")},
        {QStringLiteral("category"), QStringLiteral("transfer.complete")},
        {QStringLiteral("x-lumaport-category"), request.categoryIdentifier},
        {QStringLiteral("urgency"), QVariant::fromValue<uchar>(1)},
        {QStringLiteral("suppress-sound"), true},
    };
    if (!request.image.isEmpty()) {
        hints.insert(QStringLiteral("image-path"), QString::fromLatin1(request.image.toEncoded()));
    }
    QStringList actions;
    if (!request.action.identifier.isEmpty()) {
        // An empty title for the click on the notification itself: services draw a button for any other.
        actions << defaultAction << QString() << request.action.identifier << request.action.title;
    }
    constexpr int serviceDecides = -1; // how long it shows
    const uint replaced = m_shown.size() < mostShown ? 0 : m_shown.constFirst().number;
    message << QStringLiteral("Lumaport") << replaced << QStringLiteral("io.lumaport.Lumaport")
            << request.title << bodyOf(request) << actions << hints << serviceDecides;

    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, replaced] {
        const NotificationRequest posted = m_due.takeFirst();
        const QDBusPendingReply<uint> reply = *watcher;
        if (reply.isValid()) {
            forget(replaced);
            m_shown.append({.number = reply.value(), .response = {.payload = posted.payload}});
            if (!posted.soundName.isEmpty()) {
                m_chime->play(posted.soundName);
            }
        }
        if (!m_due.isEmpty()) {
            postFirstDue();
        }
        watcher->deleteLater();
    });
}

QString DesktopNotificationCenter::bodyOf(const NotificationRequest &request) const
{
    // The service knows no subtitle: it becomes the body's first line.
    const QString text =
        request.subtitle.isEmpty() ? request.body : request.subtitle + QLatin1Char('\n') + request.body;
    const bool readsMarkup = m_capabilities && m_capabilities->contains(QLatin1String("body-markup"));
    return readsMarkup ? text.toHtmlEscaped() : text;
}

void DesktopNotificationCenter::actionInvoked(uint id, const QString &action)
{
    const auto shown = std::ranges::find(m_shown, id, &Shown::number);
    if (shown != m_shown.end() && m_handler) {
        NotificationResponse response = shown->response;
        response.actionIdentifier = action;
        m_handler(response);
    }
}

void DesktopNotificationCenter::activationToken(uint id, const QString &token)
{
    const auto shown = std::ranges::find(m_shown, id, &Shown::number); // it comes just before the action
    if (shown != m_shown.end()) {
        shown->response.activationToken = token;
    }
}

void DesktopNotificationCenter::notificationClosed(uint id, uint /*reason*/)
{
    forget(id);
}

void DesktopNotificationCenter::forget(uint number)
{
    m_shown.removeIf([number](const Shown &shown) { return shown.number == number; });
}

void DesktopNotificationCenter::forgetService()
{
    // Its numbers start again, and it may be another program.
    m_shown.clear();
    m_capabilities.reset();
}
