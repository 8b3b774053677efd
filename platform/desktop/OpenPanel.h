#pragma once

#include <QList>
#include <QString>
#include <QUrl>

#include <functional>
#include <memory>

/// What an open panel shows and lets the user choose.
struct OpenPanelRequest
{
    enum class Choice {
        oneFolder,
        photoFiles, ///< several files, HEIC and HEIF only
    };

    Choice choice = Choice::photoFiles;
    QString title;
    QString prompt; ///< the text of the button that accepts
    QUrl folder;    ///< where it opens; empty: where the desktop chooses
};

/// Asks the user for files or for a folder.
class OpenPanel
{
public:
    virtual ~OpenPanel() = default;

    /// Shows the panel over the application's main window, which is blocked until it closes, and returns at
    /// once. `chosen` is called when the user accepts with at least one URL, and not at all when the user
    /// cancels. A panel that is shown already stays the only one.
    virtual void show(const OpenPanelRequest &request, std::function<void(const QList<QUrl> &)> chosen) = 0;

    static std::unique_ptr<OpenPanel> create();
};
