#include "JpegEncoder.h"

#include "ColourSpace.h"
#include "Exif.h"
#include "OrderedPieces.h"
#include "Spares.h"
#include "Vectorised.h"
#include "Xmp.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <csetjmp>
#include <cstdio>
#include <jpeglib.h>
#include <span>
#include <string_view>

namespace imageworker {

namespace {

constexpr std::size_t LongestSegment = 65'533; // what a marker's two bytes of length leave
constexpr std::string_view ExifPrefix("Exif\0\0", 6);
constexpr std::string_view IccPrefix("ICC_PROFILE\0\1\1", 14); // the first of one part
constexpr double FinestColoursFrom = 0.95;
constexpr int ChunkHeight =
    32; // rows; those of the widest picture fit into a restart interval, 65,535 blocks

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

struct JpegForm
{
    PixelSize size;
    int quality = 0;        ///< in percent
    int colourSampling = 1; ///< pixels of brightness for one of colour, along each axis
};

Bytes segment(std::string_view prefix, const Bytes &content)
{
    Bytes bytes;
    if (!content.empty() && prefix.size() + content.size() <= LongestSegment) {
        bytes.assign(prefix.begin(), prefix.end());
        bytes.insert(bytes.end(), content.begin(), content.end());
    }
    return bytes;
}

/// What is put into a file behind a marker.
struct Segment
{
    int marker = 0;
    Bytes bytes;
};

std::vector<Segment> segmentsOf(const CopyMetadata &metadata)
{
    std::vector<Segment> segments;
    segments.push_back(
        {JPEG_APP0 + 1, segment(ExifPrefix, exifWithin(metadata.exif, LongestSegment - ExifPrefix.size()))});
    for (Bytes &part : xmpSegments(metadata.xmp, LongestSegment)) {
        segments.push_back({JPEG_APP0 + 1, std::move(part)});
    }
    segments.push_back({JPEG_APP0 + 2, segment(IccPrefix, profileOfSrgb())});
    return segments;
}

/// Where the first segment with @p marker begins in a stream of our own (ITU-T T.81, B.1.1).
std::size_t findSegment(const Bytes &stream, std::uint8_t marker)
{
    std::size_t position = 2; // behind the start of the image
    while (stream[position + 1] != marker) {
        position += 2U + (std::size_t{stream[position + 2]} << 8U) + stream[position + 3];
    }
    return position;
}

/// Encodes chunks of a picture, each as a stream of its own with a restart interval of just its length.
/// The library reports faults by a jump: a function that sets its goal owns nothing that needs destroying.
class ChunkEncoder
{
public:
    explicit ChunkEncoder(const JpegForm &form)
        : m_form(form)
        , m_row(static_cast<std::size_t>(form.size.width) * 4)
    {
        m_jpeg.err = jpeg_std_error(&m_errors);
        m_jpeg.client_data = this;
        m_errors.error_exit = [](j_common_ptr jpeg) {
            std::longjmp(static_cast<ChunkEncoder *>(jpeg->client_data)->m_fault, 1);
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
    ~ChunkEncoder() { jpeg_destroy_compress(&m_jpeg); }
    ChunkEncoder(const ChunkEncoder &) = delete;
    ChunkEncoder &operator=(const ChunkEncoder &) = delete;

    /// The stream of rows @p top to @p top + @p height, with @p segments; empty after a fault.
    Bytes encode(int top, int height, const RowReader &readRow, std::span<const Segment> segments)
    {
        m_stream.clear();
        bool isGood = start(height);
        for (const Segment &segment : segments) {
            isGood = isGood && writeSegment(segment);
        }
        for (int y = top; isGood && y < top + height; ++y) {
            readRow(y, m_row.data());
            layOverWhite(m_row.data(), m_row.size() / 4);
            isGood = encodeRow();
        }
        return isGood && end() ? std::move(m_stream) : Bytes();
    }

private:
    static constexpr std::size_t BufferLength = 65'536;

    static ChunkEncoder &owner(j_compress_ptr jpeg)
    {
        return *static_cast<ChunkEncoder *>(jpeg->client_data);
    }

    void emptyBuffer()
    {
        m_destination.next_output_byte = m_buffer.data();
        m_destination.free_in_buffer = m_buffer.size();
    }

    void keep(std::size_t length)
    {
        m_stream.insert(m_stream.end(), m_buffer.begin(),
                        m_buffer.begin() + static_cast<std::ptrdiff_t>(length));
        emptyBuffer();
    }

    bool start(int height)
    {
        if (setjmp(m_fault) != 0) {
            return false;
        }
        if (m_jpeg.mem == nullptr) {
            jpeg_create_compress(&m_jpeg);
            m_jpeg.dest = &m_destination;
            m_jpeg.input_components = 4;
            m_jpeg.in_color_space = JCS_EXT_RGBX;
            m_jpeg.image_width = static_cast<JDIMENSION>(m_form.size.width);
            jpeg_set_defaults(&m_jpeg);
            jpeg_set_quality(&m_jpeg, m_form.quality, TRUE);
            m_jpeg.comp_info[0].h_samp_factor = m_form.colourSampling;
            m_jpeg.comp_info[0].v_samp_factor = m_form.colourSampling;
            m_jpeg.restart_in_rows = ChunkHeight / (DCTSIZE * m_form.colourSampling);
        }
        m_jpeg.image_height = static_cast<JDIMENSION>(height);
        jpeg_start_compress(&m_jpeg, TRUE);
        return true;
    }

    bool writeSegment(const Segment &segment)
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
        return true;
    }

    const JpegForm m_form;
    std::vector<std::uint8_t> m_row;
    std::array<std::uint8_t, BufferLength> m_buffer = {};
    Bytes m_stream;
    jpeg_compress_struct m_jpeg = {};
    jpeg_error_mgr m_errors = {};
    jpeg_destination_mgr m_destination = {};
    std::jmp_buf m_fault = {};
};

/// Chunks are encoded on all processors, each as a small picture. What follows the first one's headers are
/// then restart intervals of one large picture, with a restart marker between them (ITU-T T.81, B.2.1).
class JpegEncoder : public RowEncoder
{
public:
    JpegEncoder(OutputFile &output, PixelSize size, double quality, const CopyMetadata &metadata)
        : m_output(output)
        , m_form{size, static_cast<int>(std::lround(std::clamp(quality, 0.0, 1.0) * 100)),
                 quality < FinestColoursFrom ? 2 : 1}
        , m_segments(segmentsOf(metadata))
    {}

