#pragma once

#include "StatusItem.h"

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
    std::optional<QRect> place() const override { return placeOnScreen; }
    bool isShown() const override { return shown; }

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
    std::optional<QRect> placeOnScreen;
    bool shown = true;
};
