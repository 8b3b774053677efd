#pragma once

#include <QDBusConnection>
#include <QDeadlineTimer>
#include <QList>
#include <QLockFile>
#include <QObject>
#include <QUrl>
#include <QVariantMap>

/// One process for each session: the first one owns the application's bus name and answers the others'
/// requests by `org.freedesktop.Application` (the desktop entry standard, "D-Bus Activation"). Without a bus
/// it owns a lock file, and the others' requests fail.
class SingleInstance : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    explicit SingleInstance(const QDBusConnection &bus, QObject *parent = nullptr);
    ~SingleInstance() override;

    /// Whether the bus started this process, so that a window opens only when a call asks for it. Forgets it,
    /// so that programs started by this one do not take it for theirs.
    static bool takeStartByBus();

    /// True when this process is the first.
    bool claim();

    /// Asks the first process to show its window, with the files that this one was given, and waits until it
    /// has, as long as `patience` lasts. False when it did not: it may just be ending.
    bool forward(const QList<QUrl> &files, const QDeadlineTimer &patience) const;

    // NOLINTBEGIN(readability-identifier-naming): the names on the bus.
public Q_SLOTS:
    void Activate(const QVariantMap &platformData);
    void Open(const QStringList &uris, const QVariantMap &platformData);
    void ActivateAction(const QString &action, const QVariantList &parameter,
                        const QVariantMap &platformData);
    // NOLINTEND(readability-identifier-naming)

Q_SIGNALS:
    void activated();
    void opened(const QList<QUrl> &files);

private:
    QDBusConnection m_bus;
    QLockFile m_lock;
    bool m_isClaimed = false;
};
