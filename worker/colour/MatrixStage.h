#pragma once

#include "ColourSpace.h"
#include "SrgbStage.h"

namespace imageworker {

/// Three products summed at once: what a code of one channel adds to linear red, green and blue. The fourth
/// is not used.
typedef float LinearColour __attribute__((vector_size(16)));

/// For each channel, what each of its codes adds.
using LinearTables = std::array<std::vector<LinearColour>, 3>;

/// For spaces of three primaries: a table for each channel, a sum, and a table back to codes.
class MatrixStage : public SrgbStage
{
public:
    explicit MatrixStage(const MatrixSpace &space);

    void convert(const CodeRow &codes, std::uint8_t *rgba) const override;

private:
    LinearTables m_tables;             ///< their sums, cut off, are indices of m_codes
    std::vector<std::uint8_t> m_codes; ///< of sRGB, for each linear value that a sum can give
};

/// For PQ and HLG: after the sum, light above a display's white is rolled off, in equal measure for all
/// channels.
class ToneMappingStage : public SrgbStage
{
public:
    ToneMappingStage(const MatrixSpace &space, unsigned transfer);

    void convert(const CodeRow &codes, std::uint8_t *rgba) const override;

private:
    void store(LinearColour linear, std::uint8_t *rgba) const;

    unsigned m_transfer;
    LinearTables m_tables;
    std::vector<std::uint8_t> m_codes; ///< of sRGB, for linear values from 0 to 1
};

} // namespace imageworker
