#include "BlockMarks.h"

extern "C" {
#include <libavutil/frame.h>
#include <libavutil/pixdesc.h>
}

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace imageworker {

namespace {

constexpr int BlockSide = 16;
constexpr int MarkSide = 8;

/// Black and white in an order that no picture has. It lies in the upper left of its block: the filters of
/// decoded neighbours change three samples at the right and at the bottom.
constexpr std::array<unsigned, MarkSide> Mark = {0x9C, 0x35, 0xE2, 0x4B, 0x57, 0xD8, 0x2E, 0xA1};

constexpr bool isWhite(int x, int y)
{
    return ((Mark[static_cast<std::size_t>(y)] >> x) & 1) != 0;
}

/// Calls @p visit with the first sample of each mark until it gives true; false when it never does.
template<typename Sample, typename Visit>
bool anyOfMarks(const AVFrame &frame, const Visit &visit)
{
    for (int y = 0; y + MarkSide <= frame.height; y += BlockSide) {
        for (int x = 0; x + MarkSide <= frame.width; x += BlockSide) {
            auto *line = frame.data[0] + std::ptrdiff_t{y} * frame.linesize[0];
            if (visit(reinterpret_cast<Sample *>(line) + x)) {
                return true;
            }
        }
    }
    return false;
}

template<typename Sample>
void writeMarks(const AVFrame &frame, Sample white)
{
    std::array<std::array<Sample, MarkSide>, MarkSide> mark = {};
    for (int y = 0; y < MarkSide; ++y) {
        for (int x = 0; x < MarkSide; ++x) {
            mark[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] = isWhite(x, y) ? white : Sample{};
        }
    }
    const std::ptrdiff_t stride = frame.linesize[0] / std::ptrdiff_t{sizeof(Sample)};
    anyOfMarks<Sample>(frame, [&](Sample *first) {
        for (std::ptrdiff_t y = 0; y < MarkSide; ++y) {
            std::ranges::copy(mark[static_cast<std::size_t>(y)], first + y * stride);
        }
        return false;
    });
}

/// Whether a mark is there. A filter may have added an offset to it (sample adaptive offset, ITU-T H.265,
/// 8.7.3), so only black and white are told apart.
template<typename Sample>
bool hasMark(const AVFrame &frame, Sample white)
{
    const std::ptrdiff_t stride = frame.linesize[0] / std::ptrdiff_t{sizeof(Sample)};
    return anyOfMarks<const Sample>(frame, [&](const Sample *first) {
        for (int index = 0; index < MarkSide * MarkSide; ++index) {
            const int x = index % MarkSide;
            const int y = index / MarkSide;
            if ((first[y * stride + x] > white / 2) != isWhite(x, y)) {
                return false;
            }
        }
        return true;
    });
}

/// Bits of a sample; 0 for a frame without planes.
int depthOf(const AVFrame &frame)
{
    const AVPixFmtDescriptor *descriptor = av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format));
    return descriptor == nullptr || frame.data[0] == nullptr ? 0 : descriptor->comp[0].depth;
}

} // namespace

void markBlocks(const AVFrame &frame)
{
    const int depth = depthOf(frame);
    if (depth == 8) {
        writeMarks<std::uint8_t>(frame, 255);
    } else if (depth > 8) {
        writeMarks<std::uint16_t>(frame, static_cast<std::uint16_t>((1U << depth) - 1));
    }
}

bool hasMarkedBlock(const AVFrame &frame)
{
    const int depth = depthOf(frame);
    return depth == 8
               ? hasMark<std::uint8_t>(frame, 255)
               : depth > 8 && hasMark<std::uint16_t>(frame, static_cast<std::uint16_t>((1U << depth) - 1));
}

} // namespace imageworker
