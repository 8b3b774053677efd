#include "TileDecoder.h"

#include "BlockMarks.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavutil/log.h>
#include <libavutil/mem.h>
#include <libavutil/pixdesc.h>
}

#include <algorithm>
#include <cstring>

namespace imageworker {

namespace {

AVCodecID identifierOf(Codec codec)
{
    switch (codec) {
    case Codec::Hevc:
        return AV_CODEC_ID_HEVC;
    case Codec::Av1:
        return AV_CODEC_ID_AV1;
    case Codec::Avc:
        return AV_CODEC_ID_H264;
    case Codec::Jpeg:
        return AV_CODEC_ID_MJPEG;
    }
    return AV_CODEC_ID_NONE;
}

const AVCodec *decoderOf(Codec codec)
{
    if (codec == Codec::Av1) {
        // The decoder with the codec's own name needs a graphics card.
        return avcodec_find_decoder_by_name("libdav1d");
    }
    return avcodec_find_decoder(identifierOf(codec));
}

int getMarkedBuffer(AVCodecContext *context, AVFrame *frame, int flags)
{
    const int result = avcodec_default_get_buffer2(context, frame, flags);
    if (result == 0) {
        markBlocks(*frame);
    }
    return result;
}

/// A decoder copies what a photo says into these fields; C++ does not allow to load values that the type has
/// no name for.
template<typename Enumeration>
unsigned numberOf(const Enumeration &field)
{
    unsigned number = 0;
    static_assert(sizeof(field) == sizeof(number));
    std::memcpy(&number, &field, sizeof(number));
    return number;
}

/// Planes as this program handles them; false for arrangements that no photo has.
bool describeSamples(const AVFrame &frame, SampleFormat &format)
{
    const AVPixFmtDescriptor *descriptor = av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format));
    constexpr std::uint64_t NotPlanes = AV_PIX_FMT_FLAG_PAL | AV_PIX_FMT_FLAG_BITSTREAM |
                                        AV_PIX_FMT_FLAG_HWACCEL | AV_PIX_FMT_FLAG_BE | AV_PIX_FMT_FLAG_ALPHA |
                                        AV_PIX_FMT_FLAG_FLOAT;
    if (descriptor == nullptr || (descriptor->flags & NotPlanes) != 0 ||
        (descriptor->nb_components != 1 && descriptor->nb_components != 3)) {
        return false;
    }
    const int depth = descriptor->comp[0].depth;
    const bool isRgb = (descriptor->flags & AV_PIX_FMT_FLAG_RGB) != 0;
    for (int index = 0; index < descriptor->nb_components; ++index) {
        const AVComponentDescriptor &component = descriptor->comp[index];
        // Planes of RGB lie in the order green, blue, red; components are numbered red, green, blue.
        const int plane = isRgb ? (index + 2) % 3 : index;
        if (component.plane != plane || component.step != (depth > 8 ? 2 : 1) || component.offset != 0 ||
            component.shift != 0 || component.depth != depth) {
            return false;
        }
    }
    format.depth = depth;
    format.planeCount = descriptor->nb_components;
    if (descriptor->nb_components == 3) {
        format.chroma = {descriptor->log2_chroma_w, descriptor->log2_chroma_h};
    }
    format.isRgb = isRgb;
    format.codePoints.primaries = numberOf(frame.color_primaries);
    format.codePoints.transfer = numberOf(frame.color_trc);
    format.codePoints.matrix = numberOf(frame.colorspace);
    format.codePoints.fullRange = numberOf(frame.color_range) == AVCOL_RANGE_JPEG;
    return depth >= 8 && depth <= 16 && format.chroma.shiftX <= 1 && format.chroma.shiftY <= 1;
}

} // namespace

void TileDecoder::ContextDeleter::operator()(AVCodecContext *context) const
{
    avcodec_free_context(&context);
}

void TileDecoder::FrameDeleter::operator()(AVFrame *frame) const
{
    av_frame_free(&frame);
}

void TileDecoder::PacketDeleter::operator()(AVPacket *packet) const
{
    av_packet_free(&packet);
}

TileDecoder::~TileDecoder() = default;

bool loadDecoders()
{
    av_log_set_level(AV_LOG_QUIET);
    decoderOf(Codec::Av1);
    const AVCodec *decoder = decoderOf(Codec::Hevc);
    AVCodecContext *context = decoder == nullptr ? nullptr : avcodec_alloc_context3(decoder);
    const bool works = context != nullptr && avcodec_open2(context, decoder, nullptr) == 0;
    avcodec_free_context(&context);
    return works;
}

