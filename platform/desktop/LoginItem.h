#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>

/// Whether the desktop starts the program at login: an entry in the user's autostart folder, which other
/// programs may change, too.
class LoginItem : public QObject
{
    Q_OBJECT

public:
    /// `folder` holds the autostart entries; it need not exist.
    explicit LoginItem(const QString &folder, QObject *parent = nullptr);

    /// The autostart folder of the user, by the XDG autostart convention.
    static QString userFolder();

    bool isEnabled() const { return m_isEnabled; }
    /// Writes or removes the entry. Where that fails, the state stays.
    void setEnabled(bool enabled);

Q_SIGNALS:
    void enabledChanged();

private:
    void look();

    QString m_file;
    QFileSystemWatcher m_watcher;
    bool m_isEnabled = false;
};
