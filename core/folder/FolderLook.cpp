#include "FolderLook.h"

#include <QObject>

#include <mutex>
#include <thread>

struct FolderLook::State
{
    std::mutex lock;
    QObject *receiver = nullptr; ///< null once the look is destroyed
    std::function<void(const std::optional<FolderListing::Contents> &)> done;
};

FolderLook::FolderLook(const QUrl &folder, QObject *receiver,
                       std::function<void(const std::optional<FolderListing::Contents> &)> done)
    : m_state(std::make_shared<State>())
{
    m_state->receiver = receiver;
    m_state->done = std::move(done);
    // Detached: nothing can end a thread that waits for a file system.
    std::thread([state = m_state, folder] {
        const auto contents = FolderListing::contents(folder);
        const std::lock_guard guard(state->lock);
        if (state->receiver) {
            QMetaObject::invokeMethod(
                state->receiver,
                [state, contents] {
                    if (state->receiver) { // changes on this thread only
                        state->done(contents);
                    }
                },
                Qt::QueuedConnection);
        }
    }).detach();
}

FolderLook::~FolderLook()
{
    const std::lock_guard guard(m_state->lock);
    m_state->receiver = nullptr;
}
