#pragma once

#include "Result.h"

#include <array>
#include <lcms2.h>
#include <memory>
#include <optional>

namespace imageworker {

struct ProfileDeleter
{
    void operator()(void *profile) const { cmsCloseProfile(profile); }
};
using Profile = std::unique_ptr<void, ProfileDeleter>;

/// Rows take linear red, green and blue of one space to a channel of another.
using ColourMatrix = std::array<std::array<double, 3>, 3>;

/// A space of three primaries: what a code of each channel means, and how the channels mix to linear sRGB.
struct MatrixSpace
{
    std::array<std::vector<double>, 3> linear; ///< for each channel, the linear value of each code
    ColourMatrix toSrgb = {};
};

/// The profile in @p bytes; null when there is none or it is broken.
Profile openProfile(const Bytes &bytes);

/// The space of a profile made of curves and primaries alone; nothing for any other, which takes the general
/// way.
std::optional<MatrixSpace> matrixSpaceOf(cmsHPROFILE profile, int maximumCode);

/// The space of H.273's primaries, with the codes' linear values by its transfer; those of HDR not yet
/// tone-mapped.
MatrixSpace matrixSpaceOf(unsigned primaries, unsigned transfer, int maximumCode);

} // namespace imageworker
