#pragma once

#include "Result.h"

#include <array>
#include <lcms2.h>
#include <lcms2_plugin.h>
#include <memory>
#include <optional>

namespace imageworker {

struct ProfileDeleter
{
    void operator()(void *profile) const { cmsCloseProfile(profile); }
};
using Profile = std::unique_ptr<void, ProfileDeleter>;

/// A colour space given by a transfer curve for each channel and three primaries.
struct MatrixSpace
{
    std::array<std::vector<double>, 3> linear; ///< for each channel, the linear value of each code
    cmsMAT3 toSrgb = {};                       ///< from its linear red, green and blue to those of sRGB
};

/// The profile in @p bytes; null when there is none or it is broken.
Profile openProfile(const Bytes &bytes);

/// The space of a matrix profile, for codes from 0 to @p maximumCode; nothing for a profile of another kind.
std::optional<MatrixSpace> matrixSpaceOf(cmsHPROFILE profile, int maximumCode);

/// The space of primaries and transfer by the code points of ITU-T H.273; HDR is not tone-mapped here.
MatrixSpace matrixSpaceOf(unsigned primaries, unsigned transfer, int maximumCode);

} // namespace imageworker
