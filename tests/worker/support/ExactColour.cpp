#include "ExactColour.h"

#include <algorithm>
#include <cmath>

namespace imageworker {

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

ExactSrgb::ExactSrgb(const Bytes &profile)
    : m_transform(cmsCreateTransform(openProfile(profile).get(), TYPE_RGB_DBL,
                                     Profile(cmsCreate_sRGBProfile()).get(), TYPE_RGB_DBL, INTENT_PERCEPTUAL,
                                     cmsFLAGS_NOOPTIMIZE),
                  &cmsDeleteTransform)
{}

Pixel ExactSrgb::of(const Pixel &pixel) const
{
    Pixel shown = {};
    cmsDoTransform(m_transform.get(), pixel.data(), shown.data(), 1);
    for (double &value : shown) {
        value = std::clamp(value, 0.0, 1.0);
    }
    return shown;
}

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

} // namespace imageworker
