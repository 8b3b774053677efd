#include "ExactColour.h"

#include <algorithm>
#include <cmath>

namespace imageworker {

std::uint8_t codeOf(double value)
{
    return static_cast<std::uint8_t>(std::lround(255 * std::clamp(value, 0.0, 1.0)));
}

Bytes savedProfile(cmsHPROFILE profile)
{
    cmsUInt32Number length = 0;
    cmsSaveProfileToMem(profile, nullptr, &length);
    Bytes bytes(length);
    cmsSaveProfileToMem(profile, bytes.data(), &length);
    return bytes;
}

Profile profileOf(const cmsCIExyYTRIPLE &primaries, int curve, const double *parameters)
{
    const cmsCIExyY white = {0.3127, 0.3290, 1};
    cmsToneCurve *built = cmsBuildParametricToneCurve(nullptr, curve, parameters);
    cmsToneCurve *curves[] = {built, built, built};
    Profile profile(cmsCreateRGBProfile(&white, &primaries, curves));
    cmsFreeToneCurve(built);
    return profile;
}

Profile displayP3()
{
    const double parameters[] = {2.4, 1 / 1.055, 0.055 / 1.055, 1 / 12.92, 0.04045};
    return profileOf({{0.680, 0.320, 1}, {0.265, 0.690, 1}, {0.150, 0.060, 1}}, 4, parameters);
}

Profile tableProfile()
{
    const Profile lab(cmsCreateLab4Profile(nullptr));
    cmsHTRANSFORM toLab = cmsCreateTransform(displayP3().get(), TYPE_RGB_16, lab.get(), TYPE_Lab_16,
                                             INTENT_RELATIVE_COLORIMETRIC, 0);
    Profile profile(cmsTransform2DeviceLink(toLab, 4.3, cmsFLAGS_FORCE_CLUT));
    cmsDeleteTransform(toLab);
    cmsSetDeviceClass(profile.get(), cmsSigInputClass);
    cmsWriteTag(profile.get(), cmsSigMediaWhitePointTag, cmsD50_XYZ());
    return profile;
}

Raster throughProfile(const Bytes &profile, Raster picture)
{
    cmsHTRANSFORM transform =
        cmsCreateTransform(openProfile(profile).get(), TYPE_RGB_DBL, Profile(cmsCreate_sRGBProfile()).get(),
                           TYPE_RGB_DBL, INTENT_PERCEPTUAL, cmsFLAGS_NOOPTIMIZE);
    for (std::size_t index = 0; index < picture.rgba.size(); index += 4) {
        std::uint8_t *codes = &picture.rgba[index];
        Pixel pixel = {codes[0] / 255.0, codes[1] / 255.0, codes[2] / 255.0};
        cmsDoTransform(transform, pixel.data(), pixel.data(), 1);
        std::ranges::transform(pixel, codes, codeOf);
    }
    cmsDeleteTransform(transform);
    return picture;
}

Pixel exactRgb(const std::uint8_t *sample, double kr, double kb, bool fullRange)
{
    const double luma = fullRange ? sample[0] / 255.0 : (sample[0] - 16) / 219.0;
    const double range = fullRange ? 255 : 224;
    const double red = luma + 2 * (1 - kr) * (sample[2] - 128) / range;
    const double blue = luma + 2 * (1 - kb) * (sample[1] - 128) / range;
    return {red, (luma - kr * red - kb * blue) / (1 - kr - kb), blue};
}

} // namespace imageworker
