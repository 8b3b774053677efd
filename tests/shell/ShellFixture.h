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

#include <algorithm>

/// A status item that keeps what it was given.
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
    std::optional<QRect> place() const override { return {}; }

    /// The command of this title; one without an action when there is none.
    StatusMenuEntry command(const QString &title) const
    {
        const auto found = std::ranges::find(entries, title, &StatusMenuEntry::title);
        return entries.value(found - entries.begin());
    }

    StatusItemLook look;
    int looks = 0;
    QList<StatusMenuEntry> entries;
    int menus = 0;
};

/// The delegate with a model, its panel and a status item, on a desktop without a tray.
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
        delegate.configureMenuBar(model(), [this] { ++mainOpened; });
        const QWindowList windows = QGuiApplication::topLevelWindows();
        for (QWindow *window : windows) {
            if (auto *found = qobject_cast<PanelWindow *>(window)) {
                panelWindow = found;
            }
        }
    }

    int mainOpened = 0;
    RecordingStatusItem *item = nullptr;
    PanelWindow *panelWindow = nullptr;
    QQmlEngine qmlEngine;
    AppDelegate delegate{qmlEngine, jobs, [this] {
                             auto made = std::make_unique<RecordingStatusItem>();
                             item = made.get();
                             return made;
                         }};
};
