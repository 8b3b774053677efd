#pragma once

#include <QString>
#include <QUrl>

#include <memory>

class NotificationCenter;
class Workspace;
struct NotificationResponse;

/// The one front to the desktop's notifications: announces each photo that became ready, and shows the
/// converted file in the file manager when its notification is clicked. Nothing here reports an error.
class NotificationManager
{
public:
    enum class Authorization { leave, request };

    /// The one of the process, made on first use.
    static NotificationManager &shared();

    NotificationManager(std::shared_ptr<NotificationCenter> center, std::shared_ptr<Workspace> workspace);

    /// Registers the category of finished photos, once; asks for permission each time that is wanted.
    void configure(Authorization authorization);
    void requestAuthorization();
    void notifyConversionFinished(const QUrl &outputURL);

private:
    void didReceive(const NotificationResponse &response) const;

    std::shared_ptr<NotificationCenter> m_center;
    std::shared_ptr<Workspace> m_workspace;
    bool m_isConfigured = false;
};
