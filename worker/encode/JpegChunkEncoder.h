#pragma once

#include "RowEncoder.h"

#include <array>
#include <csetjmp>
#include <cstdio>
#include <jpeglib.h>
#include <span>
#include <vector>

namespace imageworker {

struct JpegParameters
{
    PixelSize size;
    int quality = 0;        ///< the library's, 0 to 100
    int colourSampling = 1; ///< luma samples for one chroma sample, on each axis
};

/// A marker and the bytes that follow it.
struct JpegSegment
{
    int marker = 0;
    Bytes bytes;
};

/// Encodes each chunk of a picture as a JPEG of its own whose restart interval is the whole chunk.
class JpegChunkEncoder
{
public:
    /// In rows. A restart interval holds 65,535 blocks (ITU-T T.81, B.2.4.4), enough for the widest picture.
    static constexpr int ChunkHeight = 32;

    explicit JpegChunkEncoder(const JpegParameters &parameters);
    ~JpegChunkEncoder();
    JpegChunkEncoder(const JpegChunkEncoder &) = delete;
    JpegChunkEncoder &operator=(const JpegChunkEncoder &) = delete;

    /// The JPEG of rows @p top to @p top + @p height, laid over white, with @p segments; empty after a fault.
    Bytes encode(int top, int height, const RowReader &readRow, std::span<const JpegSegment> segments);

private:
    static constexpr std::size_t BufferLength = 65'536;

    static JpegChunkEncoder &owner(j_compress_ptr jpeg);
    void emptyBuffer();
    void keep(std::size_t length);

    // The library reports faults with longjmp(): no function that calls setjmp() owns an object with a
    // destructor.
    bool start(int height);
    bool writeSegment(const JpegSegment &segment);
    bool encodeRow();
    bool end();

    const JpegParameters m_parameters;
    std::vector<std::uint8_t> m_row;
    std::array<std::uint8_t, BufferLength> m_buffer = {};
    Bytes m_stream;
    jpeg_compress_struct m_jpeg = {};
    jpeg_error_mgr m_errors = {};
    jpeg_destination_mgr m_destination = {};
    std::jmp_buf m_fault = {};
};

} // namespace imageworker
