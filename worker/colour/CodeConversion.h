#pragma once

#include "CodeRow.h"
#include "Planes.h"

namespace imageworker {

/// One row of a picture's planes.
struct SampleRow
{
    std::array<const std::uint8_t *, 3> planes = {};
    int chromaShift =
        0; ///< colour sample of pixel x is number (x + phase) >> shift; not that of the format when turned
    int chromaPhase = 0;
};

/// Turns decoded samples into codes of red, green and blue: ITU-T H.273, 8.3, in single precision, rounded
/// once.
class CodeConversion
{
public:
    /// @p codePoints with nothing left open but primaries and transfer.
    CodeConversion(const SampleFormat &format, const CodePoints &codePoints);

    /// Highest code: 255 for pictures of 8 bits; 4095 for deeper ones, which are not yet rounded to what is
    /// shown.
    int maximumCode() const { return m_maximumCode; }

    void convert(const SampleRow &row, CodeRow &codes) const;

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
    void convertSamples(const SampleRow &row, CodeRow &codes) const;

    friend void convertColour(const std::uint8_t *, const std::uint8_t *, const std::uint8_t *,
                              const Coefficients &, CodeRow &);
    friend void convertColour(const std::uint16_t *, const std::uint16_t *, const std::uint16_t *,
                              const Coefficients &, CodeRow &);

    SampleFormat m_format;
    int m_maximumCode;
    Coefficients m_coefficients;
};

/// The code points that hold for @p format: what the container says, else what the coded picture says, else
/// limited range and BT.601; never a matrix that the planes cannot have.
CodePoints effectiveCodePoints(const SampleFormat &format, const ColourDescription &description);

} // namespace imageworker
