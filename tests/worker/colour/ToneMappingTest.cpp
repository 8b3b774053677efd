#include "SrgbTransform.h"
#include "TransferCurve.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace imageworker {

namespace {

constexpr double WhiteOfAPage = 203; // cd/m2, Recommendation ITU-R BT.2408-4, 2.1
constexpr double PqMaximum = 10'000; // cd/m2

/// The 12-bit code of a part of light, 0 to 1.
std::uint16_t codeOf(unsigned transfer, double linear)
{
    std::uint16_t code = 0;
    while (linearOf(transfer, code / 4095.0) < linear) {
        ++code;
    }
    return code;
}

/// What a transform of 12 bits and the primaries of sRGB makes of one pixel, as linear light.
std::array<double, 3> shownLight(unsigned transfer, const std::array<std::uint16_t, 3> &codes)
{
    RgbRow row(1);
    row.red[0] = codes[0];
    row.green[0] = codes[1];
    row.blue[0] = codes[2];
    std::array<std::uint8_t, 4> rgba = {};
    makeSrgbTransform({}, {.primaries = 1, .transfer = transfer}, 4095, false)->convert(row, rgba.data());
    std::array<double, 3> light = {};
    std::ranges::transform(rgba.begin(), rgba.begin() + 3, light.begin(),
                           [](std::uint8_t code) { return linearOfSrgb(code / 255.0); });
    return light;
}

TEST(ToneMapping, ShouldKeepOrderGreyAndHighlights)
{
    for (const unsigned transfer : {TransferPq, TransferHlg}) {
        double brightest = 0;
        for (std::uint16_t code = 255; code < 4096; code = static_cast<std::uint16_t>(code + 256)) {
            const auto light = shownLight(transfer, {code, code, code});
            EXPECT_GE(light[0], brightest) << code;
            EXPECT_EQ(light[0], light[2]) << code;
            brightest = light[0];
        }
        EXPECT_GE(brightest, 0.95);
    }
}

TEST(ToneMapping, ShouldLeaveLightUpToHalfOfWhiteAsItIs)
{
    for (const double share : {0.02, 0.1, 0.25, 0.5}) {
        SCOPED_TRACE(share);
        const std::uint16_t pq = codeOf(TransferPq, share * WhiteOfAPage / PqMaximum);
        // Recommendation ITU-R BT.2100-2, table 5: a display of 1000 cd/m2 shows the scene's light to the
        // power of 1.2.
        const std::uint16_t hlg = codeOf(TransferHlg, std::pow(share * WhiteOfAPage / 1000, 1 / 1.2));
        EXPECT_NEAR(shownLight(TransferPq, {pq, pq, pq})[0], share, 0.01 * share + 0.003);
        EXPECT_NEAR(shownLight(TransferHlg, {hlg, hlg, hlg})[0], share, 0.01 * share + 0.003);
    }
}

TEST(ToneMapping, ShouldKeepHue)
{
    // Whichever channel is brightest: the shares of light stay what they were.
    std::array<double, 3> light = {80, 300, 800}; // cd/m2
    do {
        SCOPED_TRACE(testing::Message() << light[0] << ", " << light[1] << ", " << light[2]);
        std::array<std::uint16_t, 3> codes = {};
        std::ranges::transform(light, codes.begin(),
                               [](double value) { return codeOf(TransferPq, value / PqMaximum); });
        const auto shown = shownLight(TransferPq, codes);
        const double brightest = std::ranges::max(shown);
        EXPECT_GT(brightest, 0.85);
        EXPECT_LT(brightest, 1);
        for (std::size_t channel = 0; channel < 3; ++channel) {
            EXPECT_NEAR(shown[channel] / brightest, light[channel] / 800, 0.01);
        }
    } while (std::ranges::next_permutation(light).found);
}

} // namespace

} // namespace imageworker
