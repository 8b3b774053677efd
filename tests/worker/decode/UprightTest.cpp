#include "Upright.h"

#include "PlaneTurn.h"

#include <gtest/gtest.h>
#include <numeric>
#include <vector>

namespace imageworker {

namespace {

/// A picture whose every pixel has its own number, changed in the plainest way.
struct Numbers
{
    PixelSize size;
    std::vector<int> values;

    int at(int x, int y) const
    {
        return values.at(static_cast<std::size_t>(y) * static_cast<std::size_t>(size.width) +
                         static_cast<std::size_t>(x));
    }

    template<typename Origin>
    Numbers changed(PixelSize result, Origin origin) const
    {
        Numbers other{result, {}};
        for (int y = 0; y < result.height; ++y) {
            for (int x = 0; x < result.width; ++x) {
                const auto [fromX, fromY] = origin(x, y);
                other.values.push_back(at(fromX, fromY));
            }
        }
        return other;
    }
    Numbers rotatedAnticlockwise() const
    {
        return changed({size.height, size.width},
                       [this](int x, int y) { return std::pair(size.width - 1 - y, x); });
    }
    Numbers leftAndRightExchanged() const
    {
        return changed(size, [this](int x, int y) { return std::pair(size.width - 1 - x, y); });
    }
    Numbers topAndBottomExchanged() const
    {
        return changed(size, [this](int x, int y) { return std::pair(x, size.height - 1 - y); });
    }
    Numbers cropped(int left, int top, int width, int height) const
    {
        return changed({width, height}, [=](int x, int y) { return std::pair(left + x, top + y); });
    }
};

Numbers numbers(PixelSize size)
{
    Numbers picture{size, std::vector<int>(static_cast<std::size_t>(size.width * size.height))};
    std::iota(picture.values.begin(), picture.values.end(), 0);
    return picture;
}

template<typename Sample>
std::vector<int> throughPlanes(const Upright &upright, const Numbers &picture)
{
    std::vector<Sample> stored(picture.values.begin(), picture.values.end());
    const PixelSize size = upright.size();
    std::vector<Sample> shown(static_cast<std::size_t>(size.width * size.height));
    const auto view = [](std::vector<Sample> &samples, PixelSize of) {
        return PlaneView{reinterpret_cast<std::uint8_t *>(samples.data()),
                         static_cast<std::ptrdiff_t>(sizeof(Sample)) * of.width, of.width, of.height};
    };
    copyTurned(partOf(view(stored, picture.size), upright.crop(), sizeof(Sample)), upright.turn(),
               view(shown, size), sizeof(Sample));
    return {shown.begin(), shown.end()};
}

void expectSame(const Upright &upright, const Numbers &stored, const Numbers &expected)
{
    ASSERT_EQ(upright.size(), expected.size);
    EXPECT_EQ(throughPlanes<std::uint8_t>(upright, stored), expected.values);
    EXPECT_EQ(throughPlanes<std::uint16_t>(upright, stored), expected.values);
}

TEST(Upright, ShouldAddStepsInAnyOrder)
{
    // Every sequence of four steps out of the four there are, on a picture with an odd and an even side.
    const Numbers stored = numbers({15, 12});
    for (unsigned sequence = 0; sequence < 256; ++sequence) {
        SCOPED_TRACE(sequence);
        Upright upright(stored.size);
        Numbers expected = stored;
        for (unsigned step = 0; step < 4; ++step) {
            switch ((sequence >> (2 * step)) & 3) {
            case 0:
                upright.rotateAnticlockwise(1);
                expected = expected.rotatedAnticlockwise();
                break;
            case 1:
                upright.flipHorizontally();
                expected = expected.leftAndRightExchanged();
                break;
            case 2:
                upright.flipVertically();
                expected = expected.topAndBottomExchanged();
                break;
            default:
                ASSERT_TRUE(upright.cropTo(2, 1, expected.size.width - 3, expected.size.height - 2));
                expected = expected.cropped(2, 1, expected.size.width - 3, expected.size.height - 2);
                break;
            }
        }
        expectSame(upright, stored, expected);
    }
}

TEST(Upright, ShouldFollowExifOrientation)
{
    const Numbers stored = numbers({3, 2}); // 0 1 2 over 3 4 5
    const std::vector<std::vector<int>> expected = {
        {0, 1, 2, 3, 4, 5}, {2, 1, 0, 5, 4, 3}, {5, 4, 3, 2, 1, 0}, {3, 4, 5, 0, 1, 2},
        {0, 3, 1, 4, 2, 5}, {3, 0, 4, 1, 5, 2}, {5, 2, 4, 1, 3, 0}, {2, 5, 1, 4, 0, 3}};
    for (unsigned orientation = 1; orientation <= 8; ++orientation) {
        SCOPED_TRACE(orientation);
        Upright upright(stored.size);
        upright.applyExifOrientation(orientation);
        EXPECT_EQ(throughPlanes<std::uint8_t>(upright, stored), expected[orientation - 1]);
    }
}

TEST(Upright, ShouldRefuseCropsThatLeaveNothing)
{
    Upright upright({10, 10});
    EXPECT_FALSE(upright.cropTo(10, 0, 5, 5));
    EXPECT_FALSE(upright.cropTo(0, 0, 5, 0));
    EXPECT_FALSE(upright.cropTo(-5, 0, 5, 5));
    EXPECT_EQ(upright.size(), (PixelSize{10, 10}));
}

} // namespace

} // namespace imageworker