std::unique_ptr<TileDecoder> TileDecoder::create(const CodedPicture &picture)
{
    const AVCodec *codec = decoderOf(picture.codec);
    std::unique_ptr<TileDecoder> decoder(new TileDecoder);
    decoder->m_context.reset(codec == nullptr ? nullptr : avcodec_alloc_context3(codec));
    decoder->m_frame.reset(av_frame_alloc());
    decoder->m_packet.reset(av_packet_alloc());
    decoder->m_codec = picture.codec;
    decoder->m_configuration = picture.configuration;
    AVCodecContext *context = decoder->m_context.get();
    if (context == nullptr || !decoder->m_frame || !decoder->m_packet) {
        return nullptr;
    }
    context->thread_count = 1;
    context->flags |= AV_CODEC_FLAG_UNALIGNED; // else the crop is rounded for the sake of vector code
    context->apply_cropping = 0;               // blocks are looked at before the crop
    context->err_recognition = AV_EF_EXPLODE;
    if (picture.codec == Codec::Hevc) { // the decoder of AVC notices missing slices itself
        context->get_buffer2 = getMarkedBuffer;
    }
    context->max_pixels = ImageWorkerLimits::maximumPixels;
    const bool isRecord = picture.codec != Codec::Jpeg; // a JPEG's tables are put before its data
    if (isRecord && !picture.configuration->empty()) {
        const std::size_t length = picture.configuration->size();
        context->extradata = static_cast<std::uint8_t *>(av_mallocz(length + AV_INPUT_BUFFER_PADDING_SIZE));
        if (context->extradata == nullptr) {
            return nullptr;
        }
        std::memcpy(context->extradata, picture.configuration->data(), length);
        context->extradata_size = static_cast<int>(length);
    }
    return avcodec_open2(context, codec, nullptr) == 0 ? std::move(decoder) : nullptr;
}

bool TileDecoder::suits(const CodedPicture &picture) const
{
    return picture.codec == m_codec &&
           (picture.configuration == m_configuration || *picture.configuration == *m_configuration);
}

std::optional<PixelSize> TileDecoder::announcedSize() const
{
    if (!isAcceptable(m_context->width, m_context->height)) {
        return std::nullopt;
    }
    return PixelSize{m_context->width, m_context->height};
}

Result<void> TileDecoder::receiveFrame(const Bytes &bytes)
{
    const bool hasTables = m_codec == Codec::Jpeg;
    const std::size_t tables = hasTables ? m_configuration->size() : 0;
    if (bytes.size() > INT32_MAX / 2 ||
        av_new_packet(m_packet.get(), static_cast<int>(tables + bytes.size())) != 0) {
        return unreadable();
    }
    std::copy_n(m_configuration->begin(), tables, m_packet->data);
    std::copy_n(bytes.begin(), bytes.size(), m_packet->data + tables);
    AVCodecContext *context = m_context.get();
    avcodec_flush_buffers(context);
    av_frame_unref(m_frame.get());
    const int sent = avcodec_send_packet(context, m_packet.get());
    av_packet_unref(m_packet.get());
    if (sent != 0 || avcodec_send_packet(context, nullptr) != 0 ||
        avcodec_receive_frame(context, m_frame.get()) != 0) {
        return unreadable();
    }
    if (m_frame->decode_error_flags != 0 || (m_frame->flags & AV_FRAME_FLAG_CORRUPT) != 0 ||
        hasMarkedBlock(*m_frame) || av_frame_apply_cropping(m_frame.get(), AV_FRAME_CROP_UNALIGNED) != 0) {
        return unreadable();
    }
    return {};
}

Result<DecodedPicture> TileDecoder::decode(const Bytes &bytes, PixelSize size)
{
    DecodedPicture picture;
    if (!receiveFrame(bytes) || m_frame->width < size.width || m_frame->height < size.height ||
        !describeSamples(*m_frame, picture.format)) {
        return unreadable();
    }
    for (std::size_t plane = 0; plane < picture.format.planes(); ++plane) {
        const PixelRectangle samples =
            picture.format.layoutOf(plane).samplesOf({0, 0, size.width, size.height});
        picture.planes[plane] = {m_frame->data[plane], m_frame->linesize[plane], samples.width,
                                 samples.height};
    }
    return picture;
}

} // namespace imageworker
