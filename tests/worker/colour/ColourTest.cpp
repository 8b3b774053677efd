#include "ExactColour.h"
#include "SrgbTransform.h"
#include "TransferCurve.h"
#include "YcbcrToRgb.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <random>

namespace imageworker {

namespace {

constexpr double WhiteOfAPage = 203; // cd/m2, Recommendation ITU-R BT.2408-4, 2.1
constexpr double PqMaximum = 10'000; // cd/m2

RgbRow randomCodes(int maximum)
{
    std::minstd_rand random(7);
    std::uniform_int_distribution<int> code(0, maximum);
    RgbRow codes(4000);
    for (auto *channel : {&codes.red, &codes.green, &codes.blue}) {
        std::ranges::generate(*channel, [&] { return static_cast<std::uint16_t>(code(random)); });
    }
    return codes;
}

/// Largest distance from what lcms2 gives in double precision, in codes.
double errorAgainstLcms(cmsHPROFILE profile, int maximum)
{
    const RgbRow codes = randomCodes(maximum);
    const Bytes saved = savedProfile(profile);
    Bytes rgba(codes.red.size() * 4);
    makeSrgbTransform(saved, {}, maximum, false)->convert(codes, rgba.data());
    const ExactSrgb exact(saved);
    double worst = 0;
    for (std::size_t x = 0; x < codes.red.size(); ++x) {
        const Pixel expected = exact.of({static_cast<double>(codes.red[x]) / maximum,
                                         static_cast<double>(codes.green[x]) / maximum,
                                         static_cast<double>(codes.blue[x]) / maximum});
        for (std::size_t channel = 0; channel < 3; ++channel) {
            worst = std::max(worst, std::abs(rgba[4 * x + channel] - 255 * expected[channel]));
        }
    }
    return worst;
}

TEST(Colour, ShouldFollowProfilesWithinOneCodeOfDoublePrecision)
{
    const Profile matrix = displayP3();
    const Profile table = tableProfile();
    for (const int maximum : {255, 4095}) {
        EXPECT_LT(errorAgainstLcms(matrix.get(), maximum), 1.0);
        EXPECT_LT(errorAgainstLcms(table.get(), maximum), 1.0);
    }
}

TEST(Colour, ShouldFollowAGreyProfileInGreyPicturesAndIgnoreProfilesThatDoNotFit)
{
    cmsToneCurve *curve = cmsBuildGamma(nullptr, 1.0); // unlike sRGB
    const Profile profile(cmsCreateGrayProfile(cmsD50_xyY(), curve));
    cmsFreeToneCurve(curve);
    RgbRow codes(256);
    for (std::uint16_t code = 0; code < 256; ++code) {
        codes.red[code] = codes.green[code] = codes.blue[code] = code;
    }
    Bytes rgba(256UL * 4);
    makeSrgbTransform(savedProfile(profile.get()), {}, 255, true)->convert(codes, rgba.data());
    for (std::size_t code = 0; code < 256; ++code) {
        ASSERT_NEAR(rgba[4 * code], 255 * srgbOfLinear(static_cast<double>(code) / 255), 1);
        ASSERT_EQ(rgba[4 * code], rgba[4 * code + 2]);
    }
    Bytes broken = savedProfile(displayP3().get());
    broken.resize(100);
    for (const Bytes &ignored : {savedProfile(profile.get()), broken}) {
        makeSrgbTransform(ignored, {}, 255, false)->convert(codes, rgba.data());
        for (std::size_t index = 0; index < rgba.size(); ++index) {
            ASSERT_EQ(rgba[index], index % 4 == 3 ? 255 : index / 4);
        }
    }
}

void expectExactConversion(const CodePoints &points, double kr, double kb, int depth)
{
    SCOPED_TRACE(testing::Message() << "matrix " << points.matrix << " depth " << depth);
    SampleFormat format;
    format.depth = depth;
    const YcbcrToRgb conversion(format, points);
    const RgbRow random = randomCodes((1 << depth) - 1);
    const std::array channels = {&random.red, &random.green, &random.blue};
    std::array<Bytes, 3> bytes;
    SampleRow samples = {};
    for (std::size_t plane = 0; plane < 3; ++plane) {
        bytes[plane].assign(channels[plane]->begin(), channels[plane]->end());
        samples[plane] = depth == 8 ? bytes[plane].data()
                                    : reinterpret_cast<const std::uint8_t *>(channels[plane]->data());
    }
    RgbRow codes(random.width());
    conversion.convert(samples, codes);
    for (std::size_t x = 0; x < codes.red.size(); ++x) {
        const Pixel exact =
            exactRgb(random.red[x], random.green[x], random.blue[x], kr, kb, points.fullRange, depth);
        const Pixel converted = {double(codes.red[x]), double(codes.green[x]), double(codes.blue[x])};
        for (std::size_t channel = 0; channel < 3; ++channel) {
            const double expected = std::clamp(exact[channel], 0.0, 1.0) * conversion.maximumCode();
            ASSERT_NEAR(converted[channel], expected, 0.51);
        }
    }
}

TEST(Colour, ShouldTurnYcbcrIntoRgbAsExactArithmeticDoes)
{
    for (const bool fullRange : {false, true}) {
        for (const int depth : {8, 10, 12}) {
            expectExactConversion({.matrix = 1, .fullRange = fullRange}, 0.2126, 0.0722, depth);
            expectExactConversion({.matrix = 6, .fullRange = fullRange}, 0.299, 0.114, depth);
            expectExactConversion({.matrix = 9, .fullRange = fullRange}, 0.2627, 0.0593, depth);
        }
    }
}

/// The 12-bit code of a part of light, 0 to 1, by halving.
std::uint16_t codeOf(unsigned transfer, double linear)
{
    double low = 0;
    double high = 1;
    for (int step = 0; step < 40; ++step) {
        const double middle = (low + high) / 2;
        (linearOf(transfer, middle) < linear ? low : high) = middle;
    }
    return static_cast<std::uint16_t>(std::lround(low * 4095));
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
        SCOPED_TRACE(transfer);
        RgbRow ramp(256);
        for (std::uint16_t code = 0; code < 256; ++code) {
            ramp.red[code] = ramp.green[code] = ramp.blue[code] = static_cast<std::uint16_t>(code * 16);
        }
        Bytes rgba(256UL * 4);
        makeSrgbTransform({}, {.primaries = 9, .transfer = transfer}, 4095, false)
            ->convert(ramp, rgba.data());
        for (std::size_t x = 1; x < 256; ++x) {
            EXPECT_GE(rgba[4 * x], rgba[4 * (x - 1)]);
            EXPECT_NEAR(rgba[4 * x], rgba[4 * x + 2], 1);
        }
        // Recommendation ITU-R BT.2408-4, table 1: the white of a page is code 0.58 in PQ and 0.75 in HLG.
        const std::size_t white = transfer == TransferPq ? 148 : 192;
        EXPECT_NEAR(rgba[4 * white], 222, 17);
        EXPECT_GE(rgba[4UL * 255], 250);
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
