#include "ExactColour.h"
#include "PlainPhoto.h"
#include "PngDecoder.h"
#include "SrgbTransform.h"
#include "TransferCurve.h"
#include "YcbcrToRgb.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <random>

namespace imageworker {

namespace {

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

TEST(Colour, ShouldTakeDisplayP3ToSrgbWithinOneCodeOfDoublePrecision)
{
    const Profile profile = displayP3();
    EXPECT_LT(errorAgainstLcms(profile.get(), 255), 1.0);
    EXPECT_LT(errorAgainstLcms(profile.get(), 4095), 1.0);
}

TEST(Colour, ShouldFollowAProfileThatIsATable)
{
    const Profile profile = tableProfile();
    EXPECT_LT(errorAgainstLcms(profile.get(), 255), 1.0);
    EXPECT_LT(errorAgainstLcms(profile.get(), 4095), 1.0);
}

TEST(Colour, ShouldFollowAGreyProfileInGreyPicturesOnly)
{
    cmsToneCurve *curve =
        cmsBuildGamma(nullptr, 1.0); // linear light: far from what sRGB would make of the codes
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
    makeSrgbTransform(savedProfile(profile.get()), {}, 255, false)->convert(codes, rgba.data());
    EXPECT_EQ(rgba[4UL * 64], 64);
}

TEST(Colour, ShouldTakeABrokenProfileForAbsent)
{
    Bytes broken = savedProfile(displayP3().get());
    broken.resize(100);
    const RgbRow codes = randomCodes(255);
    Bytes rgba(codes.red.size() * 4);
    makeSrgbTransform(broken, {}, 255, false)->convert(codes, rgba.data());
    for (std::size_t x = 0; x < codes.red.size(); ++x) {
        ASSERT_EQ(rgba[4 * x], codes.red[x]);
        ASSERT_EQ(rgba[4 * x + 1], codes.green[x]);
        ASSERT_EQ(rgba[4 * x + 2], codes.blue[x]);
    }
}

TEST(Colour, ShouldTreatPrimariesOfCodePointsLikeTheProfileOfTheSameSpace)
{
    const RgbRow codes = randomCodes(255);
    Bytes byProfile(codes.red.size() * 4);
    Bytes byCodePoints(byProfile.size());
    makeSrgbTransform(savedProfile(displayP3().get()), {}, 255, false)->convert(codes, byProfile.data());
    makeSrgbTransform({}, {.primaries = 12, .transfer = 13}, 255, false)->convert(codes, byCodePoints.data());
    for (std::size_t index = 0; index < byProfile.size(); ++index) {
        ASSERT_NEAR(byProfile[index], byCodePoints[index], 1);
    }
}

TEST(Colour, ShouldTurnSamplesIntoCodesAsExactArithmeticDoes)
{
    struct Case
    {
        unsigned matrix;
        double kr;
        double kb;
    };
    for (const Case &by : {Case{1, 0.2126, 0.0722}, Case{6, 0.299, 0.114}, Case{9, 0.2627, 0.0593}}) {
        for (const bool fullRange : {false, true}) {
            for (const int depth : {8, 10, 12}) {
                SCOPED_TRACE(testing::Message() << "matrix " << by.matrix << " depth " << depth);
                SampleFormat format;
                format.depth = depth;
                const YcbcrToRgb conversion(format, {.matrix = by.matrix, .fullRange = fullRange});
                const RgbRow random = randomCodes((1 << depth) - 1);
                std::array<Bytes, 3> planes;
                std::size_t plane = 0;
                SampleRow samples = {};
                for (const auto *channel : {&random.red, &random.green, &random.blue}) {
                    for (const std::uint16_t sample : *channel) {
                        planes[plane].push_back(static_cast<std::uint8_t>(sample));
                        if (depth > 8) {
                            planes[plane].push_back(static_cast<std::uint8_t>(sample >> 8));
                        }
                    }
                    samples[plane] = planes[plane].data();
                    ++plane;
                }
                RgbRow codes(random.width());
                conversion.convert(samples, codes);
                const int maximum = conversion.maximumCode();
                for (std::size_t x = 0; x < codes.red.size(); ++x) {
                    const Pixel exact = exactRgb(random.red[x], random.green[x], random.blue[x], by.kr, by.kb,
                                                 fullRange, depth);
                    const auto expected = [&](double value) { return std::clamp(value, 0.0, 1.0) * maximum; };
                    ASSERT_NEAR(codes.red[x], expected(exact[0]), 0.51);
                    ASSERT_NEAR(codes.green[x], expected(exact[1]), 0.51);
                    ASSERT_NEAR(codes.blue[x], expected(exact[2]), 0.51);
                }
            }
        }
    }
}

} // namespace

} // namespace imageworker
