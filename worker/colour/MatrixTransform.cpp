#include "MatrixTransform.h"

#include "TransferCurve.h"
#include "Vectorised.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>

namespace imageworker {

namespace {

// 14 bits: where sRGB's curve is steepest, a step is a fifth of a code.
constexpr int LastStep = 16383;

// Recommendation ITU-R BT.2408-4, 2.1: the light of white paper, and the brightest light pictures are graded
// for.
constexpr float ReferenceWhite = 203;  // cd/m2
constexpr float GradingPeak = 1000;    // cd/m2
constexpr float PqMaximum = 10000;     // cd/m2
constexpr float HlgSystemGamma = 1.2F; // BT.2100-2, table 5, for a display of the grading peak

/// Unchanged up to half, then an extended Reinhard curve (Reinhard et al. 2002, equation 4) that meets it
/// without a bend and takes the grading peak to 1.
float rolledOff(float light)
{
    constexpr float Knee = 0.5F;
    constexpr float Peak = (GradingPeak / ReferenceWhite - Knee) / (1 - Knee);
    if (light <= Knee) {
        return light;
    }
    const float above = std::min((light - Knee) / (1 - Knee), Peak);
    return Knee + (1 - Knee) * above * (1 + above / (Peak * Peak)) / (1 + above);
}

// Real primaries stay below 3. The limit keeps the table of codes small for a broken profile.
constexpr double FurthestValue = 8;

/// @p scale: the table's value for linear 1.
LinearTables makeTables(const MatrixSpace &space, double scale)
{
    LinearTables tables;
    for (std::size_t channel = 0; channel < 3; ++channel) {
        for (const double linear : space.linear[channel]) {
            const auto part = [&](std::size_t row) {
                const double value = space.toSrgb.v[row].n[channel] * linear;
                const double inside =
                    std::clamp(std::isnan(value) ? 0 : value, -FurthestValue, FurthestValue);
                return static_cast<float>(inside * scale);
            };
            tables[channel].push_back(LinearColour{part(0), part(1), part(2), 0});
        }
    }
    return tables;
}

/// The code of sRGB that is nearest to linear @p step / LastStep.
std::uint8_t codeOfStep(int step)
{
    const double linear = std::clamp(step, 0, LastStep) / static_cast<double>(LastStep);
    return static_cast<std::uint8_t>(std::lround(255 * srgbOfLinear(linear)));
}

/// The lowest and the highest value of any sum of three entries, one from each table.
std::pair<float, float> limitsOfSums(const LinearTables &tables)
{
    LinearColour lowest = {};
    LinearColour highest = {};
    for (const auto &table : tables) {
        LinearColour low = table.front();
        LinearColour high = table.front();
        for (const LinearColour &entry : table) {
            low = entry < low ? entry : low;
            high = entry > high ? entry : high;
        }
        lowest += low;
        highest += high;
    }
    return {std::min({lowest[0], lowest[1], lowest[2]}), std::max({highest[0], highest[1], highest[2]})};
}

/// @p tables: one for each channel. @p srgb: the codes by sum. All sums of a block are stored before the
/// first is loaded as an index, which spares the processor waiting for each store.
LUMAPORT_VECTORISED void convertPixels(const RgbRow &codes, const std::array<const LinearColour *, 3> &tables,
                                       const std::uint8_t *__restrict srgb, std::uint8_t *__restrict rgba)
{
    typedef std::int32_t Steps __attribute__((vector_size(16)));
    constexpr std::size_t Block = 16;
    constexpr std::uint32_t Opaque = 0xFF000000;
    static_assert(std::endian::native == std::endian::little);
    const std::uint16_t *red = codes.red.data();
    const std::uint16_t *green = codes.green.data();
    const std::uint16_t *blue = codes.blue.data();
    const auto [byRed, byGreen, byBlue] = tables;
    const std::size_t width = codes.red.size();
    alignas(Steps) std::array<std::int32_t, 4 * Block> steps;
    for (std::size_t start = 0; start < width; start += Block) {
        const std::size_t end = std::min(start + Block, width);
        std::int32_t *next = steps.data();
        for (std::size_t x = start; x < end; ++x, next += 4) {
            const LinearColour sum = byRed[red[x]] + byGreen[green[x]] + byBlue[blue[x]];
            const Steps rounded = __builtin_convertvector(sum, Steps);
            std::memcpy(next, &rounded, sizeof(rounded));
        }
        const std::int32_t *step = steps.data();
        for (std::size_t x = start; x < end; ++x, step += 4) {
            const std::uint32_t pixel = srgb[step[0]] | static_cast<std::uint32_t>(srgb[step[1]]) << 8 |
                                        static_cast<std::uint32_t>(srgb[step[2]]) << 16 | Opaque;
            std::memcpy(rgba + 4 * x, &pixel, sizeof(pixel));
        }
    }
}

} // namespace

MatrixTransform::MatrixTransform(const MatrixSpace &space)
    : m_tables(makeTables(space, LastStep))
{
    const auto [lowest, highest] = limitsOfSums(m_tables);
    // One step more on each side: sums in another order may round differently.
    const int firstStep = static_cast<int>(std::floor(lowest)) - 1;
    const int lastStep = static_cast<int>(std::ceil(highest)) + 1;
    for (int step = firstStep; step <= lastStep; ++step) {
        m_codes.push_back(codeOfStep(step));
    }
    const float shift = 0.5F - static_cast<float>(firstStep); // cutting off then rounds to the nearest
    for (LinearColour &entry : m_tables[0]) {
        entry += shift;
    }
}

void MatrixTransform::convert(const RgbRow &codes, std::uint8_t *rgba) const
{
    convertPixels(codes, {m_tables[0].data(), m_tables[1].data(), m_tables[2].data()}, m_codes.data(), rgba);
}

ToneMappingTransform::ToneMappingTransform(const MatrixSpace &space, unsigned transfer)
    : m_transfer(transfer)
    , m_tables(makeTables(space, 1))
{
    for (int step = 0; step <= LastStep; ++step) {
        m_codes.push_back(codeOfStep(step));
    }
}

void ToneMappingTransform::store(LinearColour linear, std::uint8_t *rgba) const
{
    for (int channel = 0; channel < 3; ++channel) {
        const float inside = std::clamp(linear[channel], 0.0F, 1.0F);
        const float step = inside * LastStep + 0.5F; // cutting off then rounds to the nearest
        rgba[channel] = m_codes[static_cast<std::size_t>(step)];
    }
    rgba[3] = 255;
}

void ToneMappingTransform::convert(const RgbRow &codes, std::uint8_t *rgba) const
{
    const auto width = static_cast<std::size_t>(codes.width());
    for (std::size_t x = 0; x < width; ++x) {
        LinearColour light =
            m_tables[0][codes.red[x]] + m_tables[1][codes.green[x]] + m_tables[2][codes.blue[x]];
        if (m_transfer == TransferPq) {
            light *= PqMaximum / ReferenceWhite;
        } else {
            // BT.2100-2, table 5: the display's light grows with the scene's brightness.
            const float brightness = 0.2126F * light[0] + 0.7152F * light[1] + 0.0722F * light[2];
            light *= std::pow(std::max(brightness, 0.0F), HlgSystemGamma - 1) * GradingPeak / ReferenceWhite;
        }
        const float brightest = std::max({light[0], light[1], light[2]});
        if (brightest > 0) {
            light *= rolledOff(brightest) / brightest;
        }
        store(light, rgba + 4 * x);
    }
}

} // namespace imageworker
