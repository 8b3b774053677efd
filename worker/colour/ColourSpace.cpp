#include "ColourSpace.h"

#include "TransferCurve.h"

namespace imageworker {

namespace {

/// Primaries as columns of XYZ, adapted to D50 as profiles give them.
std::optional<cmsMAT3> colorantsOf(cmsHPROFILE profile)
{
    constexpr std::array Tags = {cmsSigRedColorantTag, cmsSigGreenColorantTag, cmsSigBlueColorantTag};
    cmsMAT3 colorants = {};
    for (std::size_t column = 0; column < Tags.size(); ++column) {
        const auto *value = static_cast<const cmsCIEXYZ *>(cmsReadTag(profile, Tags[column]));
        if (value == nullptr) {
            return std::nullopt;
        }
        colorants.v[0].n[column] = value->X;
        colorants.v[1].n[column] = value->Y;
        colorants.v[2].n[column] = value->Z;
    }
    return colorants;
}

/// The matrix from @p colorants to linear sRGB.
cmsMAT3 toSrgb(const cmsMAT3 &colorants)
{
    const Profile srgb(cmsCreate_sRGBProfile());
    const auto ofSrgb = colorantsOf(srgb.get());
    cmsMAT3 fromXyz = {};
    cmsMAT3 product = {};
    _cmsMAT3inverse(&*ofSrgb, &fromXyz);
    _cmsMAT3per(&product, &fromXyz, &colorants);
    return product;
}

struct Primaries
{
    cmsCIExyY white;
    cmsCIExyYTRIPLE colours;
};

/// ITU-T H.273, table 2; those of sRGB for what is not said or not known.
Primaries primariesOf(unsigned code)
{
    constexpr cmsCIExyY D65 = {0.3127, 0.3290, 1};
    constexpr cmsCIExyY C = {0.310, 0.316, 1};
    switch (code) {
    case 4:
        return {C, {{0.67, 0.33, 1}, {0.21, 0.71, 1}, {0.14, 0.08, 1}}};
    case 5:
        return {D65, {{0.64, 0.33, 1}, {0.29, 0.60, 1}, {0.15, 0.06, 1}}};
    case 6:
    case 7:
        return {D65, {{0.630, 0.340, 1}, {0.310, 0.595, 1}, {0.155, 0.070, 1}}};
    case 8:
        return {C, {{0.681, 0.319, 1}, {0.243, 0.692, 1}, {0.145, 0.049, 1}}};
    case 9:
        return {D65, {{0.708, 0.292, 1}, {0.170, 0.797, 1}, {0.131, 0.046, 1}}};
    case 11:
        return {{0.314, 0.351, 1}, {{0.680, 0.320, 1}, {0.265, 0.690, 1}, {0.150, 0.060, 1}}};
    case 12:
        return {D65, {{0.680, 0.320, 1}, {0.265, 0.690, 1}, {0.150, 0.060, 1}}};
    case 22:
        return {D65, {{0.630, 0.340, 1}, {0.295, 0.605, 1}, {0.155, 0.077, 1}}};
    default:
        return {D65, {{0.64, 0.33, 1}, {0.30, 0.60, 1}, {0.15, 0.06, 1}}};
    }
}

} // namespace

Profile openProfile(const Bytes &bytes)
{
    if (bytes.empty()) {
        return nullptr;
    }
    return Profile(cmsOpenProfileFromMem(bytes.data(), static_cast<cmsUInt32Number>(bytes.size())));
}

std::optional<MatrixSpace> matrixSpaceOf(cmsHPROFILE profile, int maximumCode)
{
    constexpr std::array Curves = {cmsSigRedTRCTag, cmsSigGreenTRCTag, cmsSigBlueTRCTag};
    if (!cmsIsMatrixShaper(profile) || cmsIsTag(profile, cmsSigAToB0Tag)) {
        return std::nullopt;
    }
    const auto colorants = colorantsOf(profile);
    if (!colorants) {
        return std::nullopt;
    }
    MatrixSpace space;
    space.toSrgb = toSrgb(*colorants);
    for (std::size_t channel = 0; channel < Curves.size(); ++channel) {
        const auto *curve = static_cast<const cmsToneCurve *>(cmsReadTag(profile, Curves[channel]));
        if (curve == nullptr) {
            return std::nullopt;
        }
        for (int code = 0; code <= maximumCode; ++code) {
            const auto value =
                static_cast<cmsFloat32Number>(code) / static_cast<cmsFloat32Number>(maximumCode);
            space.linear[channel].push_back(cmsEvalToneCurveFloat(curve, value));
        }
    }
    return space;
}

MatrixSpace matrixSpaceOf(unsigned primaries, unsigned transfer, int maximumCode)
{
    MatrixSpace space;
    const Primaries colours = primariesOf(primaries);
    const std::unique_ptr<cmsToneCurve, decltype(&cmsFreeToneCurve)> linear(cmsBuildGamma(nullptr, 1),
                                                                            &cmsFreeToneCurve);
    std::array<cmsToneCurve *, 3> curves = {linear.get(), linear.get(), linear.get()};
    const Profile profile(cmsCreateRGBProfile(&colours.white, &colours.colours, curves.data()));
    const auto colorants = profile ? colorantsOf(profile.get()) : std::nullopt;
    if (colorants) {
        space.toSrgb = toSrgb(*colorants);
    } else {
        _cmsMAT3identity(&space.toSrgb);
    }
    for (int code = 0; code <= maximumCode; ++code) {
        space.linear[0].push_back(linearOf(transfer, static_cast<double>(code) / maximumCode));
    }
    space.linear[1] = space.linear[0];
    space.linear[2] = space.linear[0];
    return space;
}

} // namespace imageworker
