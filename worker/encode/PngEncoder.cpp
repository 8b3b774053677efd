#include "PngEncoder.h"

#include "MagicBytes.h"
#include "ObjectPool.h"
#include "PngFilter.h"
#include "ReorderBuffer.h"

#include <algorithm>
#include <array>
#include <bit>
#include <isa-l.h>
#include <iterator>
#include <string_view>
#include <zlib.h>

namespace imageworker {

namespace {

constexpr std::size_t ChunkMemory = std::size_t{1} << 20U; // of unfiltered pixels
constexpr int TallestChunk = 64;                           // rows; tile heights are multiples of it

void appendNumber(Bytes &bytes, std::uint32_t value)
{
    for (int shift = 24; shift >= 0; shift -= 8) {
        bytes.push_back(static_cast<std::uint8_t>(value >> shift));
    }
}

/// Filters and compresses one chunk. Its buffers are large, so it is used again for other chunks.
class ChunkCompressor
{
public:
    ChunkCompressor(PixelSize size, int chunkHeight)
        : m_rowLength(static_cast<std::size_t>(size.width) * 4)
        , m_rows(2 * m_rowLength)
        , m_filtered((m_rowLength + 1) * static_cast<std::size_t>(chunkHeight))
        , m_levelBuffer(ISAL_DEF_LVL2_DEFAULT)
    {}

    void filter(int top, int height, const RowReader &readRow)
    {
        std::uint8_t *row = m_rows.data();
        std::uint8_t *above = row + m_rowLength;
        std::uint8_t *filtered = m_filtered.data();
        for (int y = top; y < top + height; ++y, filtered += m_rowLength + 1) {
            readRow(y, row);
            if (y == top) {
                filterSub(row, m_rowLength, filtered); // the row above belongs to another chunk
            } else {
                filterPaeth(row, above, m_rowLength, filtered);
            }
            std::swap(row, above);
        }
        m_length = (m_rowLength + 1) * static_cast<std::size_t>(height);
    }

    /// Appends the compressed rows to @p output; the last chunk ends the deflate stream.
    void compress(bool isLast, Bytes &output)
    {
        isal_zstream stream;
        isal_deflate_init(&stream);
        stream.level = 2;
        stream.level_buf = m_levelBuffer.data();
        stream.level_buf_size = static_cast<std::uint32_t>(m_levelBuffer.size());
        stream.flush = isLast ? NO_FLUSH : FULL_FLUSH;
        stream.end_of_stream = isLast ? 1 : 0;
        stream.next_in = m_filtered.data();
        stream.avail_in = static_cast<std::uint32_t>(m_length);
        constexpr std::size_t Step = std::size_t{256} << 10U;
        do {
            const std::size_t length = output.size();
            output.resize(length + Step);
            stream.next_out = output.data() + length;
            stream.avail_out = Step;
            isal_deflate(&stream);
            output.erase(output.end() - stream.avail_out, output.end());
        } while (stream.avail_out == 0);
    }

    std::uint32_t adler() const { return isal_adler32(1, m_filtered.data(), m_length); }
    std::uint64_t length() const { return m_length; }

private:
    std::size_t m_rowLength;
    Bytes m_rows;
    Bytes m_filtered;
    Bytes m_levelBuffer;
    std::size_t m_length = 0;
};

class PngEncoder : public RowEncoder
{
public:
    PngEncoder(OutputFile &output, PixelSize size, const CopyMetadata &metadata)
        : m_output(output)
        , m_size(size)
        , m_metadata(metadata)
        , m_chunkHeight(static_cast<int>(std::clamp<std::size_t>(
              std::bit_floor(ChunkMemory / (static_cast<std::size_t>(size.width) * 4)), 8, TallestChunk)))
    {}

    Order order() const override { return Order::AtOnce; }
    int chunkHeight() const override { return m_chunkHeight; }

    Result<void> begin() override
    {
        m_output.write(PngSignature);
        Bytes header;
        appendNumber(header, static_cast<std::uint32_t>(m_size.width));
        appendNumber(header, static_cast<std::uint32_t>(m_size.height));
        // Bits, RGBA, the only methods of compression and filtering, not interlaced.
        std::ranges::copy(std::to_array<std::uint8_t>({8, 6, 0, 0, 0}), std::back_inserter(header));
        writePart("IHDR", header);
        writePart("sRGB", {0});                      // perceptual
        writePart("gAMA", {0x00, 0x00, 0xB1, 0x8F}); // 1 / 2.2, for readers that do not know sRGB
        if (!m_metadata.exif.empty()) {
            writePart("eXIf", m_metadata.exif);
        }
        if (!m_metadata.xmp.empty()) {
            Bytes text(PngXmpStart.begin(), PngXmpStart.end());
            text.insert(text.end(), m_metadata.xmp.begin(), m_metadata.xmp.end());
            writePart("iTXt", text);
        }
        return m_output.outcome();
    }

    Result<void> encodeChunk(int chunk, int top, int height, const RowReader &readRow) override
    {
        auto compressor = m_compressors.acquire(
            [this] { return std::make_unique<ChunkCompressor>(m_size, m_chunkHeight); });
        compressor->filter(top, height, readRow);
        Piece piece;
        if (chunk == 0) {
            piece.data = {0x78, 0x5E}; // windows of 32 KiB, fast compression (RFC 1950, 2.2)
        }
        piece.isLast = top + height == m_size.height;
        compressor->compress(piece.isLast, piece.data);
        piece.adler = compressor->adler();
        piece.length = compressor->length();
        m_compressors.release(std::move(compressor));
        m_pieces.add(chunk, std::move(piece), [this](Piece &next) { writePiece(next); });
        return m_output.outcome();
    }

    Result<void> finish() override
    {
        writePart("IEND", {});
        return m_output.outcome();
    }

private:
    struct Piece
    {
        Bytes data;
        std::uint32_t adler = 1;
        std::uint64_t length = 0; ///< before compression
        bool isLast = false;
    };

    void writePiece(Piece &piece)
    {
        m_adler = adler32_combine(m_adler, piece.adler, static_cast<z_off_t>(piece.length));
        if (piece.isLast) {
            appendNumber(piece.data, static_cast<std::uint32_t>(m_adler));
        }
        writePart("IDAT", piece.data);
    }

    /// One chunk of the file (W3C PNG, 5.3).
    void writePart(std::string_view type, const Bytes &content)
    {
        Bytes start;
        appendNumber(start, static_cast<std::uint32_t>(content.size()));
        start.insert(start.end(), type.begin(), type.end());
        std::uint32_t check = crc32_gzip_refl(0, start.data() + 4, type.size());
        check = crc32_gzip_refl(check, content.data(), content.size());
        Bytes end;
        appendNumber(end, check);
        m_output.write(start);
        m_output.write(content);
        m_output.write(end);
    }

    OutputFile &m_output;
    const PixelSize m_size;
    const CopyMetadata m_metadata;
    const int m_chunkHeight;
    ObjectPool<ChunkCompressor> m_compressors;
    ReorderBuffer<Piece> m_pieces;
    uLong m_adler = 1; ///< of the rows written so far
};

} // namespace

std::unique_ptr<RowEncoder> makePngEncoder(OutputFile &output, PixelSize size, const CopyMetadata &metadata)
{
    return std::make_unique<PngEncoder>(output, size, metadata);
}

} // namespace imageworker
