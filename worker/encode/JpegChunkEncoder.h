#pragma once

#include "RowEncoder.h"

#include <array>
#include <csetjmp>
#include <cstdio>
#include <jpeglib.h>
#include <span>
#include <vector>

namespace imageworker {

struct JpegForm
{
    PixelSize size;
    int quality = 0;        ///< the library's, 0 to 100
    int colourSampling = 1; ///< pixels of brightness for one of colour, along each axis
};

/// What is put into a file behind a marker.
struct JpegSegment
{
    int marker = 0;
    Bytes bytes;
};

/// Encodes chunks of a picture, each as a stream of its own with a restart interval of just its length.
class JpegChunkEncoder
{
public:
    /// Rows; those of the widest picture fit into a restart interval, 65,535 blocks (ITU-T T.81, B.2.4.4).
    static constexpr int ChunkHeight = 32;

    explicit JpegChunkEncoder(const JpegForm &form);
    ~JpegChunkEncoder();
    JpegChunkEncoder(const JpegChunkEncoder &) = delete;
    JpegChunkEncoder &operator=(const JpegChunkEncoder &) = delete;

    /// The stream of rows @p top to @p top + @p height, laid over white, with @p segments; empty after a
    /// fault.
    Bytes encode(int top, int height, const RowReader &readRow, std::span<const JpegSegment> segments);

private:
    static constexpr std::size_t BufferLength = 65'536;

    static JpegChunkEncoder &owner(j_compress_ptr jpeg);
    void emptyBuffer();
    void keep(std::size_t length);

    // The library reports faults by a jump: a function that sets its goal owns nothing that needs destroying.
    bool start(int height);
    bool writeSegment(const JpegSegment &segment);
    bool encodeRow();
    bool end();

    const JpegForm m_form;
    std::vector<std::uint8_t> m_row;
    std::array<std::uint8_t, BufferLength> m_buffer = {};
    Bytes m_stream;
    jpeg_compress_struct m_jpeg = {};
    jpeg_error_mgr m_errors = {};
    jpeg_destination_mgr m_destination = {};
    std::jmp_buf m_fault = {};
};

} // namespace imageworker
