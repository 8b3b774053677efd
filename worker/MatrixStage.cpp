#include "MatrixStage.h"

#include "TransferCurve.h"

#include <algorithm>
#include <cmath>

namespace imageworker {

namespace {

// 14 bits: where sRGB's curve is steepest, a step is a fifth of a code.
constexpr int LastStep = 16383;

// Recommendation ITU-R BT.2408-4, 2.1: what lies above the white of a page, up to what such pictures are
// graded for.
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

} // namespace

MatrixStage::MatrixStage(const MatrixSpace &space)
    : m_codes(LastStep + 1)
{
    for (std::size_t channel = 0; channel < 3; ++channel) {
        for (const double linear : space.linear[channel]) {
            const auto part = [&](std::size_t row) {
                return static_cast<float>(space.toSrgb[row][channel] * linear);
            };
            m_tables[channel].push_back(LinearColour{part(0), part(1), part(2), 0});
        }
    }
    for (int step = 0; step <= LastStep; ++step) {
        const double code = 255 * srgbOfLinear(static_cast<double>(step) / LastStep);
        m_codes[static_cast<std::size_t>(step)] = static_cast<std::uint8_t>(std::lround(code));
    }
}

inline void MatrixStage::store(LinearColour linear, std::uint8_t *rgba) const
{
    typedef std::int32_t Steps __attribute__((vector_size(16)));
    LinearColour scaled = linear * static_cast<float>(LastStep) + 0.5F;
    constexpr LinearColour Lowest = {0, 0, 0, 0};
    constexpr LinearColour Highest = {LastStep, LastStep, LastStep, LastStep};
    scaled = scaled > Lowest ? scaled : Lowest; // a NaN, which a broken profile may give, becomes 0
    scaled = scaled < Highest ? scaled : Highest;
    const Steps steps = __builtin_convertvector(scaled, Steps);
    rgba[0] = m_codes[static_cast<std::size_t>(steps[0])];
    rgba[1] = m_codes[static_cast<std::size_t>(steps[1])];
    rgba[2] = m_codes[static_cast<std::size_t>(steps[2])];
    rgba[3] = 255;
}

void MatrixStage::convert(const CodeRow &codes, std::uint8_t *rgba) const
{
    const auto width = static_cast<std::size_t>(codes.width());
    for (std::size_t x = 0; x < width; ++x) {
        store(linearAt(codes, x), rgba + 4 * x);
    }
}

void ToneMappingStage::convert(const CodeRow &codes, std::uint8_t *rgba) const
{
    const auto width = static_cast<std::size_t>(codes.width());
    for (std::size_t x = 0; x < width; ++x) {
        LinearColour light = linearAt(codes, x);
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
