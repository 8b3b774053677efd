#pragma once

#include <cstdint>

/// The conversations between the application and lumaport-imageworker, over sockets that keep records apart
/// (SOCK_SEQPACKET). Both programs are built together, so that the records may be sent as they lie in memory.
///
/// The program itself never sees a photo. For each Birth, which brings along one end of a new socket, it
/// raises a worker that gets this end, and answers with a Birth that brings along a descriptor of the
/// worker's process.
///
/// The worker speaks first: a reply that says whether it has given up its rights. Then every request is
/// answered by one reply; each brings along the descriptor of the file it is about.
namespace imageworkerwire {

/// The program finds its end of the first socket here; nothing else is open in it but the three standard
/// streams.
inline constexpr int NurseryDescriptor = 3;

struct Birth
{
    std::uint32_t reserved = 0;
};

enum class RequestKind : std::uint32_t {
    Open = 1,      ///< with the source, open for reading
    Write = 2,     ///< with the scratch file, open for writing
    Thumbnail = 3, ///< with a file in memory that takes the PNG
};

enum class Format : std::uint32_t { Png = 1, Jpeg = 2 };

struct Request
{
    RequestKind kind{};
    Format format{};              ///< Write
    double jpegQuality = 0;       ///< Write: a fraction, 1 being the best
    std::int32_t maximumSide = 0; ///< Thumbnail: in pixels
    std::int32_t reserved = 0;
};

enum class Outcome : std::uint32_t {
    Done = 1,
    Unreadable = 2,
    CannotWrite = 3,
    NotLockedDown = 4, ///< the worker could not give up its rights and ends
};

struct Reply
{
    Outcome outcome{};
    std::int32_t width = 0; ///< Open: size of the upright picture in pixels
    std::int32_t height = 0;
};

/// Larger pictures are refused by the worker, and such a size is not believed by the application.
inline constexpr std::int64_t MaximumPixels = 300'000'000;

/// A thumbnail is never larger, whatever the worker says, in bytes.
inline constexpr std::int64_t MaximumThumbnailBytes = 4LL * 1024 * 1024;

} // namespace imageworkerwire
