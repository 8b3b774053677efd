#include "JpegEncoder.h"

#include "ColourSpace.h"
#include "Exif.h"
#include "JpegChunkEncoder.h"
#include "MagicBytes.h"
#include "ObjectPool.h"
#include "ReorderBuffer.h"
#include "Xmp.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>
#include <string>
#include <string_view>

namespace imageworker {

namespace {

constexpr std::size_t LongestSegment = 65'533; // what a marker's two bytes of length leave
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

Bytes segment(std::string_view prefix, const Bytes &content)
{
    Bytes bytes;
    if (!content.empty() && prefix.size() + content.size() <= LongestSegment) {
        bytes.assign(prefix.begin(), prefix.end());
        bytes.insert(bytes.end(), content.begin(), content.end());
    }
    return bytes;
}

std::vector<JpegSegment> segmentsOf(const CopyMetadata &metadata)
{
    std::vector<JpegSegment> segments;
    segments.push_back(
        {JPEG_APP0 + 1,
         segment(JpegExifStart, exifWithin(metadata.exif, LongestSegment - JpegExifStart.size()))});
    for (Bytes &part : xmpSegments(metadata.xmp, LongestSegment)) {
        segments.push_back({JPEG_APP0 + 1, std::move(part)});
    }
    // Number and count of the parts.
    segments.push_back({JPEG_APP0 + 2, segment(std::string(JpegIccStart) + "\1\1", profileOfSrgb())});
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

/// Each chunk is encoded as a small picture of its own, on any thread. The file has the headers of the first
/// one; the coded data of each chunk become a restart interval of the whole picture (ITU-T T.81, B.2.1).
class JpegEncoder : public RowEncoder
{
public:
    JpegEncoder(OutputFile &output, PixelSize size, double quality, const CopyMetadata &metadata)
        : m_output(output)
        , m_parameters{size, static_cast<int>(std::lround(std::clamp(quality, 0.0, 1.0) * 100)),
                       quality < FinestColoursFrom ? 2 : 1}
        , m_segments(segmentsOf(metadata))
    {}

    Order order() const override { return Order::AtOnce; }
    int chunkHeight() const override { return JpegChunkEncoder::ChunkHeight; }

    Result<void> begin() override
    {
        // The library looks at the size of a chunk alone, and the frame's header has two bytes for a side.
        const bool fits = std::max(m_parameters.size.width, m_parameters.size.height) <= JPEG_MAX_DIMENSION;
        return fits ? Result<void>() : tl::unexpected(ImageWorkerFault::CannotWrite);
    }

    Result<void> encodeChunk(int chunk, int top, int height, const RowReader &readRow) override
    {
        auto encoder =
            m_encoders.acquire([this] { return std::make_unique<JpegChunkEncoder>(m_parameters); });
        const std::span<const JpegSegment> all = m_segments;
        Bytes stream = encoder->encode(top, height, readRow, chunk == 0 ? all : all.first(0));
        m_encoders.release(std::move(encoder));
        if (stream.empty()) {
            return tl::unexpected(ImageWorkerFault::CannotWrite);
        }
        m_pieces.add(chunk, chunk == 0 ? beginning(std::move(stream)) : continuation(chunk, stream),
                     [this](const Bytes &piece) { m_output.write(piece); });
        return m_output.outcome();
    }

    Result<void> finish() override
    {
        m_output.write(EndOfImage);
        return m_output.outcome();
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
        stream[frame + 5] = static_cast<std::uint8_t>(m_parameters.size.height >> 8);
        stream[frame + 6] = static_cast<std::uint8_t>(m_parameters.size.height);
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

    OutputFile &m_output;
    const JpegParameters m_parameters;
    const std::vector<JpegSegment> m_segments;
    ObjectPool<JpegChunkEncoder> m_encoders;
    ReorderBuffer<Bytes> m_pieces;
};

} // namespace

std::unique_ptr<RowEncoder> makeJpegEncoder(OutputFile &output, PixelSize size, double quality,
                                            const CopyMetadata &metadata)
{
    return std::make_unique<JpegEncoder>(output, size, quality, metadata);
}

} // namespace imageworker
