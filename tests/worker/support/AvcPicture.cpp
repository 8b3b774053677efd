#include "AvcPicture.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavutil/log.h>
#include <libavutil/opt.h>
}

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

/// Codes the red of @p picture without loss, or all its channels, in 4:4:4.
CodedItem encode(const Raster &picture, bool isGrey, int hiddenColumns, int slices)
{
    const auto [width, height] = picture.size;
    av_log_set_level(AV_LOG_QUIET);
    const AVCodec *codec = avcodec_find_encoder_by_name("libx264");
    require(codec != nullptr);
    const std::unique_ptr<AVCodecContext, Freed<avcodec_free_context>> context(avcodec_alloc_context3(codec));
    context->width = width;
    context->height = height;
    context->pix_fmt = AV_PIX_FMT_YUV444P;
    context->time_base = {1, 1};
    context->thread_count = 1;
    context->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
    // Units behind their lengths, as in files.
    const std::string options =
        "annexb=0:crop-rect=" + std::to_string(hiddenColumns) + ",0,0,0:slices=" + std::to_string(slices);
    av_opt_set(context->priv_data, "qp", "0", 0);
    av_opt_set(context->priv_data, "x264-params", options.c_str(), 0);
    require(avcodec_open2(context.get(), codec, nullptr) == 0);

    const std::unique_ptr<AVFrame, Freed<av_frame_free>> frame(av_frame_alloc());
    frame->format = AV_PIX_FMT_YUV444P;
    frame->width = width;
    frame->height = height;
    frame->pts = 0;
    require(av_frame_get_buffer(frame.get(), 0) == 0);
    for (int plane = 0; plane < 3; ++plane) {
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                constexpr std::uint8_t NoColour = 128;
                frame->data[plane][y * frame->linesize[plane] + x] =
                    isGrey && plane > 0 ? NoColour : picture.row(y)[std::ptrdiff_t{4} * x + plane];
            }
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

CodedItem makeAvcItem(const Raster &picture, int hiddenColumns, int slices)
{
    CodedItem item = encode(picture, true, hiddenColumns, slices);
    item.properties.push_back(codePoints(1, 13, 6, true));
    return item;
}

CodedItem makeAvcColourItem(const Raster &picture)
{
    return encode(picture, false, 0, 1);
}

} // namespace imageworker
