#pragma once

#include "ImageWorkerFault.h"
#include "OutputFormat.h"

#include <cstdint>

/// The messages between the application and lumaport-imageworker, over sockets that keep records apart
/// (SOCK_SEQPACKET). Both programs are built together, so records are sent as they lie in memory.
///
/// The program is a fork server and never sees a photo. It forks a worker for each SpawnRequest.
///
/// The worker first sends a WorkerStarted with a descriptor of its process, then a Reply that says whether it
/// is locked down. After that it answers each Request with one Reply. No Reply has a descriptor.
namespace imageworkerwire {

/// The fork server's socket. Nothing else is open in it but the three standard streams.
inline constexpr int ForkServerDescriptor = 3;

/// Sent with the worker's end of a new socket.
struct SpawnRequest
{
    std::uint32_t reserved = 0;
};

struct WorkerStarted
{
    std::uint32_t reserved = 0;
};

enum class RequestKind : std::uint32_t {
    Open = 1,      ///< with the source, open for reading
    Write = 2,     ///< with the output file, open for writing
    Thumbnail = 3, ///< with a file in memory of a fixed size that takes the pixels, four bytes for each: red,
                   ///< green, blue, opacity
};

struct Request
{
    RequestKind kind{};
    OutputFormat format{};        ///< Write
    double jpegQuality = 0;       ///< Write: a fraction of 1
    std::int32_t maximumSide = 0; ///< Thumbnail: in pixels
    std::int32_t reserved = 0;
};

inline constexpr ImageWorkerFault NoFault{};

struct Reply
{
    ImageWorkerFault fault = NoFault;
    std::int32_t width = 0;  ///< Open: of the upright picture; Thumbnail: of the preview; in pixels
    std::int32_t height = 0; ///< likewise
};

} // namespace imageworkerwire
