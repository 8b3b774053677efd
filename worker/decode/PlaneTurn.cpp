#include "PlaneTurn.h"

#include <algorithm>
#include <libyuv.h>
#include <utility>

namespace imageworker {

namespace {

PlaneView upsideDown(const PlaneView &plane)
{
    return {plane.data + plane.stride * (plane.height - 1), -plane.stride, plane.width, plane.height};
}

void copyBytes(const PlaneView &source, Turn turn, const PlaneView &target)
{
    const auto call = [](auto *function, const PlaneView &from, const PlaneView &to) {
        function(from.data, static_cast<int>(from.stride), to.data, static_cast<int>(to.stride), from.width,
                 from.height);
    };
    if (turn.transposed) {
        // A quarter turn clockwise reads the rows backwards; a source upside down undoes that.
        call(libyuv::RotatePlane90, turn.mirroredY ? source : upsideDown(source),
             turn.mirroredX ? upsideDown(target) : target);
    } else {
        call(turn.mirroredX ? libyuv::MirrorPlane : libyuv::CopyPlane,
             turn.mirroredY ? upsideDown(source) : source, target);
    }
}

/// In blocks, so that both sides stay within the cache while columns become rows.
void copyWords(const PlaneView &source, Turn turn, const PlaneView &target)
{
    constexpr int Block = 32;
    const std::ptrdiff_t across = turn.mirroredX ? -2 : 2;
    const std::ptrdiff_t down = turn.mirroredY ? -source.stride : source.stride;
    const std::uint8_t *first = source.data + (turn.mirroredX ? std::ptrdiff_t{2} * (source.width - 1) : 0) +
                                (turn.mirroredY ? source.stride * (source.height - 1) : 0);
    const std::ptrdiff_t stepX = turn.transposed ? down : across;
    const std::ptrdiff_t stepY = turn.transposed ? across : down;
    for (int top = 0; top < target.height; top += Block) {
        for (int left = 0; left < target.width; left += Block) {
            const int bottom = std::min(top + Block, target.height);
            const int right = std::min(left + Block, target.width);
            for (int y = top; y < bottom; ++y) {
                auto *output = reinterpret_cast<std::uint16_t *>(target.data + y * target.stride);
                const std::uint8_t *input = first + y * stepY;
                for (int x = left; x < right; ++x) {
                    output[x] = *reinterpret_cast<const std::uint16_t *>(input + x * stepX);
                }
            }
        }
    }
}

} // namespace

bool copyTurned(const PlaneView &source, Turn turn, const PlaneView &target, std::size_t sampleBytes)
{
    const auto [width, height] =
        turn.transposed ? std::pair(source.height, source.width) : std::pair(source.width, source.height);
    if (target.width != width || target.height != height) {
        return false;
    }
    if (sampleBytes == 1) {
        copyBytes(source, turn, target);
    } else {
        copyWords(source, turn, target);
    }
    return true;
}

PlaneView partOf(const PlaneView &plane, PixelRectangle part, std::size_t sampleBytes)
{
    return {plane.data + plane.stride * part.y + static_cast<std::ptrdiff_t>(sampleBytes) * part.x,
            plane.stride, part.width, part.height};
}

} // namespace imageworker
