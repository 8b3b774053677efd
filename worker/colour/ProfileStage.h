#pragma once

#include "ColourSpace.h"
#include "SrgbStage.h"

namespace imageworker {

/// For profiles of every other kind (tables, grey): row by row through lcms2.
class ProfileStage : public SrgbStage
{
public:
    /// Null when @p profile does not fit a picture that is grey or not, or cannot be taken to sRGB.
    static std::unique_ptr<ProfileStage> create(cmsHPROFILE profile, int maximumCode, bool isGrey);

    void convert(const CodeRow &codes, std::uint8_t *rgba) const override;

private:
    struct TransformDeleter
    {
        void operator()(void *transform) const { cmsDeleteTransform(transform); }
    };

    ProfileStage() = default;

    std::unique_ptr<void, TransformDeleter> m_transform;
    unsigned m_maximumCode = 255;
    bool m_isGrey = false;
};

} // namespace imageworker
