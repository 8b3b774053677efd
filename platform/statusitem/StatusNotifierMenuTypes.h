#pragma once

#include <QDBusArgument>
#include <QDBusVariant>
#include <QList>
#include <QVariantMap>

/// An entry of a menu on the bus, with those below it: `(ia{sv}av)`.
struct StatusNotifierMenuNode
{
    int id = 0;
    QVariantMap properties;
    QList<StatusNotifierMenuNode> children;
};
Q_DECLARE_METATYPE(StatusNotifierMenuNode)

/// What one entry looks like: `(ia{sv})`.
struct StatusNotifierMenuProperty
{
    int id = 0;
    QVariantMap properties;
};
using StatusNotifierMenuProperties = QList<StatusNotifierMenuProperty>;
Q_DECLARE_METATYPE(StatusNotifierMenuProperty)
Q_DECLARE_METATYPE(StatusNotifierMenuProperties)

/// What happened to one entry: `(isvu)`.
struct StatusNotifierMenuEvent
{
    int id = 0;
    QString eventId;
    QDBusVariant data;
    uint timestamp = 0;
};
using StatusNotifierMenuEvents = QList<StatusNotifierMenuEvent>;
Q_DECLARE_METATYPE(StatusNotifierMenuEvent)
Q_DECLARE_METATYPE(StatusNotifierMenuEvents)

QDBusArgument &operator<<(QDBusArgument &argument, const StatusNotifierMenuNode &node);
const QDBusArgument &operator>>(const QDBusArgument &argument, StatusNotifierMenuNode &node);
QDBusArgument &operator<<(QDBusArgument &argument, const StatusNotifierMenuProperty &property);
const QDBusArgument &operator>>(const QDBusArgument &argument, StatusNotifierMenuProperty &property);
QDBusArgument &operator<<(QDBusArgument &argument, const StatusNotifierMenuEvent &event);
const QDBusArgument &operator>>(const QDBusArgument &argument, StatusNotifierMenuEvent &event);

/// To be called before any of these goes over the bus.
void registerStatusNotifierMenuTypes();
