#pragma once

#include "NotificationCenter.h"

#include <QDBusConnection>
#include <QHash>
#include <QList>
#include <QObject>

#include <optional>

class ArrivalChime;
class JobScheduler;
class ScheduledJob;

/// `org.freedesktop.Notifications` (Desktop Notifications protocol, 1.2). The service cannot play the
/// application's sound, so it is played here, once the service has taken the notification.
class DesktopNotificationCenter : public QObject, public NotificationCenter
{
    Q_OBJECT

public:
    DesktopNotificationCenter(const QDBusConnection &bus, std::shared_ptr<JobScheduler> jobs,
                              std::shared_ptr<ArrivalChime> chime);
    ~DesktopNotificationCenter() override;

    void onResponse(std::function<void(const NotificationResponse &)> handler) override;
    void add(const NotificationRequest &request) override;
    void setImage(const QString &identifier, const QImage &image) override;

private Q_SLOTS:
    void actionInvoked(uint id, const QString &action);
    void notificationClosed(uint id, uint reason);
    void activationToken(uint id, const QString &token);
    void forgetService();

private:
    struct Waiting
    {
        NotificationRequest request;
        std::shared_ptr<ScheduledJob> job;
    };
    struct Shown
    {
        uint number; ///< the service's
        NotificationRequest request;
        QString activationToken;
    };

    void postFirstDue();
    void askForCapabilities();
    void post(const NotificationRequest &request);
    QDBusMessage message(const NotificationRequest &request, uint replaced) const;
    void forget(uint number);
    QString bodyOf(const NotificationRequest &request) const;

    QDBusConnection m_bus;
    std::shared_ptr<JobScheduler> m_jobs;
    std::shared_ptr<ArrivalChime> m_chime;
    std::function<void(const NotificationResponse &)> m_handler;
    std::optional<QStringList> m_capabilities;
    QHash<QString, Waiting> m_waiting; ///< by request identifier
    QList<NotificationRequest> m_due;  ///< posted one by one, the first one now
    QList<Shown> m_shown;              ///< the oldest first
};
