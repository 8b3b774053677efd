#pragma once

#include "CodeRow.h"
#include "Planes.h"

#include <memory>

namespace imageworker {

/// Turns codes of a picture's own colour space into 8-bit sRGB.
class SrgbStage
{
public:
    virtual ~SrgbStage() = default;

    /// Writes red, green, blue and a full opacity for each pixel of @p codes. May be called on several
    /// threads at once.
    virtual void convert(const CodeRow &codes, std::uint8_t *rgba) const = 0;
};

/// The stage for pictures whose codes run to @p maximumCode. A profile counts before code points; one that is
/// broken or of the wrong kind counts as absent, and without either a picture is taken for sRGB. @p isGrey
/// picks the kind of profile.
std::unique_ptr<SrgbStage> makeSrgbStage(const Bytes &iccProfile, const CodePoints &codePoints,
                                         int maximumCode, bool isGrey);

/// Converts a row of 8-bit codes with opacity, which stays.
void convertInPlace(const SrgbStage &stage, std::uint8_t *rgba, int width);

} // namespace imageworker
