#pragma once

#include "Workspace.h"

#include <QDBusConnection>
#include <QObject>

/// File managers by `org.freedesktop.FileManager1` (File Manager D-Bus Interface), else by the desktop's
/// default program.
class DesktopWorkspace : public QObject, public Workspace
{
    Q_OBJECT

public:
    explicit DesktopWorkspace(const QDBusConnection &bus);

    void reveal(const QUrl &file, const QString &activationToken) override;
    void open(const QUrl &folder) override;

private:
    QDBusConnection m_bus;
};
