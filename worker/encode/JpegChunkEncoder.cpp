#include "JpegChunkEncoder.h"

#include "Vectorised.h"

#include <utility>

namespace imageworker {

namespace {

LUMAPORT_VECTORISED bool isOpaque(const std::uint8_t *rgba, std::size_t width)
{
    unsigned least = 255;
    for (std::size_t x = 0; x < width; ++x) {
        least &= rgba[4 * x + 3];
    }
    return least == 255;
}

void layOverWhite(std::uint8_t *rgba, std::size_t width)
{
    if (isOpaque(rgba, width)) {
        return;
    }
    for (std::size_t x = 0; x < width; ++x, rgba += 4) {
        const unsigned opacity = rgba[3];
        for (std::size_t channel = 0; channel < 3; ++channel) {
            const unsigned mixed = rgba[channel] * opacity + 255U * (255U - opacity);
            rgba[channel] = static_cast<std::uint8_t>((mixed + 127) / 255);
        }
    }
}

} // namespace

JpegChunkEncoder::JpegChunkEncoder(const JpegParameters &parameters)
    : m_parameters(parameters)
    , m_row(static_cast<std::size_t>(parameters.size.width) * 4)
{
    m_jpeg.err = jpeg_std_error(&m_errors);
    m_jpeg.client_data = this;
    m_errors.error_exit = [](j_common_ptr jpeg) {
        std::longjmp(static_cast<JpegChunkEncoder *>(jpeg->client_data)->m_fault, 1);
    };
    m_errors.output_message = [](j_common_ptr) {};
    m_destination.init_destination = [](j_compress_ptr jpeg) { owner(jpeg).emptyBuffer(); };
    m_destination.empty_output_buffer = [](j_compress_ptr jpeg) -> boolean {
        owner(jpeg).keep(BufferLength);
        return TRUE;
    };
    m_destination.term_destination = [](j_compress_ptr jpeg) {
        owner(jpeg).keep(BufferLength - owner(jpeg).m_destination.free_in_buffer);
    };
}

JpegChunkEncoder::~JpegChunkEncoder()
{
    jpeg_destroy_compress(&m_jpeg);
}

Bytes JpegChunkEncoder::encode(int top, int height, const RowReader &readRow,
                               std::span<const JpegSegment> segments)
{
    m_stream.clear();
    bool isGood = start(height);
    for (const JpegSegment &segment : segments) {
        isGood = isGood && writeSegment(segment);
    }
    for (int y = top; isGood && y < top + height; ++y) {
        readRow(y, m_row.data());
        layOverWhite(m_row.data(), m_row.size() / 4);
        isGood = encodeRow();
    }
    return isGood && end() ? std::move(m_stream) : Bytes();
}

JpegChunkEncoder &JpegChunkEncoder::owner(j_compress_ptr jpeg)
{
    return *static_cast<JpegChunkEncoder *>(jpeg->client_data);
}

void JpegChunkEncoder::emptyBuffer()
{
    m_destination.next_output_byte = m_buffer.data();
    m_destination.free_in_buffer = m_buffer.size();
}

void JpegChunkEncoder::keep(std::size_t length)
{
    m_stream.insert(m_stream.end(), m_buffer.begin(), m_buffer.begin() + static_cast<std::ptrdiff_t>(length));
    emptyBuffer();
}

bool JpegChunkEncoder::start(int height)
{
    if (setjmp(m_fault) != 0) {
        return false;
    }
    if (m_jpeg.mem == nullptr) {
        jpeg_create_compress(&m_jpeg);
        m_jpeg.dest = &m_destination;
        m_jpeg.input_components = 4;
        m_jpeg.in_color_space = JCS_EXT_RGBX;
        m_jpeg.image_width = static_cast<JDIMENSION>(m_parameters.size.width);
        jpeg_set_defaults(&m_jpeg);
        jpeg_set_quality(&m_jpeg, m_parameters.quality, TRUE);
        m_jpeg.comp_info[0].h_samp_factor = m_parameters.colourSampling;
        m_jpeg.comp_info[0].v_samp_factor = m_parameters.colourSampling;
        m_jpeg.restart_in_rows = ChunkHeight / (DCTSIZE * m_parameters.colourSampling);
    }
    m_jpeg.image_height = static_cast<JDIMENSION>(height);
    jpeg_start_compress(&m_jpeg, TRUE);
    return true;
}

bool JpegChunkEncoder::writeSegment(const JpegSegment &segment)
{
    if (setjmp(m_fault) != 0) {
        return false;
    }
    if (!segment.bytes.empty()) {
        jpeg_write_marker(&m_jpeg, segment.marker, segment.bytes.data(),
                          static_cast<unsigned>(segment.bytes.size()));
    }
    return true;
}

bool JpegChunkEncoder::encodeRow()
{
    if (setjmp(m_fault) != 0) {
        return false;
    }
    JSAMPROW row = m_row.data();
    return jpeg_write_scanlines(&m_jpeg, &row, 1) == 1;
}

bool JpegChunkEncoder::end()
{
    if (setjmp(m_fault) != 0) {
        return false;
    }
    jpeg_finish_compress(&m_jpeg);
    return true;
}

} // namespace imageworker
