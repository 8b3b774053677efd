#include "StatusNotifierMenuTypes.h"

#include <QDBusMetaType>

QDBusArgument &operator<<(QDBusArgument &argument, const StatusNotifierMenuNode &node)
{
    argument.beginStructure();
    argument << node.id << node.properties;
    argument.beginArray(qMetaTypeId<QDBusVariant>());
    for (const StatusNotifierMenuNode &child : node.children) {
        argument << QDBusVariant(QVariant::fromValue(child));
    }
    argument.endArray();
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, StatusNotifierMenuNode &node)
{
    argument.beginStructure();
    argument >> node.id >> node.properties;
    argument.beginArray();
    while (!argument.atEnd()) {
        QDBusVariant child;
        argument >> child;
        node.children.append(qdbus_cast<StatusNotifierMenuNode>(child.variant()));
    }
    argument.endArray();
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const StatusNotifierMenuProperty &property)
{
    argument.beginStructure();
    argument << property.id << property.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, StatusNotifierMenuProperty &property)
{
    argument.beginStructure();
    argument >> property.id >> property.properties;
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const StatusNotifierMenuEvent &event)
{
    argument.beginStructure();
    argument << event.id << event.eventId << event.data << event.timestamp;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, StatusNotifierMenuEvent &event)
{
    argument.beginStructure();
    argument >> event.id >> event.eventId >> event.data >> event.timestamp;
    argument.endStructure();
    return argument;
}

void registerStatusNotifierMenuTypes()
{
    qDBusRegisterMetaType<QList<int>>();
    qDBusRegisterMetaType<StatusNotifierMenuNode>();
    qDBusRegisterMetaType<StatusNotifierMenuProperty>();
    qDBusRegisterMetaType<StatusNotifierMenuProperties>();
    qDBusRegisterMetaType<StatusNotifierMenuEvent>();
    qDBusRegisterMetaType<StatusNotifierMenuEvents>();
}
