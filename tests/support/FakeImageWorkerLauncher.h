#pragma once

#include "ImageWorker.h"
#include "ImageWorkerLauncher.h"

#include <QColor>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSemaphore>

#include <atomic>
#include <functional>
#include <optional>

/// Launches workers without a process. A file that names a colour is a photo of that colour. One that names
/// two ("gold/tomato") runs from the first at the top to the second. Any other file is unreadable. Counts the
/// workers, and can hold them before they read.
class FakeImageWorkerLauncher : public ImageWorkerLauncher
{
public:
    std::unique_ptr<ImageWorker> launch() override { return std::make_unique<Worker>(*this); }
    void prepare() override {}
    void pause() override { isPaused = true; }
    void resume() override { isPaused = false; }
    void endAll() override { gate.release(1000); }

    void hold() { m_holds = true; }

    QSemaphore gate; ///< each release lets one held worker go on
    std::atomic<bool> isPaused = false;
    std::atomic<int> launched = 0;
    std::atomic<int> running = 0;
    std::atomic<int> mostRunning = 0;
    std::optional<ImageWorkerFault> openFault;
    std::optional<ImageWorkerFault> writeFault;
    std::function<void()> afterWriting = [] {};

private:
    struct Worker : ImageWorker
    {
        explicit Worker(FakeImageWorkerLauncher &from)
            : launcher(from)
        {
            ++launcher.launched;
            const int now = ++launcher.running;
            int most = launcher.mostRunning;
            while (most < now && !launcher.mostRunning.compare_exchange_weak(most, now)) {
            }
        }
        ~Worker() override { --launcher.running; }

        tl::expected<void, ImageWorkerFault> open(const FileDescriptor &source) override
        {
            if (launcher.m_holds) {
                launcher.gate.acquire();
            }
            QFile file;
            if (file.open(source.number(), QIODevice::ReadOnly)) {
                const QList<QByteArray> names = file.readAll().split('/');
                top = QColor(QLatin1String(names.first()));
                bottom = QColor(QLatin1String(names.last()));
            }
            if (launcher.openFault || !top.isValid() || !bottom.isValid()) {
                return tl::unexpected(launcher.openFault.value_or(ImageWorkerFault::Unreadable));
            }
            return {};
        }

        tl::expected<void, ImageWorkerFault> write(const FileDescriptor &output, OutputFormat format,
                                                   double jpegQuality) override
        {
            QFile file;
            file.open(output.number(), QIODevice::WriteOnly);
            file.write(format == OutputFormat::jpeg ? "jpeg " + QByteArray::number(jpegQuality) : "png");
            if (launcher.writeFault) {
                return tl::unexpected(*launcher.writeFault);
            }
            launcher.afterWriting();
            return {};
        }

        tl::expected<QImage, ImageWorkerFault> thumbnail(int maximumSide) override
        {
            QImage image(maximumSide, maximumSide * 3 / 4, QImage::Format_RGB32);
            QLinearGradient colours(0, 0, 0, image.height());
            colours.setColorAt(0, top);
            colours.setColorAt(1, bottom);
            QPainter(&image).fillRect(image.rect(), colours);
            return image;
        }

        FakeImageWorkerLauncher &launcher;
        QColor top;
        QColor bottom;
    };

    std::atomic<bool> m_holds = false;
};
