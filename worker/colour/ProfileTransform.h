#pragma once

#include "ColourSpace.h"
#include "SrgbTransform.h"

namespace imageworker {

/// For all other profiles (tables, grey): the transform of lcms2, row by row.
class ProfileTransform : public SrgbTransform
{
public:
    /// Null when @p profile does not fit a picture that is grey or not, or cannot be taken to sRGB.
    static std::unique_ptr<ProfileTransform> create(cmsHPROFILE profile, int maximumCode, bool isGrey);

    void convert(const RgbRow &codes, std::uint8_t *rgba) const override;

private:
    struct TransformDeleter
    {
        void operator()(void *transform) const { cmsDeleteTransform(transform); }
    };

    ProfileTransform() = default;

    std::unique_ptr<void, TransformDeleter> m_transform;
    unsigned m_maximumCode = 255;
    bool m_isGrey = false;
};

} // namespace imageworker
