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

/// One file being read, for as long as a request wants it.
struct ThumbnailRequest::Reading
{
    QList<std::weak_ptr<Answer>> answers;
};

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
    request->m_reading = m_readings.value(url).lock();
    if (!request->m_reading) {
        request->m_reading = startReading(url);
    }
    request->m_reading->answers.append(request->m_answer);
    return request;
}

std::shared_ptr<ThumbnailStore::Reading> ThumbnailStore::startReading(const QUrl &url)
{
    auto reading = std::make_shared<Reading>();
    m_readings.removeIf([](const auto &known) { return known.value().expired(); });
    m_readings.insert(url, reading);
    m_readers.start([this, url, wanted = std::weak_ptr(reading)] {
        if (wanted.expired()) {
            return; // cancelled before its turn
        }
        ConversionActivity::awaitNone(m_longestWait);
        const QImage image = readThumbnail(*m_launcher, url);
        QMetaObject::invokeMethod(
            this, [this, url, wanted, image] { finish(url, wanted, image); }, Qt::QueuedConnection);
    });
    return reading;
}

void ThumbnailStore::finish(const QUrl &url, const std::weak_ptr<Reading> &wanted, const QImage &image)
{
    const std::shared_ptr<Reading> reading = wanted.lock();
    if (!reading) {
        return;
    }
    m_readings.remove(url);
    if (!image.isNull()) {
        m_cache.insert(url, new QImage(image));
    }
    for (const std::weak_ptr<ThumbnailRequest::Answer> &waiting : std::as_const(reading->answers)) {
        if (const std::shared_ptr<ThumbnailRequest::Answer> answer = waiting.lock()) {
            (*answer)(image);
        }
    }
}
