#pragma once

#include "StatusItem.h"
#include "StatusNotifierTypes.h"

#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QDBusServiceWatcher>

class StatusNotifierMenu;

/// A status item by `org.kde.StatusNotifierItem`, whose hosts are desktop panels. It registers whenever a
/// watcher comes to the bus, and tells whether any host shows it.
class StatusNotifierItem : public StatusItem
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
    Q_PROPERTY(QString Category READ category CONSTANT)
    Q_PROPERTY(QString Id READ id CONSTANT)
    Q_PROPERTY(QString Title READ title CONSTANT)
    Q_PROPERTY(QString Status READ status CONSTANT)
    Q_PROPERTY(uint WindowId READ windowId CONSTANT)
    Q_PROPERTY(bool ItemIsMenu READ itemIsMenu CONSTANT)
    Q_PROPERTY(QDBusObjectPath Menu READ menu CONSTANT)
    Q_PROPERTY(StatusNotifierPixmaps IconPixmap READ iconPixmap NOTIFY NewIcon)
    Q_PROPERTY(QString IconAccessibleDesc READ iconAccessibleDesc NOTIFY NewIcon)
    Q_PROPERTY(StatusNotifierToolTip ToolTip READ toolTip NOTIFY NewToolTip)

public:
    explicit StatusNotifierItem(const QDBusConnection &bus, QObject *parent = nullptr);
    ~StatusNotifierItem() override;

    void setLook(const StatusItemLook &look) override;
    void setMenu(const QList<StatusMenuEntry> &entries) override;
    /// Where the last click was.
    std::optional<QRect> place() const override { return m_place; }
    bool isShown() const override { return m_hasHost; }

    static QString category() { return QStringLiteral("ApplicationStatus"); }
    static QString id() { return QStringLiteral("io.lumaport.Lumaport"); }
    static QString title() { return QStringLiteral("Lumaport"); }
    static QString status() { return QStringLiteral("Active"); }
    static uint windowId() { return 0; }
    static bool itemIsMenu() { return false; }
    static QDBusObjectPath menu();
    StatusNotifierPixmaps iconPixmap() const;
    QString iconAccessibleDesc() const { return m_look.accessibilityLabel; }
    StatusNotifierToolTip toolTip() const;

    // NOLINTBEGIN(readability-identifier-naming): the names on the bus.
public Q_SLOTS:
    Q_SCRIPTABLE void Activate(int x, int y);
    Q_SCRIPTABLE void SecondaryActivate(int x, int y);
    Q_SCRIPTABLE void ContextMenu(int x, int y);
    Q_SCRIPTABLE void Scroll(int delta, const QString &orientation);
    Q_SCRIPTABLE void ProvideXdgActivationToken(const QString &token);

Q_SIGNALS:
    Q_SCRIPTABLE void NewIcon();
    Q_SCRIPTABLE void NewToolTip();
    // NOLINTEND(readability-identifier-naming)
    /// A host began to show items, or the last one went; also says so once after the start.
    void hostPresenceChanged(bool isPresent);

private Q_SLOTS:
    void askForHost();

private:
    void registerWithWatcher();

    QDBusConnection m_bus;
    QDBusServiceWatcher m_watcher;
    std::unique_ptr<StatusNotifierMenu> m_menu;
    QString m_serviceName;
    StatusItemLook m_look;
    std::optional<QRect> m_place;
    bool m_hasHost = false;
};
