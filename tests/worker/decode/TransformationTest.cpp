#include "Transformation.h"

#include "PlaneTurn.h"

#include <functional>
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

    /// Each number from the place that @p origin gives.
    Numbers changed(PixelSize result, const std::function<std::pair<int, int>(int, int)> &origin) const
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
};

Numbers numbers(PixelSize size)
{
    Numbers picture{size, std::vector<int>(static_cast<std::size_t>(size.width * size.height))};
    std::iota(picture.values.begin(), picture.values.end(), 0);
    return picture;
}

template<typename Sample>
std::vector<int> throughPlanes(const Transformation &transformation, const Numbers &picture)
{
    std::vector<Sample> stored(picture.values.begin(), picture.values.end());
    const PixelSize size = transformation.size();
    std::vector<Sample> shown(static_cast<std::size_t>(size.width * size.height));
    const auto view = [](std::vector<Sample> &samples, PixelSize of) {
        return PlaneView{reinterpret_cast<std::uint8_t *>(samples.data()),
                         static_cast<std::ptrdiff_t>(sizeof(Sample)) * of.width, of.width, of.height};
    };
    copyTurned(partOf(view(stored, picture.size), transformation.crop(), sizeof(Sample)),
               transformation.orientation(), view(shown, size), sizeof(Sample));
    return {shown.begin(), shown.end()};
}

TEST(Transformation, ShouldAddStepsInAnyOrder)
{
    // Every sequence of four steps out of the four there are, on a picture with an odd and an even side.
    const Numbers stored = numbers({15, 12});
    for (unsigned sequence = 0; sequence < 256; ++sequence) {
        SCOPED_TRACE(sequence);
        Transformation transformation(stored.size);
        Numbers expected = stored;
        for (unsigned step = 0; step < 4; ++step) {
            const auto [width, height] = expected.size;
            switch ((sequence >> (2 * step)) & 3) {
            case 0:
                transformation.rotateAnticlockwise(1);
                expected = expected.changed(
                    {height, width}, [last = width - 1](int x, int y) { return std::pair(last - y, x); });
                break;
            case 1:
                transformation.flipHorizontally();
                expected = expected.changed(
                    expected.size, [last = width - 1](int x, int y) { return std::pair(last - x, y); });
                break;
            case 2:
                transformation.flipVertically();
                expected = expected.changed(
                    expected.size, [last = height - 1](int x, int y) { return std::pair(x, last - y); });
                break;
            default:
                ASSERT_TRUE(transformation.cropTo(2, 1, width - 3, height - 2));
                expected = expected.changed({width - 3, height - 2},
                                            [](int x, int y) { return std::pair(2 + x, 1 + y); });
                break;
            }
        }
        ASSERT_EQ(transformation.size(), expected.size);
        EXPECT_EQ(throughPlanes<std::uint8_t>(transformation, stored), expected.values);
        EXPECT_EQ(throughPlanes<std::uint16_t>(transformation, stored), expected.values);
    }
}

TEST(Transformation, ShouldFollowExifOrientation)
{
    const Numbers stored = numbers({3, 2}); // 0 1 2 over 3 4 5
    const std::vector<std::vector<int>> expected = {
        {0, 1, 2, 3, 4, 5}, {2, 1, 0, 5, 4, 3}, {5, 4, 3, 2, 1, 0}, {3, 4, 5, 0, 1, 2},
        {0, 3, 1, 4, 2, 5}, {3, 0, 4, 1, 5, 2}, {5, 2, 4, 1, 3, 0}, {2, 5, 1, 4, 0, 3}};
    for (unsigned orientation = 1; orientation <= 8; ++orientation) {
        SCOPED_TRACE(orientation);
        Transformation transformation(stored.size);
        transformation.applyExifOrientation(orientation);
        EXPECT_EQ(throughPlanes<std::uint8_t>(transformation, stored), expected[orientation - 1]);
    }
}

TEST(Transformation, ShouldRefuseCropsThatLeaveNothing)
{
    Transformation transformation({10, 10});
    EXPECT_FALSE(transformation.cropTo(10, 0, 5, 5));
    EXPECT_FALSE(transformation.cropTo(0, 0, 5, 0));
    EXPECT_FALSE(transformation.cropTo(-5, 0, 5, 5));
    EXPECT_EQ(transformation.size(), (PixelSize{10, 10}));
}

} // namespace

} // namespace imageworker
