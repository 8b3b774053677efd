#pragma once

#include "SystemAppearance.h"
#include "SystemAppearanceSingleton.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <QtMath>

#include <memory>

/// A window with one QML item in it and an appearance of its own, for tests of what only a view can do. Any
/// warning of the QML engine fails the test.
class Scene
{
public:
    Scene() { SystemAppearanceSingleton::provide(appearance); }

    /// Shows the item that `qml` describes, at its own size; its imports are given by the test, and
    /// `properties` what it requires.
    QQuickItem *show(const char *qml, const QVariantMap &properties = {})
    {
        QObject::connect(&engine, &QQmlEngine::warnings, &engine, [](const QList<QQmlError> &warnings) {
            QFAIL(qPrintable(warnings.constFirst().toString()));
        });
        QQmlComponent component(&engine);
        component.setData(qml, QUrl(QStringLiteral("qrc:/scene.qml")));
        if (component.isReady()) {
            m_item.reset(qobject_cast<QQuickItem *>(component.createWithInitialProperties(properties)));
        }
        if (!m_item) {
            qFatal("%s", qPrintable(component.errorString()));
        }
        m_item->setParentItem(window.contentItem());
        window.resize(std::max(1, qCeil(m_item->width())), std::max(1, qCeil(m_item->height())));
        window.show();
        window.requestActivate();
        (void)QTest::qWaitForWindowActive(&window);
        return m_item.get();
    }

    /// Ends the shown item, before what it shows ends.
    void close() { m_item.reset(); }

    /// The visible item with this object name anywhere below the shown one; nothing when there is none.
    QQuickItem *find(const QString &name) const { return find(m_item.get(), name); }

    QPoint centre(const QQuickItem *item) const
    {
        return item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint();
    }
    void click(const QQuickItem *item)
    {
        window.grabWindow(); // rows that were just made are laid out with the next frame
        QTest::mouseClick(&window, Qt::LeftButton, {}, centre(item));
    }
    void hover(const QQuickItem *item) { QTest::mouseMove(&window, centre(item)); }
    void press(Qt::Key key) { QTest::keyClick(&window, key); }

    SystemAppearance appearance;
    QQmlEngine engine;
    QQuickWindow window;

private:
    static QQuickItem *find(QQuickItem *item, const QString &name)
    {
        if (item->objectName() == name && item->isVisible()) {
            return item;
        }
        for (QQuickItem *child : item->childItems()) {
            if (QQuickItem *found = find(child, name)) {
                return found;
            }
        }
        return nullptr;
    }

    std::unique_ptr<QQuickItem> m_item;
};
