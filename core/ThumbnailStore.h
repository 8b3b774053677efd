#pragma once

#include <QCache>
#include <QHash>
#include <QImage>
#include <QObject>
#include <QThreadPool>
#include <QUrl>

#include <chrono>
#include <functional>
#include <memory>

class ImageWorkerLauncher;

/// A request for one thumbnail. Destroying it cancels the request; its answer is dropped.
class ThumbnailRequest
{
public:
    using Answer = std::function<void(const QImage &)>;

    explicit ThumbnailRequest(Answer answer);
    ~ThumbnailRequest();
    ThumbnailRequest(const ThumbnailRequest &) = delete;
    ThumbnailRequest &operator=(const ThumbnailRequest &) = delete;

private:
    friend class ThumbnailStore;
    struct Reading;

    std::shared_ptr<Answer> m_answer;
    std::shared_ptr<Reading> m_reading;
};

/// Small pictures of photo files. The most recent are kept in memory.
///
/// Used on the main thread. Image workers decode the photos, two at a time at most.
class ThumbnailStore : public QObject
{
    Q_OBJECT

public:
    /// The longer side of a thumbnail, in pixels, at most.
    static constexpr int maximumSide = 240;

    /// A thumbnail waits for conversions under way, for `longestWait` at most.
    explicit ThumbnailStore(std::shared_ptr<ImageWorkerLauncher> launcher,
                            std::chrono::milliseconds longestWait = std::chrono::seconds(3));
    /// Ends the workers under way and drops what waits.
    ~ThumbnailStore() override;

    /// The one of this process.
    static ThumbnailStore &shared();
    /// Replaces the one of this process until `store` is gone; null brings it back.
    static void setShared(ThumbnailStore *store);

    /// Hands the thumbnail to `answer`. When it is in memory this happens before the call returns, and the
    /// result is null; else it happens later, if the result is still kept. A file that cannot be decoded
    /// gives a null image and is read again the next time. Requests for one file that overlap share one
    /// reading.
    [[nodiscard]] std::unique_ptr<ThumbnailRequest> image(const QUrl &url, ThumbnailRequest::Answer answer);

private:
    using Reading = ThumbnailRequest::Reading;

    std::shared_ptr<Reading> startReading(const QUrl &url);
    void finish(const QUrl &url, const std::weak_ptr<Reading> &wanted, const QImage &image);

    QCache<QUrl, QImage> m_cache;
    QHash<QUrl, std::weak_ptr<Reading>> m_readings;
    std::shared_ptr<ImageWorkerLauncher> m_launcher;
    std::chrono::milliseconds m_longestWait;
    QThreadPool m_readers;
};
