#include "StatusNotifierMenu.h"

#include <QGuiApplication>

#include <numeric>

namespace {

constexpr int rootId = 0;

} // namespace

StatusNotifierMenu::StatusNotifierMenu(const QDBusConnection &bus, QObject *parent)
    : QObject(parent)
    , m_bus(bus)
{
    registerStatusNotifierMenuTypes();
    m_bus.registerObject(objectPath, this,
                         QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals |
                             QDBusConnection::ExportAllProperties);
}

StatusNotifierMenu::~StatusNotifierMenu()
{
    m_bus.unregisterObject(objectPath);
}

void StatusNotifierMenu::setEntries(const QList<StatusMenuEntry> &entries)
{
    m_entries = entries;
    ++m_revision;
    Q_EMIT LayoutUpdated(m_revision, rootId);
}

QString StatusNotifierMenu::textDirection()
{
    return QGuiApplication::isRightToLeft() ? QStringLiteral("rtl") : QStringLiteral("ltr");
}

uint StatusNotifierMenu::GetLayout(int parentId, int recursionDepth, const QStringList & /*propertyNames*/,
                                   StatusNotifierMenuNode &layout) const
{
    layout = nodeOf(parentId);
    if (parentId == rootId && recursionDepth != 0) {
        for (int id = 1; id <= m_entries.size(); ++id) {
            layout.children.append(nodeOf(id));
        }
    }
    return m_revision;
}

StatusNotifierMenuProperties
StatusNotifierMenu::GetGroupProperties(const QList<int> &ids, const QStringList & /*propertyNames*/) const
{
    StatusNotifierMenuProperties properties;
    for (const int id : ids.isEmpty() ? allIds() : ids) {
        if (id == rootId || find(id) != nullptr) {
            properties.append({.id = id, .properties = propertiesOf(id)});
        }
    }
    return properties;
}

QDBusVariant StatusNotifierMenu::GetProperty(int id, const QString &name) const
{
    return QDBusVariant(propertiesOf(id).value(name, QString()));
}

void StatusNotifierMenu::Event(int id, const QString &eventId, const QDBusVariant & /*data*/,
                               uint /*timestamp*/)
{
    const StatusMenuEntry *entry = find(id);
    if (entry != nullptr && entry->isEnabled && entry->action && eventId == QLatin1String("clicked")) {
        const auto action = entry->action; // which may change the entries
        action();
    }
}

QList<int> StatusNotifierMenu::EventGroup(const StatusNotifierMenuEvents &events)
{
    QList<int> unknown;
    for (const StatusNotifierMenuEvent &event : events) {
        if (find(event.id) == nullptr) {
            unknown.append(event.id);
        } else {
            Event(event.id, event.eventId, event.data, event.timestamp);
        }
    }
    return unknown;
}

bool StatusNotifierMenu::AboutToShow(int /*id*/)
{
    return false; // the layout is always up to date
}

QList<int> StatusNotifierMenu::AboutToShowGroup(const QList<int> & /*ids*/, QList<int> &idErrors)
{
    idErrors.clear();
    return {};
}

QList<int> StatusNotifierMenu::allIds() const
{
    QList<int> ids(m_entries.size() + 1);
    std::iota(ids.begin(), ids.end(), rootId);
    return ids;
}

const StatusMenuEntry *StatusNotifierMenu::find(int id) const
{
    return id > rootId && id <= m_entries.size() ? &m_entries.at(id - 1) : nullptr;
}

StatusNotifierMenuNode StatusNotifierMenu::nodeOf(int id) const
{
    return {.id = id, .properties = propertiesOf(id), .children = {}};
}

QVariantMap StatusNotifierMenu::propertiesOf(int id) const
{
    if (id == rootId) {
        return {{QStringLiteral("children-display"), QStringLiteral("submenu")}};
    }
    const StatusMenuEntry *entry = find(id);
    if (entry == nullptr) {
        return {};
    }
    if (entry->kind == StatusMenuEntry::Kind::separator) {
        return {{QStringLiteral("type"), QStringLiteral("separator")}};
    }
    // An underscore would mark the letter after it as the entry's access key.
    QString label = entry->title;
    label.replace(QLatin1Char('_'), QLatin1String("__"));
    QVariantMap properties{{QStringLiteral("label"), label}, {QStringLiteral("enabled"), entry->isEnabled}};
    if (entry->isChecked) {
        properties.insert(QStringLiteral("toggle-type"), entry->kind == StatusMenuEntry::Kind::toggle
                                                             ? QStringLiteral("checkmark")
                                                             : QStringLiteral("radio"));
        properties.insert(QStringLiteral("toggle-state"), *entry->isChecked ? 1 : 0);
    }
    return properties;
}
