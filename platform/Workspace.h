#pragma once

#include <QUrl>

#include <memory>

/// The desktop's file manager.
class Workspace
{
public:
    virtual ~Workspace() = default;

    /// Shows the folder of `file` with the file selected; where no file manager can do that, just the folder.
    /// Silent when there is none.
    virtual void reveal(const QUrl &file) = 0;

    /// Opens a folder. Silent when nothing can.
    virtual void open(const QUrl &folder) = 0;

    static std::unique_ptr<Workspace> create();
};
