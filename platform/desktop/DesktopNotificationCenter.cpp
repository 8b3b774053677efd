#include "DesktopNotificationCenter.h"

#include "ArrivalChime.h"
#include "JobScheduler.h"

#include <QDBusArgument>
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

/// The picture as pixels: the service need not read a file. Desktop Notifications protocol, "Icons and
/// Images".
QVariant imageData(const QImage &image)
{
    const QImage pixels = image.convertToFormat(QImage::Format_RGBA8888);
    constexpr int bitsPerSample = 8;
    constexpr int channels = 4;
    QDBusArgument data;
    data.beginStructure();
    data << pixels.width() << pixels.height() << int(pixels.bytesPerLine()) << true << bitsPerSample
         << channels
         << QByteArray::fromRawData(reinterpret_cast<const char *>(pixels.constBits()), pixels.sizeInBytes());
    data.endStructure();
    return QVariant::fromValue(data);
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
    const auto fallDue = [this, identifier = request.identifier] {
        m_due.append(m_waiting.take(identifier).request);
        if (m_due.size() == 1) {
            postFirstDue();
        }
    };
    m_waiting.insert(request.identifier, {.request = request, .job = m_jobs->after(request.delay, fallDue)});
}

void DesktopNotificationCenter::setImage(const QString &identifier, const QImage &image)
{
    const auto waiting = m_waiting.find(identifier);
    const auto due = std::ranges::find(m_due, identifier, &NotificationRequest::identifier);
    const auto shown =
        std::ranges::find(m_shown, identifier, [](const Shown &one) { return one.request.identifier; });
    if (waiting != m_waiting.end()) {
        waiting->request.image = image;
    } else if (due != m_due.end()) {
        due->image = image;
    } else if (shown != m_shown.end()) {
        shown->request.image = image;
        m_bus.asyncCall(message(shown->request, shown->number));
    }
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
    const uint replaced = m_shown.size() < mostShown ? 0 : m_shown.constFirst().number;
    const bool hasImage = !request.image.isNull();
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message(request, replaced)), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, replaced, hasImage] {
        const NotificationRequest posted = m_due.takeFirst();
        const QDBusPendingReply<uint> reply = *watcher;
        if (reply.isValid()) {
            forget(replaced);
            m_shown.append({.number = reply.value(), .request = posted});
            if (!posted.soundName.isEmpty()) {
                m_chime->play(posted.soundName);
            }
            if (!hasImage && !posted.image.isNull()) {
                setImage(posted.identifier, posted.image); // it came while the service was asked
            }
        }
        if (!m_due.isEmpty()) {
            postFirstDue();
        }
        watcher->deleteLater();
    });
}

QDBusMessage DesktopNotificationCenter::message(const NotificationRequest &request, uint replaced) const
{
    QVariantMap hints{
        {QStringLiteral("desktop-entry"), QStringLiteral("io.lumaport.Lumaport")},
        {QStringLiteral("category"), QStringLiteral("transfer.complete")},
        {QStringLiteral("x-lumaport-category"), request.categoryIdentifier},
        {QStringLiteral("urgency"), QVariant::fromValue<uchar>(1)},
        {QStringLiteral("suppress-sound"), true},
    };
    if (!request.image.isNull()) {
        hints.insert(QStringLiteral("image-data"), imageData(request.image));
    }
    QStringList actions;
    if (!request.action.identifier.isEmpty()) {
        // An empty title for the click on the notification itself: services draw a button for any other.
        actions << defaultAction << QString() << request.action.identifier << request.action.title;
    }
    constexpr int serviceDecides = -1; // how long it shows
    QDBusMessage message = call(QStringLiteral("Notify"));
    message << QStringLiteral("Lumaport") << replaced << QStringLiteral("io.lumaport.Lumaport")
            << request.title << bodyOf(request) << actions << hints << serviceDecides;
    return message;
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
        m_handler({.actionIdentifier = action,
                   .payload = shown->request.payload,
                   .activationToken = shown->activationToken});
    }
}

void DesktopNotificationCenter::activationToken(uint id, const QString &token)
{
    const auto shown = std::ranges::find(m_shown, id, &Shown::number); // it comes just before the action
    if (shown != m_shown.end()) {
        shown->activationToken = token;
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
