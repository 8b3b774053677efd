#pragma once

#include <QDBusConnection>
#include <QList>
#include <QObject>
#include <QUrl>
#include <QVariantMap>

/// One process for each session: the first one owns the application's bus name and answers the others'
/// requests by `org.freedesktop.Application` (the desktop entry standard, "D-Bus Activation").
class SingleInstance : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    explicit SingleInstance(const QDBusConnection &bus, QObject *parent = nullptr);
    ~SingleInstance() override;

    /// True when this process is the first, or when there is no bus to ask.
    bool claim();

    /// Asks the first process to show its window, with the files that this one was given, and waits until it
    /// has. False when it did not: it may just be ending.
    bool forward(const QList<QUrl> &files) const;

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
    bool m_isClaimed = false;
};
