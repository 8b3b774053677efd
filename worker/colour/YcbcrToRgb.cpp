#include "YcbcrToRgb.h"

#include "Vectorised.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <type_traits>

namespace imageworker {

namespace {

// ITU-T H.273, table 4.
enum Matrix : unsigned {
    MatrixIdentity = 0,
    MatrixBt709 = 1,
    MatrixUnspecified = 2,
    MatrixFcc = 4,
    MatrixBt601Line625 = 5,
    MatrixBt601 = 6,
    MatrixSmpte240 = 7,
    MatrixYCgCo = 8,
    MatrixBt2020 = 9,
    MatrixFromPrimaries = 12,
};

// Tables 2 and 3: these codes are sRGB already.
constexpr unsigned PrimariesBt709 = 1;
constexpr unsigned TransferSrgb = 13;

struct Weights
{
    double red;
    double blue;
};

/// What red and blue have in brightness (H.273, table 4); nothing for a matrix that has no such weights or is
/// not implemented.
std::optional<Weights> weightsOf(unsigned matrix, unsigned primaries)
{
    if (matrix == MatrixFromPrimaries) { // equations 39 to 44, worked out for the primaries that cameras use
        constexpr unsigned PrimariesBt2020 = 9;
        constexpr unsigned PrimariesDisplayP3 = 12;
        if (primaries == PrimariesDisplayP3) {
            return Weights{0.2290, 0.0793};
        }
        matrix = primaries == PrimariesBt709    ? MatrixBt709
                 : primaries == PrimariesBt2020 ? MatrixBt2020
                                                : MatrixUnspecified;
    }
    switch (matrix) {
    case MatrixBt709:
        return Weights{0.2126, 0.0722};
    case MatrixFcc:
        return Weights{0.30, 0.11};
    case MatrixBt601Line625:
    case MatrixBt601:
        return Weights{0.299, 0.114};
    case MatrixSmpte240:
        return Weights{0.212, 0.087};
    case MatrixBt2020:
        return Weights{0.2627, 0.0593};
    default:
        return std::nullopt;
    }
}

template<typename Sample>
__attribute__((always_inline)) inline void convertRow(const Sample *__restrict y, const Sample *__restrict cb,
                                                      const Sample *__restrict cr, const auto &coefficients,
                                                      RgbRow &codes)
{
    const auto by = coefficients; // a copy, which the compiler knows not to change with each pixel
    std::uint16_t *__restrict red = codes.red.data();
    std::uint16_t *__restrict green = codes.green.data();
    std::uint16_t *__restrict blue = codes.blue.data();
    const auto code = [maximum = by.maximum](float value) {
        const float inside = std::min(std::max(value + 0.5F, 0.0F), maximum);
        return static_cast<std::uint16_t>(static_cast<std::int32_t>(inside));
    };
    const int width = codes.width();
    for (int x = 0; x < width; ++x) {
        const float luma = by.luma * (static_cast<float>(y[x]) - by.offset);
        const float first = static_cast<float>(cb[x]) - by.middle;
        const float second = static_cast<float>(cr[x]) - by.middle;
        red[x] = code(luma + by.red[0] * first + by.red[1] * second);
        green[x] = code(luma + by.green[0] * first + by.green[1] * second);
        blue[x] = code(luma + by.blue[0] * first + by.blue[1] * second);
    }
}

/// Repeats each sample for the two pixels it covers; with a @p phase of 1 the first covers one pixel only.
template<typename Sample>
void upsample(const Sample *samples, int phase, std::vector<Sample> &row)
{
    std::size_t width = row.size();
    Sample *__restrict next = row.data();
    if (phase == 1) {
        *next++ = *samples++;
        --width;
    }
    for (std::size_t pair = 0; pair < width / 2; ++pair) {
        next[2 * pair] = samples[pair];
        next[2 * pair + 1] = samples[pair];
    }
    if (width % 2 == 1) {
        next[width - 1] = samples[width / 2];
    }
}

} // namespace

LUMAPORT_VECTORISED void convertColour(const std::uint8_t *y, const std::uint8_t *cb, const std::uint8_t *cr,
                                       const YcbcrToRgb::Coefficients &by, RgbRow &codes)
{
    convertRow(y, cb, cr, by, codes);
}

LUMAPORT_VECTORISED void convertColour(const std::uint16_t *y, const std::uint16_t *cb,
                                       const std::uint16_t *cr, const YcbcrToRgb::Coefficients &by,
                                       RgbRow &codes)
{
    convertRow(y, cb, cr, by, codes);
}

Result<CodePoints> effectiveCodePoints(const SampleFormat &format, const ColourDescription &description)
{
    CodePoints points = format.codePoints;
    if (description.codePoints) {
        const CodePoints &said = *description.codePoints;
        points.fullRange = said.fullRange;
        points.primaries = said.primaries == 2 ? points.primaries : said.primaries;
        points.transfer = said.transfer == 2 ? points.transfer : said.transfer;
        points.matrix = said.matrix == MatrixUnspecified ? points.matrix : said.matrix;
    }
    if (description.isOpacity) {
        points.primaries = PrimariesBt709;
        points.transfer = TransferSrgb;
    }
    const bool canBeRgb = format.planeCount == 3 && format.chroma == PlaneLayout();
    if (format.isRgb) {
        points.matrix = MatrixIdentity;
    } else if ((points.matrix == MatrixIdentity && !canBeRgb) || points.matrix == MatrixUnspecified ||
               format.planeCount == 1) {
        points.matrix = MatrixBt601;
    }
    const bool isImplemented = points.matrix == MatrixIdentity || points.matrix == MatrixYCgCo ||
                               weightsOf(points.matrix, points.primaries);
    return isImplemented ? Result<CodePoints>(points) : unreadable();
}

YcbcrToRgb::YcbcrToRgb(const SampleFormat &format, const CodePoints &codePoints)
    : m_format(format)
    , m_maximumCode(format.depth == 8 ? 255 : 4095)
{
    const double levels = std::exp2(format.depth);
    const double unit = levels / 256; // limited range is defined for 8 bits and scaled up
    const double lumaRange = codePoints.fullRange ? levels - 1 : 219 * unit;
    const double colourRange = codePoints.fullRange ? levels - 1 : 224 * unit;
    const double luma = m_maximumCode / lumaRange;
    const double colour = m_maximumCode / colourRange;
    const auto narrow = [](double value) { return static_cast<float>(value); };
    m_coefficients.maximum = narrow(m_maximumCode);
    m_coefficients.offset = narrow(codePoints.fullRange ? 0 : 16 * unit);
    m_coefficients.luma = narrow(luma);
    if (codePoints.matrix == MatrixIdentity) { // each plane is converted like luma
        m_format.isRgb = m_format.planeCount == 3;
        m_coefficients.middle = 0;
        return;
    }
    m_coefficients.middle = narrow(levels / 2);
    if (codePoints.matrix == MatrixYCgCo) {
        m_coefficients.red = {narrow(-colour), narrow(colour)};
        m_coefficients.green = {narrow(colour), 0.0F};
        m_coefficients.blue = {narrow(-colour), narrow(-colour)};
        return;
    }
    const auto [red, blue] = *weightsOf(codePoints.matrix, codePoints.primaries);
    const double green = 1 - red - blue;
    m_coefficients.red = {0.0F, narrow(2 * (1 - red) * colour)};
    m_coefficients.green = {narrow(-2 * (1 - blue) * blue / green * colour),
                            narrow(-2 * (1 - red) * red / green * colour)};
    m_coefficients.blue = {narrow(2 * (1 - blue) * colour), 0.0F};
}

template<typename Sample>
void YcbcrToRgb::convertSamples(const SampleRow &samples, RgbRow &codes) const
{
    const auto plane = [&samples](std::size_t index) {
        return reinterpret_cast<const Sample *>(samples[index]);
    };
    const auto width = static_cast<std::size_t>(codes.width());
    if (m_format.isRgb || m_format.planeCount == 1) {
        // Each channel is converted like luma; its chroma coefficients are zero.
        Coefficients alone;
        alone.offset = m_coefficients.offset;
        alone.luma = m_coefficients.luma;
        alone.maximum = m_coefficients.maximum;
        RgbRow same(codes.width());
        convertColour(plane(0), plane(0), plane(0), alone, codes);
        if (m_format.isRgb) {
            convertColour(plane(1), plane(1), plane(1), alone, same);
            std::swap(codes.blue, same.blue);
            convertColour(plane(2), plane(2), plane(2), alone, same);
            std::swap(codes.red, same.red);
        }
        return;
    }
    if (m_format.chroma.shiftX == 0) {
        convertColour(plane(0), plane(1), plane(2), m_coefficients, codes);
        return;
    }
    std::vector<Sample> first(width);
    std::vector<Sample> second(width);
    upsample(plane(1), m_format.chroma.phaseX, first);
    upsample(plane(2), m_format.chroma.phaseX, second);
    convertColour(plane(0), first.data(), second.data(), m_coefficients, codes);
}

void YcbcrToRgb::convert(const SampleRow &samples, RgbRow &codes) const
{
    if (m_format.sampleBytes() == 1) {
        convertSamples<std::uint8_t>(samples, codes);
    } else {
        convertSamples<std::uint16_t>(samples, codes);
    }
}

} // namespace imageworker
