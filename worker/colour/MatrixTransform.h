#pragma once

#include "ColourSpace.h"
#include "SrgbTransform.h"

namespace imageworker {

/// What a code of one channel adds to linear red, green and blue; the fourth value is not used.
typedef float LinearColour __attribute__((vector_size(16)));

/// For each channel, what each of its codes adds.
using LinearTables = std::array<std::vector<LinearColour>, 3>;

/// For matrix spaces: a table of linear light for each channel, a sum, and a table from there to sRGB codes.
class MatrixTransform : public SrgbTransform
{
public:
    explicit MatrixTransform(const MatrixSpace &space);

    void convert(const RgbRow &codes, std::uint8_t *rgba) const override;

private:
    LinearTables m_tables;             ///< sums of their entries, truncated, are indices of m_codes
    std::vector<std::uint8_t> m_codes; ///< of sRGB, for each sum
};

/// For PQ and HLG: light above a display's white is rolled off before it becomes a code, all channels by the
/// same factor.
class ToneMappingTransform : public SrgbTransform
{
public:
    ToneMappingTransform(const MatrixSpace &space, unsigned transfer);

    void convert(const RgbRow &codes, std::uint8_t *rgba) const override;

private:
    void store(LinearColour linear, std::uint8_t *rgba) const;

    unsigned m_transfer;
    LinearTables m_tables;
    std::vector<std::uint8_t> m_codes; ///< of sRGB, for linear values from 0 to 1
};

} // namespace imageworker
