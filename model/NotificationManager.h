#pragma once

#include <QCoreApplication>
#include <QUrl>

#include <map>
#include <memory>

class NotificationCenter;
class ThumbnailRequest;
class Workspace;
struct NotificationResponse;

/// Announces each photo that became ready, and shows the converted file in the file manager when its
/// notification is clicked. Nothing here reports an error.
class NotificationManager
{
    Q_DECLARE_TR_FUNCTIONS(NotificationManager)

public:
    /// The one of the process, made on first use.
    static NotificationManager &shared();

    NotificationManager(std::shared_ptr<NotificationCenter> center, std::shared_ptr<Workspace> workspace);
    ~NotificationManager();
    NotificationManager(const NotificationManager &) = delete;
    NotificationManager &operator=(const NotificationManager &) = delete;

    /// From now on clicks are answered. This desktop asks for no permission to notify.
    void configure();
    void notifyConversionFinished(const QUrl &outputURL);
    /// For the end of the last window where no tray shows the status item.
    void notifyStillWatching();

private:
    void didReceive(const NotificationResponse &response) const;

    std::shared_ptr<NotificationCenter> m_center;
    std::shared_ptr<Workspace> m_workspace;
    std::map<QString, std::unique_ptr<ThumbnailRequest>> m_pictures; ///< by notification
};
