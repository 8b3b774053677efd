#pragma once

#include <cstddef>
#include <cstdint>

namespace imageworker {

/// Counts what a photo refers to. References multiply: a grid may name one tile in all its places, items may
/// share bytes, overlays may hold overlays. Without these limits a small file could ask for any amount of
/// work and a copy of any size. Cameras write 48 to 512 tiles and name each once.
class ReferenceBudget
{
public:
    explicit ReferenceBudget(std::uint64_t fileSize)
        : m_bytes(ReuseOfFile * fileSize + FurtherReuse)
    {}

    /// A picture that is derived, shown alone, a layer or an opacity; false when it is one too many.
    bool takePicture() { return m_pictures-- > 0; }

    /// Tiles of a grid; false when they are too many.
    bool takeTiles(std::size_t count) { return take(m_tiles, count); }

    /// Bytes of coded data or of a profile, each time they are referred to; false when they are too many.
    bool takeBytes(std::uint64_t count) { return take(m_bytes, count); }

private:
    // Every picture may be shown twice. Small tiles may be repeated further.
    static constexpr std::uint64_t ReuseOfFile = 2;
    static constexpr std::uint64_t FurtherReuse = std::uint64_t{1} << 20U;

    template<typename Number>
    static bool take(Number &left, Number count)
    {
        const bool isLeft = count <= left;
        left -= isLeft ? count : left;
        return isLeft;
    }

    int m_pictures = 256;
    std::size_t m_tiles = 16'384;
    std::uint64_t m_bytes;
};

} // namespace imageworker
