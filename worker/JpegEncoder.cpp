#include "JpegEncoder.h"

#include "ColourSpace.h"
#include "Exif.h"
#include "Vectorised.h"
#include "Xmp.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <csetjmp>
#include <cstdio>
#include <jpeglib.h>
#include <string_view>

namespace imageworker {

namespace {

constexpr std::size_t LongestSegment = 65'533; // what a marker's two bytes of length leave
constexpr std::string_view ExifPrefix("Exif\0\0", 6);
constexpr std::string_view IccPrefix("ICC_PROFILE\0\1\1", 14); // the first of one part
constexpr double FinestColoursFrom = 0.95;

Bytes profileOfSrgb()
{
    const Profile profile(cmsCreate_sRGBProfile());
    cmsUInt32Number length = 0;
    cmsSaveProfileToMem(profile.get(), nullptr, &length);
    Bytes bytes(length);
    cmsSaveProfileToMem(profile.get(), bytes.data(), &length);
    return bytes;
}

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

/// The library reports faults by a jump: a function that sets its goal owns nothing that needs destroying.
class JpegEncoder : public RowEncoder
{
public:
    JpegEncoder(OutputFile &output, PixelSize size, double quality, const CopyMetadata &metadata)
        : m_output(output)
        , m_size(size)
        , m_quality(static_cast<int>(std::lround(std::clamp(quality, 0.0, 1.0) * 100)))
        , m_colourSampling(quality < FinestColoursFrom ? 2 : 1)
        , m_exif(segment(ExifPrefix, exifWithin(metadata.exif, LongestSegment - ExifPrefix.size())))
        , m_xmp(xmpSegments(metadata.xmp, LongestSegment))
        , m_profile(segment(IccPrefix, profileOfSrgb()))
        , m_row(static_cast<std::size_t>(size.width) * 4)
    {
        m_jpeg.err = jpeg_std_error(&m_errors);
        m_jpeg.client_data = this;
        m_errors.error_exit = [](j_common_ptr jpeg) {
            std::longjmp(static_cast<JpegEncoder *>(jpeg->client_data)->m_fault, 1);
        };
        m_errors.output_message = [](j_common_ptr) {};
        m_destination.init_destination = [](j_compress_ptr jpeg) { owner(jpeg).emptyBuffer(); };
        m_destination.empty_output_buffer = [](j_compress_ptr jpeg) -> boolean {
            return owner(jpeg).flush(BufferLength) ? TRUE : FALSE;
        };
        m_destination.term_destination = [](j_compress_ptr jpeg) {
            owner(jpeg).flush(BufferLength - owner(jpeg).m_destination.free_in_buffer);
        };
    }
    ~JpegEncoder() override { jpeg_destroy_compress(&m_jpeg); }
    JpegEncoder(const JpegEncoder &) = delete;
    JpegEncoder &operator=(const JpegEncoder &) = delete;

    Order order() const override { return Order::OneAfterAnother; }
    int chunkHeight() const override { return 64; }

    Result<void> begin() override { return start() ? Result<void>() : failed(); }

    Result<void> encodeChunk(int, int top, int height, const RowReader &readRow) override
    {
        for (int y = top; y < top + height; ++y) {
            readRow(y, m_row.data());
            layOverWhite(m_row.data(), m_row.size() / 4);
            if (!encodeRow()) {
                return failed();
            }
        }
        return {};
    }

    Result<void> finish() override { return end() ? Result<void>() : failed(); }

private:
    static constexpr std::size_t BufferLength = 65'536;

    static JpegEncoder &owner(j_compress_ptr jpeg) { return *static_cast<JpegEncoder *>(jpeg->client_data); }
    static tl::unexpected<Fault> failed() { return tl::unexpected(Fault::CannotWrite); }

    static Bytes segment(std::string_view prefix, const Bytes &content)
    {
        Bytes bytes;
        if (!content.empty() && prefix.size() + content.size() <= LongestSegment) {
            bytes.assign(prefix.begin(), prefix.end());
            bytes.insert(bytes.end(), content.begin(), content.end());
        }
        return bytes;
    }

    void emptyBuffer()
    {
        m_destination.next_output_byte = m_buffer.data();
        m_destination.free_in_buffer = m_buffer.size();
    }

    bool flush(std::size_t length)
    {
        emptyBuffer();
        return m_output.write(std::span(m_buffer).first(length));
    }

    void writeSegment(int marker, const Bytes &bytes)
    {
        if (!bytes.empty()) {
            jpeg_write_marker(&m_jpeg, marker, bytes.data(), static_cast<unsigned>(bytes.size()));
        }
    }

    bool start()
    {
        if (setjmp(m_fault) != 0) {
            return false;
        }
        jpeg_create_compress(&m_jpeg);
        m_jpeg.dest = &m_destination;
        m_jpeg.image_width = static_cast<JDIMENSION>(m_size.width);
        m_jpeg.image_height = static_cast<JDIMENSION>(m_size.height);
        m_jpeg.input_components = 4;
        m_jpeg.in_color_space = JCS_EXT_RGBX;
        jpeg_set_defaults(&m_jpeg);
        jpeg_set_quality(&m_jpeg, m_quality, TRUE);
        m_jpeg.comp_info[0].h_samp_factor = m_colourSampling;
        m_jpeg.comp_info[0].v_samp_factor = m_colourSampling;
        jpeg_start_compress(&m_jpeg, TRUE);
        writeSegment(JPEG_APP0 + 1, m_exif);
        for (const Bytes &part : m_xmp) {
            writeSegment(JPEG_APP0 + 1, part);
        }
        writeSegment(JPEG_APP0 + 2, m_profile);
        return true;
    }

    bool encodeRow()
    {
        if (setjmp(m_fault) != 0) {
            return false;
        }
        JSAMPROW row = m_row.data();
        return jpeg_write_scanlines(&m_jpeg, &row, 1) == 1;
    }

    bool end()
    {
        if (setjmp(m_fault) != 0) {
            return false;
        }
        jpeg_finish_compress(&m_jpeg);
        return !m_output.hasFailed();
    }

    OutputFile &m_output;
    const PixelSize m_size;
    const int m_quality;
    const int m_colourSampling; ///< pixels of brightness for one of colour, along each axis
    const Bytes m_exif;
    const std::vector<Bytes> m_xmp;
    const Bytes m_profile;
    std::vector<std::uint8_t> m_row;
    std::array<std::uint8_t, BufferLength> m_buffer = {};
    jpeg_compress_struct m_jpeg = {};
    jpeg_error_mgr m_errors = {};
    jpeg_destination_mgr m_destination = {};
    std::jmp_buf m_fault = {};
};

} // namespace

std::unique_ptr<RowEncoder> makeJpegEncoder(OutputFile &output, PixelSize size, double quality,
                                            const CopyMetadata &metadata)
{
    return std::make_unique<JpegEncoder>(output, size, quality, metadata);
}

} // namespace imageworker
