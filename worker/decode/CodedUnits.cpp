#include "CodedUnits.h"

#include "ByteReader.h"

#include <algorithm>

namespace imageworker {

namespace {

/// Open bitstream units (AV1 bitstream format, 5.3 and 4.10.5). The data of a picture ends with a set bit
/// (8.2.4), so a run of zeros at the end was never transferred.
bool hasCompleteAv1Units(std::span<const std::uint8_t> bytes)
{
    constexpr unsigned HasExtension = 4;
    constexpr unsigned HasLength = 2;
    constexpr std::size_t LongestRun = 8;
    ByteReader reader(bytes);
    do {
        const unsigned header = reader.u8();
        if ((header & HasExtension) != 0) {
            reader.u8();
        }
        std::uint64_t length = reader.rest().size();
        if ((header & HasLength) != 0) {
            length = 0;
            unsigned digit = 0x80;
            for (unsigned shift = 0; shift < 56 && (digit & 0x80) != 0; shift += 7) {
                digit = reader.u8();
                length |= std::uint64_t{digit & 0x7F} << shift;
            }
        }
        reader.take(length);
    } while (!reader.atEnd() && !reader.failed());
    const auto end = bytes.last(std::min(bytes.size(), LongestRun));
    return !reader.failed() && std::ranges::any_of(end, [](std::uint8_t byte) { return byte != 0; });
}

} // namespace

bool hasCompleteUnits(const CodedPicture &picture, std::span<const std::uint8_t> bytes)
{
    if (picture.codec == Codec::Av1) {
        return hasCompleteAv1Units(bytes);
    }
    if (picture.lengthWidth == 0) {
        return !bytes.empty();
    }
    ByteReader reader(bytes);
    do {
        const std::uint64_t length = reader.number(picture.lengthWidth);
        if (length == 0) {
            return false;
        }
        const auto unit = reader.take(length);
        // No unit ends with a zero (ITU-T H.265 and H.264, 7.4.1): such a byte was never transferred.
        if (unit.empty() || unit.back() == 0) {
            return false;
        }
    } while (!reader.atEnd() && !reader.failed());
    return !reader.failed();
}

} // namespace imageworker
