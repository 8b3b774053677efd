#pragma once

#include "StatusItem.h"
#include "StatusNotifierMenuTypes.h"

#include <QDBusConnection>
#include <QDBusVariant>

/// The status item's menu on the bus, by `com.canonical.dbusmenu` version 3. The root has the number 0, its
/// entries are numbered from 1 in their order; there are no submenus.
class StatusNotifierMenu : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")
    Q_PROPERTY(uint Version READ version CONSTANT)
    Q_PROPERTY(QString Status READ status CONSTANT)
    Q_PROPERTY(QString TextDirection READ textDirection CONSTANT)
    Q_PROPERTY(QStringList IconThemePath READ iconThemePath CONSTANT)

public:
    inline static const QString objectPath = QStringLiteral("/MenuBar");

    explicit StatusNotifierMenu(const QDBusConnection &bus, QObject *parent = nullptr);
    ~StatusNotifierMenu() override;

    void setEntries(const QList<StatusMenuEntry> &entries);

    static uint version() { return 3; }
    static QString status() { return QStringLiteral("normal"); }
    static QString textDirection();
    static QStringList iconThemePath() { return {}; }

    // NOLINTBEGIN(readability-identifier-naming): the names on the bus.
public Q_SLOTS:
    uint GetLayout(int parentId, int recursionDepth, const QStringList &propertyNames,
                   StatusNotifierMenuNode &layout) const;
    /// Of all entries, when `ids` is empty.
    StatusNotifierMenuProperties GetGroupProperties(const QList<int> &ids,
                                                    const QStringList &propertyNames) const;
    QDBusVariant GetProperty(int id, const QString &name) const;
    void Event(int id, const QString &eventId, const QDBusVariant &data, uint timestamp);
    QList<int> EventGroup(const StatusNotifierMenuEvents &events);
    static bool AboutToShow(int id);
    static QList<int> AboutToShowGroup(const QList<int> &ids, QList<int> &idErrors);

Q_SIGNALS:
    void LayoutUpdated(uint revision, int parent);
    // NOLINTEND(readability-identifier-naming)

private:
    QList<int> allIds() const;
    const StatusMenuEntry *find(int id) const;
    StatusNotifierMenuNode nodeOf(int id) const;
    QVariantMap propertiesOf(int id) const;

    QDBusConnection m_bus;
    QList<StatusMenuEntry> m_entries;
    uint m_revision = 1;
};
