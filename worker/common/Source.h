#pragma once

#include "Result.h"

#include <memory>
#include <span>

namespace imageworker {

/// Consecutive bytes of a file.
struct Extent
{
    std::uint64_t offset = 0;
    std::uint64_t length = 0;
};

/// Bytes of a file, in order; each extent is known to lie inside it.
using DataLocation = std::vector<Extent>;

/// Sum of all lengths, in bytes.
std::uint64_t lengthOf(const DataLocation &location);

/// The photo's bytes, reached by position. Reading does not move anything, so that several threads may read
/// at once.
class Source
{
public:
    virtual ~Source() = default;

    /// In bytes; fixed for the life of the object.
    virtual std::uint64_t size() const = 0;

    /// Exactly @p length bytes from @p offset; a range that leaves the file, or a file that has shrunk, is
    /// Unreadable.
    Result<Bytes> read(std::uint64_t offset, std::uint64_t length) const;

    /// All bytes of @p location in one piece.
    Result<Bytes> read(const DataLocation &location) const;

protected:
    virtual bool fill(std::uint64_t offset, std::span<std::uint8_t> bytes) const = 0;
};

/// A file by its descriptor, which stays the caller's. Null when it has no length, as a pipe.
std::unique_ptr<Source> sourceOfFile(int descriptor);

/// Bytes that lie in memory and stay the caller's.
std::unique_ptr<Source> sourceOfBytes(std::span<const std::uint8_t> bytes);

} // namespace imageworker
