#pragma once

#include <cstdint>

/// The conversation between the application and lumaport-imageworker, over a socket that keeps records apart
/// (SOCK_SEQPACKET). The worker speaks first: a reply that says whether it has given up its rights. Then
/// every request is answered by one reply; each brings along the descriptor of the file it is about. Both
/// programs are built together, so that the records may be sent as they lie in memory.
namespace imageworkerwire {

/// The worker finds its end of the socket here; nothing else is open in it but the three standard streams.
inline constexpr int WorkerDescriptor = 3;

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
