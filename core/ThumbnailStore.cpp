#include "ThumbnailStore.h"

#include "ConversionActivity.h"
#include "ImageWorker.h"
#include "ImageWorkerLauncher.h"
#include "PhotoFile.h"

namespace {

// A thumbnail takes up to 230,400 bytes, so this many stay below 8 MiB.
constexpr int maximumCount = 24;

// Each worker takes a core and some tens of megabytes. A conversion must not wait for thumbnails.
constexpr int maximumReaders = 2;

ThumbnailStore *replacement = nullptr;

QImage readThumbnail(ImageWorkerLauncher &launcher, const QUrl &url)
{
    const FileDescriptor photo = openPhoto(url);
    if (!photo.isOpen()) {
        return {};
    }
    const std::unique_ptr<ImageWorker> worker = launcher.launch();
    if (!worker->open(photo)) {
        return {};
    }
    return worker->thumbnail(ThumbnailStore::maximumSide).value_or(QImage());
}

} // namespace

ThumbnailRequest::ThumbnailRequest(Answer answer)
    : m_answer(std::make_shared<Answer>(std::move(answer)))
{}

ThumbnailRequest::~ThumbnailRequest() = default;

ThumbnailStore::ThumbnailStore(std::shared_ptr<ImageWorkerLauncher> launcher,
                               std::chrono::milliseconds longestWait)
    : m_cache(maximumCount)
    , m_launcher(std::move(launcher))
    , m_longestWait(longestWait)
{
    ConversionActivity::addPreviews(m_launcher);
    m_readers.setMaxThreadCount(maximumReaders);
    m_readers.setThreadPriority(QThread::LowPriority);
}

ThumbnailStore::~ThumbnailStore()
{
    m_readers.clear();
    m_launcher->endAll();
    m_readers.waitForDone();
    if (replacement == this) {
        replacement = nullptr;
    }
}

ThumbnailStore &ThumbnailStore::shared()
{
    if (replacement) {
        return *replacement;
    }
    static ThumbnailStore store(ImageWorkerLauncher::create());
    return store;
}

void ThumbnailStore::setShared(ThumbnailStore *store)
{
    replacement = store;
}

std::unique_ptr<ThumbnailRequest> ThumbnailStore::image(const QUrl &url, ThumbnailRequest::Answer answer)
{
    if (const QImage *known = m_cache.object(url)) {
        answer(*known);
        return nullptr;
    }
    auto request = std::make_unique<ThumbnailRequest>(std::move(answer));
    m_readers.start([this, url, waiting = std::weak_ptr(request->m_answer)] {
        if (waiting.expired()) {
            return; // cancelled before its turn
        }
        ConversionActivity::awaitNone(m_longestWait);
        const QImage image = readThumbnail(*m_launcher, url);
        QMetaObject::invokeMethod(
            this, [this, url, waiting, image] { finish(url, waiting, image); }, Qt::QueuedConnection);
    });
    return request;
}

void ThumbnailStore::finish(const QUrl &url, const std::weak_ptr<ThumbnailRequest::Answer> &waiting,
                            const QImage &image)
{
    const std::shared_ptr<ThumbnailRequest::Answer> answer = waiting.lock();
    if (!answer) {
        return;
    }
    if (!image.isNull()) {
        m_cache.insert(url, new QImage(image));
    }
    (*answer)(image);
}
