#pragma once

namespace imageworker {

// ITU-T H.273, table 3: the two curves of high dynamic range.
inline constexpr unsigned TransferPq = 16;
inline constexpr unsigned TransferHlg = 18;

/// Whether codes with this transfer are shown as if they were sRGB: sRGB itself, unspecified, or a camera
/// curve that is meant for such a display.
bool isShownLikeSrgb(unsigned transfer);

/// Linear light, 0 to 1, of a code from 0 to 1 (ITU-T H.273, table 3, inverted). For PQ 1 is 10,000 cd/m2;
/// for HLG it is the brightest light in the scene.
double linearOf(unsigned transfer, double code);

/// sRGB's own curve (IEC 61966-2-1), both ways.
double linearOfSrgb(double code);
double srgbOfLinear(double linear);

} // namespace imageworker
