#include "AvcPicture.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavutil/log.h>
#include <libavutil/opt.h>
}

#include <algorithm>
#include <array>
#include <memory>
#include <span>
#include <stdexcept>

namespace imageworker {

namespace {

constexpr std::uint8_t SequenceParameters = 7; // ITU-T H.264, table 7-1
constexpr std::uint8_t PictureParameters = 8;

void require(bool isDone)
{
    if (!isDone) {
        throw std::runtime_error("no encoder for AVC, or it failed");
    }
}

/// The units of a byte stream (ITU-T H.264, annex B).
std::vector<Bytes> unitsOf(std::span<const std::uint8_t> stream)
{
    static constexpr std::array<std::uint8_t, 3> StartCode = {0, 0, 1};
    std::vector<Bytes> units;
    const auto startFrom = [&stream](auto position) {
        return std::search(position, stream.end(), StartCode.begin(), StartCode.end());
    };
    for (auto start = startFrom(stream.begin()); start != stream.end();) {
        const auto next = startFrom(start + 1);
        Bytes unit(start + StartCode.size(), next);
        while (!unit.empty() && unit.back() == 0) { // belongs to the next start code
            unit.pop_back();
        }
        units.push_back(std::move(unit));
        start = next;
    }
    return units;
}

const Bytes &unitOfType(const std::vector<Bytes> &units, std::uint8_t type)
{
    const auto found =
        std::ranges::find_if(units, [type](const Bytes &unit) { return (unit.front() & 31) == type; });
    require(found != units.end());
    return *found;
}

} // namespace

CodedItem makeAvcItem(const Raster &picture)
{
    const auto freeContext = [](AVCodecContext *context) { avcodec_free_context(&context); };
    const auto freeFrame = [](AVFrame *frame) { av_frame_free(&frame); };
    const auto freePacket = [](AVPacket *packet) { av_packet_free(&packet); };
    av_log_set_level(AV_LOG_QUIET);
    const AVCodec *codec = avcodec_find_encoder_by_name("libx264");
    require(codec != nullptr);
    const std::unique_ptr<AVCodecContext, decltype(freeContext)> context(avcodec_alloc_context3(codec));
    context->width = picture.size.width;
    context->height = picture.size.height;
    context->pix_fmt = AV_PIX_FMT_YUV420P;
    context->time_base = {1, 1};
    context->thread_count = 1;
    av_opt_set(context->priv_data, "qp", "0", 0);
    require(avcodec_open2(context.get(), codec, nullptr) == 0);

    const std::unique_ptr<AVFrame, decltype(freeFrame)> frame(av_frame_alloc());
    frame->format = context->pix_fmt;
    frame->width = context->width;
    frame->height = context->height;
    frame->pts = 0;
    require(av_frame_get_buffer(frame.get(), 0) == 0);
    for (int y = 0; y < frame->height; ++y) {
        for (int x = 0; x < frame->width; ++x) {
            frame->data[0][y * frame->linesize[0] + x] = picture.row(y)[std::ptrdiff_t{4} * x];
        }
    }
    constexpr std::uint8_t NoColour = 128;
    std::fill_n(frame->data[1], frame->linesize[1] * ((frame->height + 1) / 2), NoColour);
    std::fill_n(frame->data[2], frame->linesize[2] * ((frame->height + 1) / 2), NoColour);
    const std::unique_ptr<AVPacket, decltype(freePacket)> packet(av_packet_alloc());
    require(avcodec_send_frame(context.get(), frame.get()) == 0);
    require(avcodec_send_frame(context.get(), nullptr) == 0);
    require(avcodec_receive_packet(context.get(), packet.get()) == 0);

    const auto units = unitsOf({packet->data, static_cast<std::size_t>(packet->size)});
    const Bytes &sequence = unitOfType(units, SequenceParameters);
    const Bytes &parameters = unitOfType(units, PictureParameters);
    CodedItem item;
    // ISO/IEC 14496-15, 5.3.3.1: lengths of four bytes, one unit of either kind.
    const Bytes record = joined({bigEndian(1, 1),
                                 {sequence[1], sequence[2], sequence[3]},
                                 bigEndian(0xFFE1, 2),
                                 bigEndian(sequence.size(), 2),
                                 sequence,
                                 bigEndian(1, 1),
                                 bigEndian(parameters.size(), 2),
                                 parameters});
    const Bytes fullRange = {'n', 'c', 'l', 'x', 0, 1, 0, 13, 0, 6, 0x80};
    item.properties = {{"avcC", record},
                       {"colr", fullRange},
                       spatialExtents(static_cast<unsigned>(picture.size.width),
                                      static_cast<unsigned>(picture.size.height))};
    for (const Bytes &unit : units) {
        if (&unit != &sequence && &unit != &parameters) {
            item.data = joined({item.data, bigEndian(unit.size(), 4), unit});
        }
    }
    return item;
}

} // namespace imageworker
