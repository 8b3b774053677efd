#include "ProfileTransform.h"

namespace imageworker {

std::unique_ptr<ProfileTransform> ProfileTransform::create(cmsHPROFILE profile, int maximumCode, bool isGrey)
{
    const cmsColorSpaceSignature space = cmsGetColorSpace(profile);
    const bool isGreyProfile = space == cmsSigGrayData;
    if ((isGreyProfile && !isGrey) || (!isGreyProfile && space != cmsSigRgbData)) {
        return nullptr;
    }
    const Profile srgb(cmsCreate_sRGBProfile());
    std::unique_ptr<ProfileTransform> transform(new ProfileTransform);
    transform->m_maximumCode = static_cast<unsigned>(maximumCode);
    transform->m_isGrey = isGreyProfile;
    // No cache: several threads would share it. No optimisation: it is a few times faster, but up to 14 codes
    // off for a table and 7 for a curve of grey. Opacity in the output is left as it is.
    transform->m_transform.reset(cmsCreateTransform(profile, isGreyProfile ? TYPE_GRAY_16 : TYPE_RGB_16,
                                                    srgb.get(), TYPE_RGBA_8, INTENT_PERCEPTUAL,
                                                    cmsFLAGS_NOCACHE | cmsFLAGS_NOOPTIMIZE));
    return transform->m_transform ? std::move(transform) : nullptr;
}

void ProfileTransform::convert(const RgbRow &codes, std::uint8_t *rgba) const
{
    const auto width = static_cast<std::size_t>(codes.width());
    const std::size_t channels = m_isGrey ? 1 : 3;
    std::vector<std::uint16_t> row(width * channels);
    const auto word = [this](std::uint16_t code) {
        return static_cast<std::uint16_t>((code * 65535U + m_maximumCode / 2) / m_maximumCode);
    };
    for (std::size_t x = 0; x < width; ++x) {
        row[channels * x] = word(codes.red[x]);
        if (!m_isGrey) {
            row[channels * x + 1] = word(codes.green[x]);
            row[channels * x + 2] = word(codes.blue[x]);
        }
        rgba[4 * x + 3] = 255;
    }
    cmsDoTransform(m_transform.get(), row.data(), rgba, static_cast<cmsUInt32Number>(width));
}

} // namespace imageworker
