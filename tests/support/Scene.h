#pragma once

#include "SystemAppearance.h"
#include "SystemAppearanceSingleton.h"

#include <QAccessible>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QRegularExpression>
#include <QTest>
#include <QtMath>

#include <functional>
#include <memory>

/// A window with one QML item in it and an appearance of its own, for tests of what only a view can do. A
/// warning of the QML engine, or one of a symbol that does not exist, fails the test.
class Scene
{
public:
    Scene()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral("symbol")));
        SystemAppearanceSingleton::provide(appearance);
    }

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

    /// The visible items below `root`, and it itself, that satisfy `condition`; `root` is the shown item
    /// unless given. Parents come before their children.
    QList<QQuickItem *> all(const std::function<bool(const QQuickItem &)> &condition,
                            QQuickItem *root = nullptr) const
    {
        QList<QQuickItem *> found;
        QQuickItem *item = root ? root : m_item.get();
        if (item->isVisible() && condition(*item)) {
            found << item;
        }
        for (QQuickItem *child : item->childItems()) {
            found << all(condition, child);
        }
        return found;
    }
    /// Those with this object name.
    QList<QQuickItem *> all(const QString &name, QQuickItem *root = nullptr) const
    {
        return all([&](const QQuickItem &item) { return item.objectName() == name; }, root);
    }
    /// The first of them; nothing when there is none.
    QQuickItem *find(const QString &name, QQuickItem *root = nullptr) const
    {
        return all(name, root).value(0);
    }
    /// The visible item that shows this text; nothing when there is none.
    QQuickItem *findText(const QString &text, QQuickItem *root = nullptr) const
    {
        return all(
                   [&](const QQuickItem &item) {
                       return item.inherits("QQuickText") && item.property("text") == text;
                   },
                   root)
            .value(0);
    }
    /// The visible texts below `room` that are elided, or that reach beyond their items' or the room's sides.
    QStringList cutTexts(QQuickItem *room) const
    {
        const auto isCut = [room](const QQuickItem &item) {
            if (!item.inherits("QQuickText") || item.opacity() == 0.0) {
                return false;
            }
            const QRectF place = item.mapRectToItem(room, item.boundingRect());
            return item.property("truncated").toBool() || place.left() < -0.5 ||
                   place.right() > room->width() + 0.5 ||
                   item.property("contentWidth").toDouble() - item.width() >= 1.0;
        };
        QStringList texts;
        for (const QQuickItem *item : all(isCut, room)) {
            texts << item->property("text").toString();
        }
        return texts;
    }

    /// The item as assistive programs see it.
    static QAccessibleInterface *accessible(QQuickItem *item)
    {
        return QAccessible::queryAccessibleInterface(item);
    }

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
    std::unique_ptr<QQuickItem> m_item;
};
