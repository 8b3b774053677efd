#pragma once

#include <QImage>
#include <QString>
#include <QVariantMap>

#include <chrono>
#include <functional>
#include <memory>

/// A button of a notification.
struct NotificationAction
{
    QString identifier;
    QString title;
};

/// What is empty is left out of the notification; without an action a click does nothing.
struct NotificationRequest
{
    QString identifier; ///< two requests of the same identifier are one notification
    QString title;
    QString subtitle;
    QString body;
    QString categoryIdentifier; ///< for rules that the user gives the notification service
    NotificationAction action;
    QVariantMap payload; ///< comes back with the response
    QString soundName;   ///< a sound file shipped with the application
    QImage image;        ///< where the desktop shows one
    std::chrono::milliseconds delay{};
};

/// The user clicked a notification or one of its buttons.
struct NotificationResponse
{
    QString actionIdentifier; ///< `NotificationCenter::defaultAction` for the notification itself
    QVariantMap payload;
    QString activationToken; ///< lets the window that the click opens come to the front; may be empty
};

/// The desktop's notifications. Everything here is silent where there is no notification service or no sound.
class NotificationCenter
{
public:
    inline static const QString defaultAction = QStringLiteral("default");

    virtual ~NotificationCenter() = default;

    /// `handler` is called on the main thread.
    virtual void onResponse(std::function<void(const NotificationResponse &)> handler) = 0;
    virtual void add(const NotificationRequest &request) = 0;
    /// Gives the notification of this identifier its picture. Nothing happens when it no longer shows.
    virtual void setImage(const QString &identifier, const QImage &image) = 0;

    static std::shared_ptr<NotificationCenter> create();
};
