#pragma once

#include "Planes.h"
#include "RgbRow.h"

#include <memory>

namespace imageworker {

/// Converts codes of a picture's own colour space to 8-bit sRGB.
class SrgbTransform
{
public:
    virtual ~SrgbTransform() = default;

    /// Writes red, green, blue and a full opacity for each pixel of @p codes. May be called on several
    /// threads at once.
    virtual void convert(const RgbRow &codes, std::uint8_t *rgba) const = 0;
};

/// The transform for codes from 0 to @p maximumCode. A profile overrides code points. A profile is ignored
/// when it is broken, or when it is grey and the picture is not. Without either, a picture is in sRGB.
std::unique_ptr<SrgbTransform> makeSrgbTransform(const Bytes &iccProfile, const CodePoints &codePoints,
                                                 int maximumCode, bool isGrey);

/// Converts a row of 8-bit codes; opacity stays as it is.
void convertInPlace(const SrgbTransform &transform, std::uint8_t *rgba, int width);

} // namespace imageworker
