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

TEST(ItemColour, ShouldFollowTheGreyProfileOfAGreyPictureAndIgnoreProfilesThatDoNotFit)
{
    constexpr double Gamma = 1.4;
    cmsToneCurve *curve = cmsBuildGamma(nullptr, Gamma);
    const Profile profile(cmsCreateGrayProfile(cmsD50_xyY(), curve));
    cmsFreeToneCurve(curve);
    const Bytes greyProfile = savedProfile(profile.get());
    const Bytes photo = makePhoto({.chroma = PhotoRecipe::Chroma::None, .iccProfile = greyProfile});
    auto expected = decodeIndependently(photo);
    ASSERT_TRUE(expected);
    for (std::uint8_t &code : expected->rgba) {
        code = codeOf(srgbOfLinear(std::pow(code / 255.0, Gamma)));
    }
    expectShown(photo, expected, 3);
    Bytes broken = savedProfile(displayP3().get());
    broken.resize(100);
    for (const Bytes &ignored : {greyProfile, broken}) {
        expectLikeIndependentDecoder(makePhoto({.iccProfile = ignored}));
    }
}

TEST(ItemColour, ShouldFollowCodePoints)
{
    struct Case
    {
        HeifFile::Properties said;
        Profile profile; ///< of the same space
        double kr;
        double kb;
        bool fullRange;
    };
    const double gamma[] = {2.2};
    const Case cases[] = {
        {{codePoints(12, 13, 1, true)}, displayP3(), 0.2126, 0.0722, true},
        {{codePoints(12, 13, 12, false)}, displayP3(), 0.2290, 0.0793, false},
        {{codePoints(9, 4, 9, false)}, profileOf(Bt2020, 1, gamma), 0.2627, 0.0593, false},
        {{codePoints(1, 4, 6, true)}, profileOf(Bt709, 1, gamma), 0.299, 0.114, true},
        {{codePoints(1, 13, 4, true)}, Profile(cmsCreate_sRGBProfile()), 0.30, 0.11, true},
        {{codePoints(1, 13, 7, false)}, Profile(cmsCreate_sRGBProfile()), 0.212, 0.087, false},
        {{}, Profile(cmsCreate_sRGBProfile()), 0.299, 0.114, false},
    };
    const Raster samples = randomSamples();
    const CodedItem coded = makeAvcColourItem(samples);
    for (const Case &by : cases) {
        SCOPED_TRACE(by.kr);
        Raster codes(samples.size);
        for (std::size_t index = 0; index < codes.rgba.size(); index += 4) {
            const Pixel exact = exactRgb(&samples.rgba[index], by.kr, by.kb, by.fullRange);
            std::ranges::transform(exact, &codes.rgba[index], codeOf);
            codes.rgba[index + 3] = 255;
        }
        expectShown(photoOf(coded, by.said), throughProfile(savedProfile(by.profile.get()), codes), 1);
    }
}

TEST(ItemColour, ShouldBeRefusedWhereItsMatrixIsNotImplemented)
{
    const CodedItem colour = makeAvcColourItem(randomSamples());
    const CodedItem grey = codedItemOf(makePhoto({.chroma = PhotoRecipe::Chroma::None}));
    for (const unsigned matrix : {3U, 10U, 11U, 12U, 13U, 14U, 15U, 16U, 17U, 255U}) {
        SCOPED_TRACE(matrix);
        const HeifFile::Properties properties = {codePoints(5, 13, matrix, true)};
        EXPECT_FALSE(shown(photoOf(colour, properties)));
        EXPECT_TRUE(shown(photoOf(grey, properties)));
    }
    EXPECT_TRUE(shown(photoOf(colour, {codePoints(9, 13, 12, true)})));
}

TEST(ItemColour, ShouldBeReadInMoreThanEightBits)
{
    // libheif 1.23 goes to 8 bits first: seen up to 3.1 codes from the exact value, a copy up to 0.6.
    constexpr int EightBitsBeforeTheMatrix = 4;
    for (const int depth : {10, 12}) {
        const Bytes photo = makePhoto({.depth = depth});
        expectShown(photo, decodeIndependently(photo), EightBitsBeforeTheMatrix);
    }
    constexpr int SteepestOfProfile = 8; // codes of rounding to 8 bits before it
    const auto codes = shown(makePhoto({.depth = 10}));
    ASSERT_TRUE(codes);
    for (const Profile &profile : {displayP3(), tableProfile()}) {
        const Bytes saved = savedProfile(profile.get());
        expectShown(makePhoto({.depth = 10, .iccProfile = saved}), throughProfile(saved, *codes),
                    SteepestOfProfile);
    }
}

TEST(ItemColour, ShouldFollowWhatTheTilesOfAGridSayUnlessItSaysMore)
{
    const Bytes profile = savedProfile(displayP3().get());
    const double linear[] = {1.0};
    const Bytes other = savedProfile(profileOf(Bt709, 1, linear).get());
    const CodedItem coded = codedItemOf(makePhoto({.size = {64, 64}, .iccProfile = profile}));
    const auto codes = shown(makePhoto({.size = {64, 64}})); // in the dark the profile makes ten codes of one
    ASSERT_TRUE(codes);
    constexpr int SteepestOfTheProfile = 26; // two codes of rounding where linear light is dark
    for (const bool saysMore : {false, true}) {
        HeifFile file;
        HeifFile::Properties properties;
        if (saysMore) {
            properties.push_back({"colr", joined({bytesOf("prof"), other})});
        }
        const Bytes grid = file.bytes(file.addGrid(1, 1, {64, 64}, {file.add(coded)}, properties));
        expectShown(grid, throughProfile(saysMore ? other : profile, *codes),
                    saysMore ? SteepestOfTheProfile : 4);
    }
}

TEST(ItemColour, ShouldShowTheBaseOfAToneMapInItsOwnColours)
{
    const Bytes photo = makePhoto({});
    HeifFile file;
    const unsigned base = file.add(codedItemOf(photo));
    const unsigned gainMap = file.add(makeAvcItem(cornerColours({32, 32}, false)));
    // Its own code points tell of the bright picture that base and gain map make together.
    const unsigned toneMap =
        file.add("tmap", Bytes(30), {spatialExtents(96, 64), codePoints(9, 16, 9, false)});
    file.refer(toneMap, "dimg", {base, gainMap});
    expectShown(file.bytes(toneMap), decodeIndependently(photo));
}

} // namespace

} // namespace imageworker
