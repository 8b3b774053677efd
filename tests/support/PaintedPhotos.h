#pragma once

#include "ImageWorker.h"
#include "ImageWorkerLauncher.h"

#include <QBuffer>
#include <QColor>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSemaphore>

#include <atomic>

/// Workers that give a small picture in the colour that the photo's text names, or that runs from the first
/// of two ("gold/teal") at the top to the second, and nothing for other files. It counts them, and can hold
/// them until the test lets them go.
class PaintedPhotos : public ImageWorkerLauncher
{
public:
    std::unique_ptr<ImageWorker> launch() override { return std::make_unique<Worker>(*this); }
    void prepare() override {}
    void endAll() override { gate.release(1000); }

    void hold() { m_holds = true; }

    QSemaphore gate; ///< each release lets one held worker finish
    std::atomic<int> launched = 0;
    std::atomic<int> running = 0;
    std::atomic<int> mostRunning = 0;

private:
    class Worker : public ImageWorker
    {
    public:
        explicit Worker(PaintedPhotos &photos)
            : m_photos(photos)
        {
            ++photos.launched;
            const int now = ++photos.running;
            int most = photos.mostRunning;
            while (most < now && !photos.mostRunning.compare_exchange_weak(most, now)) {
            }
        }
        ~Worker() override { --m_photos.running; }

        tl::expected<void, ImageWorkerFault> open(const FileDescriptor &source) override
        {
            if (m_photos.m_holds) {
                m_photos.gate.acquire();
            }
            QFile file;
            if (!file.open(source.number(), QIODevice::ReadOnly)) {
                return tl::unexpected(ImageWorkerFault::Unreadable);
            }
            const QString names = QString::fromLatin1(file.readAll());
            m_top = QColor(names.section(QLatin1Char('/'), 0, 0));
            m_bottom = QColor(names.section(QLatin1Char('/'), -1));
            if (!m_top.isValid() || !m_bottom.isValid()) {
                return tl::unexpected(ImageWorkerFault::Unreadable);
            }
            return {};
        }
        tl::expected<void, ImageWorkerFault> write(const FileDescriptor & /*output*/, OutputFormat /*format*/,
                                                   double /*jpegQuality*/) override
        {
            return tl::unexpected(ImageWorkerFault::CannotWrite);
        }
        tl::expected<QByteArray, ImageWorkerFault> thumbnail(int maximumSide) override
        {
            QImage image(maximumSide, maximumSide * 3 / 4, QImage::Format_RGB32);
            QLinearGradient colours(0, 0, 0, image.height());
            colours.setColorAt(0, m_top);
            colours.setColorAt(1, m_bottom);
            QPainter(&image).fillRect(image.rect(), colours);
            QBuffer png;
            image.save(&png, "PNG");
            return png.data();
        }

    private:
        PaintedPhotos &m_photos;
        QColor m_top;
        QColor m_bottom;
    };

    std::atomic<bool> m_holds = false;
};
