#pragma once

#include "Result.h"

#include <atomic>
#include <span>

namespace imageworker {

/// Where a copy's bytes go. Once a write has failed, all others do.
class OutputFile
{
public:
    /// The descriptor stays the caller's.
    explicit OutputFile(int descriptor)
        : m_descriptor(descriptor)
    {}

    /// Appends all of @p bytes; false when the file cannot take them.
    bool write(std::span<const std::uint8_t> bytes);

    /// May be asked on any thread.
    Result<void> outcome() const
    {
        return m_failed ? Result<void>(tl::unexpected(ImageWorkerFault::CannotWrite)) : Result<void>();
    }

private:
    int m_descriptor;
    std::atomic<bool> m_failed = false;
};

} // namespace imageworker
