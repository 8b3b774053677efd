#pragma once

#include "ImageWorker.h"
#include "ImageWorkerLauncher.h"

#include <functional>
#include <optional>
#include <unistd.h>

/// An image worker that does what the test says instead of reading a photo.
struct FakeImageWorker : ImageWorker
{
    tl::expected<void, ImageWorkerFault> open(const FileDescriptor & /*source*/) override
    {
        if (openFault) {
            return tl::unexpected(*openFault);
        }
        return {};
    }

    tl::expected<void, ImageWorkerFault> write(const FileDescriptor &output, OutputFormat format,
                                               double jpegQuality) override
    {
        const std::string text =
            (format == OutputFormat::jpeg ? "jpeg " : "png ") + std::to_string(jpegQuality);
        if (::write(output.number(), text.data(), text.size()) != static_cast<ssize_t>(text.size()) ||
            writeFault) {
            return tl::unexpected(writeFault.value_or(ImageWorkerFault::CannotWrite));
        }
        if (afterWriting) {
            afterWriting();
        }
        return {};
    }

    tl::expected<QByteArray, ImageWorkerFault> thumbnail(int /*maximumSide*/) override
    {
        return tl::unexpected(ImageWorkerFault::Unreadable);
    }

    std::optional<ImageWorkerFault> openFault;
    std::optional<ImageWorkerFault> writeFault;
    std::function<void()> afterWriting;
};

/// Hands out copies of one fake worker.
struct FakeImageWorkerLauncher : ImageWorkerLauncher
{
    std::unique_ptr<ImageWorker> launch() override { return std::make_unique<FakeImageWorker>(worker); }
    void prepare() override {}
    void endAll() override
    {
        if (whenEnded) {
            whenEnded();
        }
    }

    FakeImageWorker worker;
    std::function<void()> whenEnded;
};