    Order order() const override { return Order::AtOnce; }
    int chunkHeight() const override { return ChunkHeight; }
    Result<void> begin() override
    {
        // The library looks at the size of a chunk alone, and the frame's header has two bytes for a side.
        const bool fits = std::max(m_form.size.width, m_form.size.height) <= JPEG_MAX_DIMENSION;
        return fits ? Result<void>() : tl::unexpected(Fault::CannotWrite);
    }

    Result<void> encodeChunk(int chunk, int top, int height, const RowReader &readRow) override
    {
        auto encoder = m_encoders.take([this] { return std::make_unique<ChunkEncoder>(m_form); });
        const std::span<const Segment> all = m_segments;
        Bytes stream = encoder->encode(top, height, readRow, chunk == 0 ? all : all.first(0));
        m_encoders.giveBack(std::move(encoder));
        if (stream.empty()) {
            return tl::unexpected(Fault::CannotWrite);
        }
        m_pieces.add(chunk, chunk == 0 ? beginning(std::move(stream)) : continuation(chunk, stream),
                     [this](const Bytes &piece) { m_output.write(piece); });
        return outcome();
    }

    Result<void> finish() override
    {
        m_output.write(EndOfImage);
        return outcome();
    }

private:
    static constexpr std::uint8_t FrameMarker = 0xC0; // baseline, as with tables of 8 bits
    static constexpr std::uint8_t ScanMarker = 0xDA;
    static constexpr std::uint8_t FirstRestartMarker = 0xD0; // of eight
    static constexpr std::array<std::uint8_t, 2> EndOfImage = {0xFF, 0xD9};

    /// All of the first chunk's stream up to its end, with the height of the whole picture.
    Bytes beginning(Bytes stream) const
    {
        const std::size_t frame = findSegment(stream, FrameMarker);
        stream[frame + 5] = static_cast<std::uint8_t>(m_form.size.height >> 8);
        stream[frame + 6] = static_cast<std::uint8_t>(m_form.size.height);
        stream.erase(stream.end() - EndOfImage.size(), stream.end());
        return stream;
    }

    /// A restart marker and the coded data of a chunk's stream.
    static Bytes continuation(int chunk, const Bytes &stream)
    {
        const std::size_t scan = findSegment(stream, ScanMarker);
        const std::size_t data = scan + 2U + (std::size_t{stream[scan + 2]} << 8U) + stream[scan + 3];
        Bytes piece = {0xFF, static_cast<std::uint8_t>(FirstRestartMarker + (chunk - 1) % 8)};
        piece.insert(piece.end(), stream.begin() + static_cast<std::ptrdiff_t>(data),
                     stream.end() - EndOfImage.size());
        return piece;
    }

    Result<void> outcome() const
    {
        return m_output.hasFailed() ? Result<void>(tl::unexpected(Fault::CannotWrite)) : Result<void>();
    }

    OutputFile &m_output;
    const JpegForm m_form;
    const std::vector<Segment> m_segments;
    Spares<ChunkEncoder> m_encoders;
    OrderedPieces<Bytes> m_pieces;
};

} // namespace

std::unique_ptr<RowEncoder> makeJpegEncoder(OutputFile &output, PixelSize size, double quality,
                                            const CopyMetadata &metadata)
{
    return std::make_unique<JpegEncoder>(output, size, quality, metadata);
}

} // namespace imageworker
