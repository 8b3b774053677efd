#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QMetaClassInfo>
#include <QObject>

/// A service of the desktop on a bus connection of its own. Its public slots and properties are its
/// interface.
class FakeService : public QObject
{
public:
    /// Still without its name: nobody finds it until it comes.
    FakeService(const QString &name, const QString &path)
        : bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, name))
        , m_name(name)
        , m_path(path)
    {
        bus.registerObject(path, this,
                           QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllProperties);
    }
    ~FakeService() override
    {
        leave();
        QDBusConnection::disconnectFromBus(m_name);
    }
    Q_DISABLE_COPY_MOVE(FakeService)

    void come() { bus.registerService(m_name); }
    void leave() { bus.unregisterService(m_name); }

    void emitSignal(const QString &name, const QVariantList &arguments = {})
    {
        const QMetaObject &type = *metaObject();
        const char *interface = type.classInfo(type.indexOfClassInfo("D-Bus Interface")).value();
        QDBusMessage signal = QDBusMessage::createSignal(m_path, QLatin1String(interface), name);
        signal.setArguments(arguments);
        bus.send(signal);
    }
    void refuse(const QDBusMessage &call, const QString &error) const
    {
        call.setDelayedReply(true);
        bus.send(call.createErrorReply(error, QString()));
    }

    QDBusConnection bus;

private:
    QString m_name;
    QString m_path;
};
