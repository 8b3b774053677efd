#pragma once

#include <QString>
#include <QUrl>

#include <memory>

/// The desktop's file manager.
class Workspace
{
public:
    virtual ~Workspace() = default;

    /// Shows the folder of `file` with the file selected; where no file manager can do that, just the folder.
    /// Silent when there is none. By `activationToken` the file manager's window may come to the front.
    virtual void reveal(const QUrl &file, const QString &activationToken) = 0;

    /// Opens a folder. Silent when nothing can.
    virtual void open(const QUrl &folder) = 0;

    static std::unique_ptr<Workspace> create();
};
