#pragma once

#include "Planes.h"
#include "RgbRow.h"

namespace imageworker {

/// The first sample of a row in each plane.
using SampleRow = std::array<const std::uint8_t *, 3>;

/// Converts YCbCr samples, or those of the other matrices of ITU-T H.273, to red, green and blue (8.3). In
/// single precision, rounded once.
class YcbcrToRgb
{
public:
    /// @p codePoints as effectiveCodePoints() gives them.
    YcbcrToRgb(const SampleFormat &format, const CodePoints &codePoints);

    /// Highest code: 255 for pictures of 8 bits, 4095 for deeper ones.
    int maximumCode() const { return m_maximumCode; }

    void convert(const SampleRow &samples, RgbRow &codes) const;

private:
    /// codes = luma * (Y - offset) + colour * (Cb - middle, Cr - middle)
    struct Coefficients
    {
        float offset = 0;
        float middle = 0;
        float maximum = 0;
        float luma = 0;
        std::array<float, 2> red = {};
        std::array<float, 2> green = {};
        std::array<float, 2> blue = {};
    };

    template<typename Sample>
    void convertSamples(const SampleRow &samples, RgbRow &codes) const;

    friend void convertColour(const std::uint8_t *, const std::uint8_t *, const std::uint8_t *,
                              const Coefficients &, RgbRow &);
    friend void convertColour(const std::uint16_t *, const std::uint16_t *, const std::uint16_t *,
                              const Coefficients &, RgbRow &);

    SampleFormat m_format;
    int m_maximumCode;
    Coefficients m_coefficients;
};

/// The code points of a picture: those of the container, else those of the coded picture, else limited range
/// and BT.601. The matrix is one that @p format allows. Unreadable when it is not implemented: those of
/// constant luminance, and those that newer standards add, would give other colours.
Result<CodePoints> effectiveCodePoints(const SampleFormat &format, const ColourDescription &description);

} // namespace imageworker
