#pragma once

#include "Planes.h"

#include <memory>
#include <optional>
#include <span>

struct AVCodecContext;
struct AVFrame;
struct AVPacket;

namespace imageworker {

/// Loads the codecs and makes sure that pictures can be decoded; to be called before rights are given up.
bool loadDecoders();

/// Decodes the pictures of one grid, one after another, on one thread.
class TileDecoder
{
public:
    /// Null when there is no such decoder or it refuses @p picture's configuration.
    static std::unique_ptr<TileDecoder> create(const CodedPicture &picture);
    ~TileDecoder();
    TileDecoder(const TileDecoder &) = delete;
    TileDecoder &operator=(const TileDecoder &) = delete;

    /// Whether this decoder can take @p picture, too.
    bool suits(const CodedPicture &picture) const;

    /// Size of the pictures by the configuration; nothing for a codec that tells it with each picture only.
    std::optional<PixelSize> announcedSize() const;

    /// Decodes @p bytes, the data of a picture that this decoder suits. Unreadable when they are damaged or
    /// smaller than @p size, or when slices are missing; a larger picture is cut to it.
    Result<DecodedPicture> decode(const Bytes &bytes, PixelSize size);

private:
    struct ContextDeleter
    {
        void operator()(AVCodecContext *context) const;
    };
    struct FrameDeleter
    {
        void operator()(AVFrame *frame) const;
    };
    struct PacketDeleter
    {
        void operator()(AVPacket *packet) const;
    };

    TileDecoder() = default;
    Result<void> receiveFrame(const Bytes &bytes);

    Codec m_codec = Codec::Hevc;
    SharedBytes m_configuration;
    std::unique_ptr<AVCodecContext, ContextDeleter> m_context;
    std::unique_ptr<AVFrame, FrameDeleter> m_frame;
    std::unique_ptr<AVPacket, PacketDeleter> m_packet;
};

} // namespace imageworker
