#include "AvcPicture.h"
#include "ConvertedPhoto.h"
#include "ExactColour.h"
#include "MadePhoto.h"
#include "TransferCurve.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <random>

namespace imageworker {

namespace {

constexpr cmsCIExyYTRIPLE Bt709 = {{0.64, 0.33, 1}, {0.30, 0.60, 1}, {0.15, 0.06, 1}};
constexpr cmsCIExyYTRIPLE Bt2020 = {{0.708, 0.292, 1}, {0.170, 0.797, 1}, {0.131, 0.046, 1}};

/// Values of all kinds in the channels that are stored.
Raster randomSamples()
{
    std::minstd_rand random(5);
    std::uniform_int_distribution<int> sample(0, 255);
    Raster raster({32, 32});
    std::ranges::generate(raster.rgba, [&] { return static_cast<std::uint8_t>(sample(random)); });
    return raster;
}

/// Codes of @p profile as sRGB.
Raster through(const Bytes &profile, Raster codes)
{
    const ExactSrgb exact(profile);
    for (std::size_t index = 0; index < codes.rgba.size(); index += 4) {
        std::uint8_t *pixel = &codes.rgba[index];
        const Pixel shown = exact.of({pixel[0] / 255.0, pixel[1] / 255.0, pixel[2] / 255.0});
        std::ranges::transform(
            shown, pixel, [](double value) { return static_cast<std::uint8_t>(std::lround(255 * value)); });
    }
    return codes;
}

Bytes fileOf(const CodedItem &coded, const HeifFile::Properties &more)
{
    HeifFile::Properties properties = coded.properties;
    properties.insert(properties.end(), more.begin(), more.end());
    HeifFile file;
    return file.bytes(file.add("avc1", coded.data, properties));
}

TEST(ItemColour, ShouldFollowTheGreyProfileOfAGreyPicture)
{
    constexpr double Gamma = 1.4;
    cmsToneCurve *curve = cmsBuildGamma(nullptr, Gamma);
    const Profile profile(cmsCreateGrayProfile(cmsD50_xyY(), curve));
    cmsFreeToneCurve(curve);
    const Bytes photo =
        makePhoto({.chroma = PhotoRecipe::Chroma::None, .iccProfile = savedProfile(profile.get())});
    auto expected = decodeIndependently(photo);
    const auto copy = shown(photo);
    ASSERT_TRUE(copy && expected);
    for (std::size_t index = 0; index < expected->rgba.size(); ++index) {
        std::uint8_t &code = expected->rgba[index];
        code =
            index % 4 == 3
                ? code
                : static_cast<std::uint8_t>(std::lround(255 * srgbOfLinear(std::pow(code / 255.0, Gamma))));
    }
    EXPECT_LE(largestDifference(*copy, *expected), 3);
}

TEST(ItemColour, ShouldFollowCodePoints)
{
    struct Case
    {
        unsigned primaries;
        unsigned transfer;
        unsigned matrix;
        bool fullRange;
        Profile profile; ///< of the same space
        double kr;
        double kb;
    };
    const double gamma[] = {2.2};
    Case cases[] = {
        {12, 13, 1, true, displayP3(), 0.2126, 0.0722},
        {9, 4, 9, false, profileOf(Bt2020, 1, gamma), 0.2627, 0.0593},
        {1, 4, 6, true, profileOf(Bt709, 1, gamma), 0.299, 0.114},
    };
    const Raster samples = randomSamples();
    const CodedItem coded = makeAvcColourItem(samples);
    for (const Case &by : cases) {
        SCOPED_TRACE(by.primaries);
        const auto copy =
            shown(fileOf(coded, {codePoints(by.primaries, by.transfer, by.matrix, by.fullRange)}));
        ASSERT_TRUE(copy);
        Raster codes(samples.size);
        for (std::size_t index = 0; index < codes.rgba.size(); index += 4) {
            const std::uint8_t *sample = &samples.rgba[index];
            const Pixel exact = exactRgb(sample[0], sample[1], sample[2], by.kr, by.kb, by.fullRange, 8);
            std::ranges::transform(exact, &codes.rgba[index], [](double value) {
                return static_cast<std::uint8_t>(std::lround(255 * std::clamp(value, 0.0, 1.0)));
            });
            codes.rgba[index + 3] = 255;
        }
        EXPECT_LE(largestDifference(*copy, through(savedProfile(by.profile.get()), codes)), 1);
    }
}

TEST(ItemColour, ShouldFollowWhatTheTilesOfAGridSayUnlessItSaysMore)
{
    const Bytes profile = savedProfile(displayP3().get());
    const double linear[] = {1.0};
    const Bytes other = savedProfile(profileOf(Bt709, 1, linear).get());
    const Bytes photo = makePhoto({.size = {64, 64}, .iccProfile = profile});
    const CodedItem coded = codedItemOf(photo);
    const auto codes = decodeIndependently(photo);
    ASSERT_TRUE(codes);
    constexpr int SteepestOfTheProfile = 26; // two codes of rounding where linear light is dark
    for (const bool saysMore : {false, true}) {
        HeifFile file;
        HeifFile::Properties properties = {spatialExtents(64, 64)};
        if (saysMore) {
            properties.push_back({"colr", joined({{'p', 'r', 'o', 'f'}, other})});
        }
        const unsigned tile = file.add("hvc1", coded.data, coded.properties);
        const unsigned grid = file.add("grid", {0, 0, 0, 0, 0, 64, 0, 64}, properties);
        file.refer(grid, "dimg", {tile});
        const auto copy = shown(file.bytes(grid));
        ASSERT_TRUE(copy);
        EXPECT_LE(largestDifference(*copy, through(saysMore ? other : profile, *codes)),
                  saysMore ? SteepestOfTheProfile : 4);
    }
}

TEST(ItemColour, ShouldShowTheBaseOfAToneMapInItsOwnColours)
{
    const Bytes photo = makePhoto({});
    const CodedItem coded = codedItemOf(photo);
    const CodedItem gain = makeAvcItem(cornerColours({32, 32}, false));
    HeifFile file;
    const unsigned base = file.add("hvc1", coded.data, coded.properties);
    const unsigned gainMap = file.add("avc1", gain.data, gain.properties);
    // Its own code points tell of the bright picture that base and gain map make together.
    const unsigned toneMap =
        file.add("tmap", Bytes(30), {spatialExtents(96, 64), codePoints(9, 16, 9, false)});
    file.refer(toneMap, "dimg", {base, gainMap});
    const auto copy = shown(file.bytes(toneMap));
    const auto reference = decodeIndependently(photo);
    ASSERT_TRUE(copy && reference);
    EXPECT_LE(largestDifference(*copy, *reference), 2);
}

} // namespace

} // namespace imageworker
