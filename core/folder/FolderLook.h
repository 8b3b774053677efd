#pragma once

#include "FolderListing.h"

#include <functional>
#include <memory>

class QObject;

/// Lists a folder on a thread of its own: a folder of another machine may take long to answer, or never do.
class FolderLook
{
public:
    /// `done` is called on the thread of `receiver`, which lives at least as long as this look; not at all
    /// when this look is destroyed before.
    FolderLook(const QUrl &folder, QObject *receiver,
               std::function<void(const std::optional<FolderListing::Contents> &)> done);
    ~FolderLook();
    FolderLook(const FolderLook &) = delete;
    FolderLook &operator=(const FolderLook &) = delete;

private:
    struct State;

    std::shared_ptr<State> m_state;
};
