#include "SrgbTransform.h"

#include "ColourSpace.h"
#include "MatrixTransform.h"
#include "ProfileTransform.h"
#include "TransferCurve.h"
#include "Vectorised.h"

namespace imageworker {

namespace {

LUMAPORT_VECTORISED void packBytes(const RgbRow &codes, std::uint8_t *__restrict rgba)
{
    const std::uint16_t *red = codes.red.data();
    const std::uint16_t *green = codes.green.data();
    const std::uint16_t *blue = codes.blue.data();
    const std::size_t width = codes.red.size();
    for (std::size_t x = 0; x < width; ++x) {
        rgba[4 * x] = static_cast<std::uint8_t>(red[x]);
        rgba[4 * x + 1] = static_cast<std::uint8_t>(green[x]);
        rgba[4 * x + 2] = static_cast<std::uint8_t>(blue[x]);
        rgba[4 * x + 3] = 255;
    }
}

/// For pictures that are in sRGB already: codes are only rounded to 8 bits.
class IdentityTransform : public SrgbTransform
{
public:
    explicit IdentityTransform(int maximumCode)
        : m_maximumCode(static_cast<unsigned>(maximumCode))
    {}

    void convert(const RgbRow &codes, std::uint8_t *rgba) const override
    {
        if (m_maximumCode == 255) {
            packBytes(codes, rgba);
            return;
        }
        RgbRow rounded = codes;
        for (auto *channel : {&rounded.red, &rounded.green, &rounded.blue}) {
            for (std::uint16_t &code : *channel) {
                code = static_cast<std::uint16_t>((code * 255U + m_maximumCode / 2) / m_maximumCode);
            }
        }
        packBytes(rounded, rgba);
    }

private:
    unsigned m_maximumCode;
};

bool isHighDynamicRange(unsigned transfer)
{
    return transfer == TransferPq || transfer == TransferHlg;
}

bool hasPrimariesOfSrgb(unsigned primaries)
{
    return primaries <= 3;
}

} // namespace

std::unique_ptr<SrgbTransform> makeSrgbTransform(const Bytes &iccProfile, const CodePoints &codePoints,
                                                 int maximumCode, bool isGrey)
{
    if (const Profile profile = openProfile(iccProfile); profile != nullptr) {
        if (const auto space = matrixSpaceOf(profile.get(), maximumCode); space) {
            return std::make_unique<MatrixTransform>(*space);
        }
        if (auto transform = ProfileTransform::create(profile.get(), maximumCode, isGrey)) {
            return transform;
        }
    }
    if (isHighDynamicRange(codePoints.transfer)) {
        return std::make_unique<ToneMappingTransform>(
            matrixSpaceOf(codePoints.primaries, codePoints.transfer, maximumCode), codePoints.transfer);
    }
    if (hasPrimariesOfSrgb(codePoints.primaries) && isShownLikeSrgb(codePoints.transfer)) {
        return std::make_unique<IdentityTransform>(maximumCode);
    }
    return std::make_unique<MatrixTransform>(
        matrixSpaceOf(codePoints.primaries, codePoints.transfer, maximumCode));
}

void convertInPlace(const SrgbTransform &transform, std::uint8_t *rgba, int width)
{
    RgbRow codes(width);
    Bytes opacities(codes.red.size());
    for (std::size_t x = 0; x < codes.red.size(); ++x) {
        codes.red[x] = rgba[4 * x];
        codes.green[x] = rgba[4 * x + 1];
        codes.blue[x] = rgba[4 * x + 2];
        opacities[x] = rgba[4 * x + 3];
    }
    transform.convert(codes, rgba);
    for (std::size_t x = 0; x < opacities.size(); ++x) {
        rgba[4 * x + 3] = opacities[x];
    }
}

} // namespace imageworker
