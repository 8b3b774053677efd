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

void copyBytes(const PlaneView &source, Orientation orientation, const PlaneView &target)
{
    const auto call = [](auto *function, const PlaneView &from, const PlaneView &to) {
        function(from.data, static_cast<int>(from.stride), to.data, static_cast<int>(to.stride), from.width,
                 from.height);
    };
    if (orientation.transposed) {
        // A quarter turn clockwise reads the rows backwards; a source upside down undoes that.
        call(libyuv::RotatePlane90, orientation.mirroredY ? source : upsideDown(source),
             orientation.mirroredX ? upsideDown(target) : target);
    } else {
        call(orientation.mirroredX ? libyuv::MirrorPlane : libyuv::CopyPlane,
             orientation.mirroredY ? upsideDown(source) : source, target);
    }
}

/// In blocks, so that both sides stay within the cache while columns become rows.
void copyWords(const PlaneView &source, Orientation orientation, const PlaneView &target)
{
    constexpr int Block = 32;
    const std::ptrdiff_t across = orientation.mirroredX ? -2 : 2;
    const std::ptrdiff_t down = orientation.mirroredY ? -source.stride : source.stride;
    const std::uint8_t *first = source.data +
                                (orientation.mirroredX ? std::ptrdiff_t{2} * (source.width - 1) : 0) +
                                (orientation.mirroredY ? source.stride * (source.height - 1) : 0);
    const std::ptrdiff_t stepX = orientation.transposed ? down : across;
    const std::ptrdiff_t stepY = orientation.transposed ? across : down;
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

bool copyTurned(const PlaneView &source, Orientation orientation, const PlaneView &target,
                std::size_t sampleBytes)
{
    const auto [width, height] = orientation.transposed ? std::pair(source.height, source.width)
                                                        : std::pair(source.width, source.height);
    if (target.width != width || target.height != height) {
        return false;
    }
    if (sampleBytes == 1) {
        copyBytes(source, orientation, target);
    } else {
        copyWords(source, orientation, target);
    }
    return true;
}

PlaneView partOf(const PlaneView &plane, PixelRectangle part, std::size_t sampleBytes)
{
    return {plane.data + plane.stride * part.y + static_cast<std::ptrdiff_t>(sampleBytes) * part.x,
            plane.stride, part.width, part.height};
}

} // namespace imageworker
