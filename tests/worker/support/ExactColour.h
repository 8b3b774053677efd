#pragma once

#include "ColourSpace.h"
#include "Raster.h"

#include <array>

namespace imageworker {

/// Red, green and blue, 0 to 1.
using Pixel = std::array<double, 3>;

/// The nearest code of a value of 0 to 1.
std::uint8_t codeOf(double value);

Bytes savedProfile(cmsHPROFILE profile);

Profile displayP3();
/// Display P3 as a table from codes to Lab, as scanners' and some cameras' profiles are.
Profile tableProfile();
/// Primaries around the white of D65, and one curve for all channels as lcms2 numbers and describes it.
Profile profileOf(const cmsCIExyYTRIPLE &primaries, int curve, const double *parameters);

/// The codes of @p picture, in the space of @p profile, as sRGB: by lcms2 in double precision.
Raster throughProfile(const Bytes &profile, Raster picture);

/// Exact arithmetic of H.273, 8.3 for the Y, Cb and Cr of one pixel, of 8 bits.
Pixel exactRgb(const std::uint8_t *sample, double kr, double kb, bool fullRange);

} // namespace imageworker
