#include "AvcPicture.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavutil/log.h>
#include <libavutil/opt.h>
}

#include <cstring>
#include <memory>
#include <stdexcept>
#include <string>

namespace imageworker {

namespace {

template<auto Free>
struct Freed
{
    template<typename Type>
    void operator()(Type *object) const
    {
        Free(&object);
    }
};

void require(bool isDone)
{
    if (!isDone) {
        throw std::runtime_error("no encoder for AVC, or it failed");
    }
}

/// Writes a channel of @p picture into plane @p index of a frame.
void fillPlane(AVFrame &frame, int index, const Raster &picture)
{
    for (int y = 0; y < picture.size.height; ++y) {
        for (int x = 0; x < picture.size.width; ++x) {
            frame.data[index][y * frame.linesize[index] + x] = picture.row(y)[std::ptrdiff_t{4} * x + index];
        }
    }
}

/// The decoder configuration record (ISO/IEC 14496-15, 5.3.3.1) of a sequence and a picture parameter set,
/// each behind a length of four bytes.
Bytes configurationOf(const Bytes &sets)
{
    if (sets.front() == 1) {
        return sets; // newer releases of libavcodec write the record themselves
    }
    const std::size_t length = numberAt(sets, 0);
    const Bytes sequence = part(sets, 4, 4 + length);
    const Bytes parameters = part(sets, 8 + length, 8 + length + numberAt(sets, 4 + length));
    return joined({{1},
                   part(sequence, 1, 4),
                   {0xFF, 0xE1},
                   bigEndian(sequence.size(), 2),
                   sequence,
                   {1},
                   bigEndian(parameters.size(), 2),
                   parameters});
}

/// Codes @p picture without loss: all its channels in 4:4:4, its red alone in 4:2:0.
CodedItem encode(const Raster &picture, AVPixelFormat format, int hiddenColumns)
{
    const auto [width, height] = picture.size;
    av_log_set_level(AV_LOG_QUIET);
    const AVCodec *codec = avcodec_find_encoder_by_name("libx264");
    require(codec != nullptr);
    const std::unique_ptr<AVCodecContext, Freed<avcodec_free_context>> context(avcodec_alloc_context3(codec));
    context->width = width;
    context->height = height;
    context->pix_fmt = format;
    context->time_base = {1, 1};
    context->thread_count = 1;
    context->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
    // Units behind their lengths, as in files.
    const std::string options = "annexb=0:crop-rect=" + std::to_string(hiddenColumns) + ",0,0,0";
    av_opt_set(context->priv_data, "qp", "0", 0);
    av_opt_set(context->priv_data, "x264-params", options.c_str(), 0);
    require(avcodec_open2(context.get(), codec, nullptr) == 0);

    const std::unique_ptr<AVFrame, Freed<av_frame_free>> frame(av_frame_alloc());
    frame->format = format;
    frame->width = width;
    frame->height = height;
    frame->pts = 0;
    require(av_frame_get_buffer(frame.get(), 0) == 0);
    for (int plane = 0; plane < 3; ++plane) {
        if (plane == 0 || format == AV_PIX_FMT_YUV444P) {
            fillPlane(*frame, plane, picture);
        } else {
            constexpr int NoColour = 128;
            std::memset(frame->data[plane], NoColour,
                        static_cast<std::size_t>(frame->linesize[plane]) *
                            static_cast<std::size_t>((height + 1) / 2));
        }
    }
    const std::unique_ptr<AVPacket, Freed<av_packet_free>> packet(av_packet_alloc());
    require(avcodec_send_frame(context.get(), frame.get()) == 0);
    require(avcodec_send_frame(context.get(), nullptr) == 0);
    require(avcodec_receive_packet(context.get(), packet.get()) == 0);
    return {"avc1",
            {{"avcC", configurationOf({context->extradata, context->extradata + context->extradata_size})},
             spatialExtents(width - hiddenColumns, height)},
            {packet->data, packet->data + packet->size}};
}

} // namespace

CodedItem makeAvcItem(const Raster &picture, int hiddenColumns)
{
    CodedItem item = encode(picture, AV_PIX_FMT_YUV420P, hiddenColumns);
    item.properties.push_back(codePoints(1, 13, 6, true));
    return item;
}

CodedItem makeAvcColourItem(const Raster &picture)
{
    return encode(picture, AV_PIX_FMT_YUV444P, 0);
}

} // namespace imageworker
