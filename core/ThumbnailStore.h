#pragma once

#include <QCache>
#include <QImage>
#include <QObject>
#include <QThreadPool>
#include <QUrl>

#include <functional>
#include <memory>

class ImageWorkerLauncher;

/// A wish for one thumbnail; destroying it cancels the wish, and its answer is dropped.
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
    std::shared_ptr<Answer> m_answer;
};

/// Small pictures of photo files, and the most recent of them kept in memory.
///
/// It is used on the main thread. Photos are decoded by image workers, at low priority and never more than
/// two at a time; only the small PNG that comes back is decoded here, on the main thread.
class ThumbnailStore : public QObject
{
    Q_OBJECT

public:
    /// The longer side of a thumbnail, in pixels, at most.
    static constexpr int maximumSide = 240;

    explicit ThumbnailStore(std::shared_ptr<ImageWorkerLauncher> launcher);
    /// Ends the workers under way and drops what waits.
    ~ThumbnailStore() override;

    /// The one of this process.
    static ThumbnailStore &shared();
    /// Takes the place of the one of this process until `store` is gone; null brings it back.
    static void setShared(ThumbnailStore *store);

    /// Gives the thumbnail to `answer`: at once, and null as result, when it is in memory; else later, as
    /// long as the result is kept. A file that gives no picture is answered with a null image, and read again
    /// the next time.
    [[nodiscard]] std::unique_ptr<ThumbnailRequest> image(const QUrl &url, ThumbnailRequest::Answer answer);

private:
    void finish(const QUrl &url, const std::weak_ptr<ThumbnailRequest::Answer> &waiting,
                const QByteArray &png);

    QCache<QUrl, QImage> m_cache;
    std::shared_ptr<ImageWorkerLauncher> m_launcher;
    QThreadPool m_readers;
};
