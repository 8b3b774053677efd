#pragma once

#include "ColourSpace.h"

#include <array>

namespace imageworker {

/// Red, green and blue, 0 to 1.
using Pixel = std::array<double, 3>;

Bytes savedProfile(cmsHPROFILE profile);

Profile displayP3();
/// Display P3 as a table from codes to Lab, as scanners' and some cameras' profiles are.
Profile tableProfile();
/// Primaries around the white of D65, and one curve for all channels as lcms2 numbers and describes it.
Profile profileOf(const cmsCIExyYTRIPLE &primaries, int curve, const double *parameters);

/// What lcms2 makes of colours in double precision.
class ExactSrgb
{
public:
    explicit ExactSrgb(const Bytes &profile);

    /// Within 0 to 1.
    Pixel of(const Pixel &pixel) const;

private:
    std::unique_ptr<void, decltype(&cmsDeleteTransform)> m_transform;
};

/// Exact arithmetic of H.273, 8.3 for one pixel.
Pixel exactRgb(double y, double cb, double cr, double kr, double kb, bool fullRange, int depth);

} // namespace imageworker
