#pragma once

#include "AppDelegate.h"
#include "AppModelSingleton.h"
#include "ModelFixture.h"
#include "PanelWindow.h"
#include "StatusItem.h"
#include "SystemAppearanceSingleton.h"

#include <QGuiApplication>
#include <QQmlEngine>
#include <QTest>

/// A status item in the test's hands.
struct RecordingStatusItem : StatusItem
{
    void setLook(const StatusItemLook &newLook) override
    {
        look = newLook;
        ++looks;
    }
    void setMenu(const QList<StatusMenuEntry> &newEntries) override
    {
        entries = newEntries;
        ++menus;
    }
    std::optional<QRect> place() const override { return where; }

    /// The command of this title; it must be there once.
    const StatusMenuEntry &command(const QString &title) const
    {
        for (const StatusMenuEntry &entry : entries) {
            if (entry.title == title) {
                return entry;
            }
        }
        qFatal("no command \"%s\"", qPrintable(title));
    }

    StatusItemLook look;
    int looks = 0;
    QList<StatusMenuEntry> entries;
    int menus = 0;
    std::optional<QRect> where;
};

/// The delegate with a model, its panel and a status item, on a desktop without any tray.
class ShellFixture : public ModelFixture
{
public:
    ShellFixture()
    {
        SystemAppearanceSingleton::provide(*appearance);
        AppModelSingleton::provide(launch());
        QObject::connect(&qmlEngine, &QQmlEngine::warnings, &qmlEngine, [](const QList<QQmlError> &warnings) {
            QFAIL(qPrintable(warnings.constFirst().toString()));
        });
    }

    void configureMenuBar()
    {
        delegate.configureMenuBar(model(), [this] { ++mainOpened; });
    }

    /// The panel's window.
    static PanelWindow *panelWindow()
    {
        const QWindowList windows = QGuiApplication::topLevelWindows();
        for (QWindow *window : windows) {
            if (auto *found = qobject_cast<PanelWindow *>(window)) {
                return found;
            }
        }
        qFatal("the panel has no window");
    }

    int mainOpened = 0;
    int itemsMade = 0;
    RecordingStatusItem *item = nullptr;
    QQmlEngine qmlEngine;
    AppDelegate delegate{qmlEngine, jobs, [this] {
                             auto made = std::make_unique<RecordingStatusItem>();
                             item = made.get();
                             ++itemsMade;
                             return made;
                         }};
};
