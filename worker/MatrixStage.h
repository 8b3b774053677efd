#pragma once

#include "ColourSpace.h"
#include "SrgbStage.h"

namespace imageworker {

/// Three products summed at once: what a code of one channel adds to linear red, green and blue.
typedef float LinearColour __attribute__((vector_size(16)));

/// For spaces of three primaries: a table for each channel, a sum, a clamp and a table back to codes.
class MatrixStage : public SrgbStage
{
public:
    explicit MatrixStage(const MatrixSpace &space);

    void convert(const CodeRow &codes, std::uint8_t *rgba) const override;

protected:
    /// Linear sRGB of pixel @p x; 1 stands for white.
    LinearColour linearAt(const CodeRow &codes, std::size_t x) const
    {
        return m_tables[0][codes.red[x]] + m_tables[1][codes.green[x]] + m_tables[2][codes.blue[x]];
    }
    /// Writes one linear colour, clamped, as codes of sRGB.
    void store(LinearColour linear, std::uint8_t *rgba) const;

private:
    std::array<std::vector<LinearColour>, 3> m_tables;
    std::vector<std::uint8_t> m_codes; ///< of sRGB, for linear values in steps of 1 / LastStep
};

/// For PQ and HLG: after the sum, light above a display's white is rolled off, in equal measure for all
/// channels.
class ToneMappingStage : public MatrixStage
{
public:
    ToneMappingStage(const MatrixSpace &space, unsigned transfer)
        : MatrixStage(space)
        , m_transfer(transfer)
    {}

    void convert(const CodeRow &codes, std::uint8_t *rgba) const override;

private:
    unsigned m_transfer;
};

} // namespace imageworker
