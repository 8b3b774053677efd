#include "CodeConversion.h"
#include "ColourSpace.h"
#include "PngDecoder.h"
#include "SrgbStage.h"
#include "TransferCurve.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <png.h>
#include <random>

namespace imageworker {

namespace {

using Pixel = std::array<double, 3>;

Bytes savedProfile(cmsHPROFILE profile)
{
    cmsUInt32Number length = 0;
    cmsSaveProfileToMem(profile, nullptr, &length);
    Bytes bytes(length);
    cmsSaveProfileToMem(profile, bytes.data(), &length);
    return bytes;
}

Profile displayP3()
{
    const cmsCIExyY white = {0.3127, 0.3290, 1};
    const cmsCIExyYTRIPLE primaries = {{0.680, 0.320, 1}, {0.265, 0.690, 1}, {0.150, 0.060, 1}};
    const double parameters[] = {2.4, 1 / 1.055, 0.055 / 1.055, 1 / 12.92, 0.04045};
    cmsToneCurve *curve = cmsBuildParametricToneCurve(nullptr, 4, parameters);
    cmsToneCurve *curves[] = {curve, curve, curve};
    Profile profile(cmsCreateRGBProfile(&white, &primaries, curves));
    cmsFreeToneCurve(curve);
    return profile;
}

/// Display P3 as a table from codes to Lab, as scanners' and some cameras' profiles are.
Profile tableProfile()
{
    const Profile space = displayP3();
    const Profile lab(cmsCreateLab4Profile(nullptr));
    cmsHTRANSFORM toLab = cmsCreateTransform(space.get(), TYPE_RGB_16, lab.get(), TYPE_Lab_16,
                                             INTENT_RELATIVE_COLORIMETRIC, cmsFLAGS_NOOPTIMIZE);
    constexpr cmsUInt32Number steps = 33;
    cmsStage *table = cmsStageAllocCLut16bit(nullptr, steps, 3, 3, nullptr);
    cmsStageSampleCLut16bit(
        table,
        [](const cmsUInt16Number *from, cmsUInt16Number *to, void *transform) {
            cmsDoTransform(transform, from, to, 1);
            return 1;
        },
        toLab, 0);
    cmsPipeline *pipeline = cmsPipelineAlloc(nullptr, 3, 3);
    cmsPipelineInsertStage(pipeline, cmsAT_BEGIN, table);
    // A saved table stands between curves.
    cmsPipelineInsertStage(pipeline, cmsAT_BEGIN, cmsStageAllocToneCurves(nullptr, 3, nullptr));
    cmsPipelineInsertStage(pipeline, cmsAT_END, cmsStageAllocToneCurves(nullptr, 3, nullptr));
    Profile profile(cmsCreateProfilePlaceholder(nullptr));
    cmsSetProfileVersion(profile.get(), 4.3);
    cmsSetDeviceClass(profile.get(), cmsSigInputClass);
    cmsSetColorSpace(profile.get(), cmsSigRgbData);
    cmsSetPCS(profile.get(), cmsSigLabData);
    cmsWriteTag(profile.get(), cmsSigMediaWhitePointTag, cmsD50_XYZ());
    cmsWriteTag(profile.get(), cmsSigAToB0Tag, pipeline);
    cmsPipelineFree(pipeline);
    cmsDeleteTransform(toLab);
    return profile;
}

CodeRow randomCodes(int maximum)
{
    std::minstd_rand random(7);
    std::uniform_int_distribution<int> code(0, maximum);
    CodeRow codes(4000);
    for (auto *channel : {&codes.red, &codes.green, &codes.blue}) {
        std::ranges::generate(*channel, [&] { return static_cast<std::uint16_t>(code(random)); });
    }
    return codes;
}

/// One row as an independent encoder writes it with a profile.
Bytes pngOf(const Bytes &rgba, const Bytes &profile)
{
    Bytes file;
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png_create_info_struct(png);
    png_set_write_fn(
        png, &file,
        [](png_structp writer, png_bytep bytes, std::size_t length) {
            auto *target = static_cast<Bytes *>(png_get_io_ptr(writer));
            target->insert(target->end(), bytes, bytes + length);
        },
        nullptr);
    png_set_IHDR(png, info, static_cast<png_uint_32>(rgba.size() / 4), 1, 8, PNG_COLOR_TYPE_RGBA,
                 PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_BASE, PNG_FILTER_TYPE_BASE);
    png_set_iCCP(png, info, "wide", PNG_COMPRESSION_TYPE_BASE, profile.data(),
                 static_cast<png_uint_32>(profile.size()));
    png_write_info(png, info);
    png_write_row(png, rgba.data());
    png_write_end(png, info);
    png_destroy_write_struct(&png, &info);
    return file;
}

/// Largest distance from what lcms2 gives in double precision, in codes.
double errorAgainstLcms(cmsHPROFILE profile, int maximum)
{
    const CodeRow codes = randomCodes(maximum);
    const Bytes saved = savedProfile(profile);
    Bytes rgba(codes.red.size() * 4);
    makeSrgbStage(saved, {}, maximum, false)->convert(codes, rgba.data());
    const Profile srgb(cmsCreate_sRGBProfile());
    void *exact = cmsCreateTransform(openProfile(saved).get(), TYPE_RGB_DBL, srgb.get(), TYPE_RGB_DBL,
                                     INTENT_PERCEPTUAL, cmsFLAGS_NOOPTIMIZE);
    double worst = 0;
    for (std::size_t x = 0; x < codes.red.size(); ++x) {
        const Pixel from = {static_cast<double>(codes.red[x]) / maximum,
                            static_cast<double>(codes.green[x]) / maximum,
                            static_cast<double>(codes.blue[x]) / maximum};
        Pixel to = {};
        cmsDoTransform(exact, from.data(), to.data(), 1);
        for (std::size_t channel = 0; channel < 3; ++channel) {
            const double expected = 255 * std::clamp(to[channel], 0.0, 1.0);
            worst = std::max(worst, std::abs(rgba[4 * x + channel] - expected));
        }
    }
    cmsDeleteTransform(exact);
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
    CodeRow codes(256);
    for (std::uint16_t code = 0; code < 256; ++code) {
        codes.red[code] = codes.green[code] = codes.blue[code] = code;
    }
    Bytes rgba(256UL * 4);
    makeSrgbStage(savedProfile(profile.get()), {}, 255, true)->convert(codes, rgba.data());
    for (std::size_t code = 0; code < 256; ++code) {
        ASSERT_NEAR(rgba[4 * code], 255 * srgbOfLinear(static_cast<double>(code) / 255), 1);
        ASSERT_EQ(rgba[4 * code], rgba[4 * code + 2]);
    }
    makeSrgbStage(savedProfile(profile.get()), {}, 255, false)->convert(codes, rgba.data());
    EXPECT_EQ(rgba[4UL * 64], 64);
}

TEST(Colour, ShouldFollowTheProfileInAPng)
{
    const CodeRow codes = randomCodes(255);
    const Bytes profile = savedProfile(displayP3().get());
    Bytes stored;
    for (std::size_t x = 0; x < codes.red.size(); ++x) {
        for (const std::uint16_t value : {codes.red[x], codes.green[x], codes.blue[x], codes.red[x]}) {
            stored.push_back(static_cast<std::uint8_t>(value));
        }
    }
    Bytes expected(stored.size());
    makeSrgbStage(profile, {}, 255, false)->convert(codes, expected.data());
    const auto raster = decodePng(pngOf(stored, profile), 1);
    ASSERT_TRUE(raster);
    for (std::size_t index = 0; index < expected.size(); ++index) {
        ASSERT_EQ(raster->rgba[index], index % 4 == 3 ? stored[index] : expected[index]);
    }
}

TEST(Colour, ShouldTakeABrokenProfileForAbsent)
{
    Bytes broken = savedProfile(displayP3().get());
    broken.resize(100);
    const CodeRow codes = randomCodes(255);
    Bytes rgba(codes.red.size() * 4);
    makeSrgbStage(broken, {}, 255, false)->convert(codes, rgba.data());
    for (std::size_t x = 0; x < codes.red.size(); ++x) {
        ASSERT_EQ(rgba[4 * x], codes.red[x]);
        ASSERT_EQ(rgba[4 * x + 1], codes.green[x]);
        ASSERT_EQ(rgba[4 * x + 2], codes.blue[x]);
    }
}

TEST(Colour, ShouldTreatPrimariesOfCodePointsLikeTheProfileOfTheSameSpace)
{
    const CodeRow codes = randomCodes(255);
    Bytes byProfile(codes.red.size() * 4);
    Bytes byCodePoints(byProfile.size());
    makeSrgbStage(savedProfile(displayP3().get()), {}, 255, false)->convert(codes, byProfile.data());
    makeSrgbStage({}, {.primaries = 12, .transfer = 13}, 255, false)->convert(codes, byCodePoints.data());
    for (std::size_t index = 0; index < byProfile.size(); ++index) {
        ASSERT_NEAR(byProfile[index], byCodePoints[index], 1);
    }
}

TEST(Colour, ShouldToneMapHighDynamicRangeSoThatItLooksRight)
{
    for (const unsigned transfer : {TransferPq, TransferHlg}) {
        SCOPED_TRACE(transfer);
        CodeRow ramp(256);
        for (std::uint16_t code = 0; code < 256; ++code) {
            ramp.red[code] = ramp.green[code] = ramp.blue[code] = static_cast<std::uint16_t>(code * 16);
        }
        Bytes rgba(256UL * 4);
        makeSrgbStage({}, {.primaries = 9, .transfer = transfer}, 4095, false)->convert(ramp, rgba.data());
        for (std::size_t x = 1; x < 256; ++x) {
            EXPECT_GE(rgba[4 * x], rgba[4 * (x - 1)]) << "brighter light must not become darker";
            EXPECT_NEAR(rgba[4 * x], rgba[4 * x + 2], 1) << "grey must stay grey";
        }
        // The white of a page (203 cd/m2) is code 0.58 in PQ and 0.75 in HLG: bright, with room above it.
        const std::size_t white = transfer == TransferPq ? 148 : 192;
        EXPECT_GT(rgba[4 * white], 205);
        EXPECT_LT(rgba[4 * white], 240);
        EXPECT_GE(rgba[4UL * 255], 250);
    }
}

/// Exact arithmetic of H.273, 8.3 for one pixel.
Pixel exactRgb(double y, double cb, double cr, double kr, double kb, bool fullRange, int depth)
{
    const double unit = std::exp2(depth - 8);
    const double luma = fullRange ? y / (std::exp2(depth) - 1) : (y - 16 * unit) / (219 * unit);
    const double range = fullRange ? std::exp2(depth) - 1 : 224 * unit;
    const double b = (cb - 128 * unit) / range;
    const double r = (cr - 128 * unit) / range;
    const double red = luma + 2 * (1 - kr) * r;
    const double blue = luma + 2 * (1 - kb) * b;
    return {red, (luma - kr * red - kb * blue) / (1 - kr - kb), blue};
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
                const CodeConversion conversion(format, {.matrix = by.matrix, .fullRange = fullRange});
                const CodeRow random = randomCodes((1 << depth) - 1);
                std::array<Bytes, 3> planes;
                std::size_t plane = 0;
                SampleRow row;
                for (const auto *channel : {&random.red, &random.green, &random.blue}) {
                    for (const std::uint16_t sample : *channel) {
                        planes[plane].push_back(static_cast<std::uint8_t>(sample));
                        if (depth > 8) {
                            planes[plane].push_back(static_cast<std::uint8_t>(sample >> 8));
                        }
                    }
                    row.planes[plane] = planes[plane].data();
                    ++plane;
                }
                CodeRow codes(random.width());
                conversion.convert(row, codes);
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
