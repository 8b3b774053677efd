#include "AvcPicture.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavutil/log.h>
#include <libavutil/opt.h>
}

#include <algorithm>
#include <array>
#include <functional>
#include <memory>
#include <span>
#include <stdexcept>
#include <string>

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

/// Writes samples into plane @p index of a frame.
void fillPlane(AVFrame &frame, int index, const Raster &picture, int channel)
{
    for (int y = 0; y < picture.size.height; ++y) {
        for (int x = 0; x < picture.size.width; ++x) {
            frame.data[index][y * frame.linesize[index] + x] =
                picture.row(y)[std::ptrdiff_t{4} * x + channel];
        }
    }
}

/// As a byte stream; @p fill writes the planes.
Bytes encode(PixelSize size, AVPixelFormat format, const std::string &encoderOptions,
             const std::function<void(AVFrame &)> &fill)
{
    const auto freeContext = [](AVCodecContext *context) { avcodec_free_context(&context); };
    const auto freeFrame = [](AVFrame *frame) { av_frame_free(&frame); };
    const auto freePacket = [](AVPacket *packet) { av_packet_free(&packet); };
    av_log_set_level(AV_LOG_QUIET);
    const AVCodec *codec = avcodec_find_encoder_by_name("libx264");
    require(codec != nullptr);
    const std::unique_ptr<AVCodecContext, decltype(freeContext)> context(avcodec_alloc_context3(codec));
    context->width = size.width;
    context->height = size.height;
    context->pix_fmt = format;
    context->time_base = {1, 1};
    context->thread_count = 1;
    av_opt_set(context->priv_data, "qp", "0", 0);
    av_opt_set(context->priv_data, "x264-params", encoderOptions.c_str(), 0);
    require(avcodec_open2(context.get(), codec, nullptr) == 0);

    const std::unique_ptr<AVFrame, decltype(freeFrame)> frame(av_frame_alloc());
    frame->format = context->pix_fmt;
    frame->width = context->width;
    frame->height = context->height;
    frame->pts = 0;
    require(av_frame_get_buffer(frame.get(), 0) == 0);
    fill(*frame);
    const std::unique_ptr<AVPacket, decltype(freePacket)> packet(av_packet_alloc());
    require(avcodec_send_frame(context.get(), frame.get()) == 0);
    require(avcodec_send_frame(context.get(), nullptr) == 0);
    require(avcodec_receive_packet(context.get(), packet.get()) == 0);
    return {packet->data, packet->data + packet->size};
}

CodedItem itemOf(const Bytes &stream, PixelSize shown)
{
    const auto units = unitsOf(stream);
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
    item.properties = {
        {"avcC", record},
        spatialExtents(static_cast<unsigned>(shown.width), static_cast<unsigned>(shown.height))};
    for (const Bytes &unit : units) {
        if (&unit != &sequence && &unit != &parameters) {
            item.data = joined({item.data, bigEndian(unit.size(), 4), unit});
        }
    }
    return item;
}

} // namespace

CodedItem makeAvcItem(const Raster &picture, int hiddenColumns)
{
    const std::string hidden =
        hiddenColumns == 0 ? "" : "crop-rect=" + std::to_string(hiddenColumns) + ",0,0,0";
    const auto fill = [&picture](AVFrame &frame) {
        fillPlane(frame, 0, picture, 0);
        constexpr std::uint8_t NoColour = 128;
        std::fill_n(frame.data[1], frame.linesize[1] * ((frame.height + 1) / 2), NoColour);
        std::fill_n(frame.data[2], frame.linesize[2] * ((frame.height + 1) / 2), NoColour);
    };
    CodedItem item = itemOf(encode(picture.size, AV_PIX_FMT_YUV420P, hidden, fill),
                            {picture.size.width - hiddenColumns, picture.size.height});
    item.properties.push_back(codePoints(1, 13, 6, true));
    return item;
}

CodedItem makeAvcColourItem(const Raster &picture)
{
    const auto fill = [&picture](AVFrame &frame) {
        for (int plane = 0; plane < 3; ++plane) {
            fillPlane(frame, plane, picture, plane);
        }
    };
    return itemOf(encode(picture.size, AV_PIX_FMT_YUV444P, "", fill), picture.size);
}

} // namespace imageworker
