#include "CodecConfiguration.h"

#include "Boxes.h"

#include <algorithm>

namespace imageworker {

std::uint32_t configurationTypeOf(std::uint32_t itemType)
{
    switch (itemType) {
    case fourCharacters("hvc1"):
    case fourCharacters("hev1"):
        return fourCharacters("hvcC");
    case fourCharacters("av01"):
        return fourCharacters("av1C");
    case fourCharacters("avc1"):
    case fourCharacters("avc3"):
        return fourCharacters("avcC");
    case fourCharacters("jpeg"):
        return fourCharacters("jpgC");
    default:
        return 0;
    }
}

bool readCodecConfiguration(std::uint32_t itemType, const ItemProperty *record, CodedPicture &picture)
{
    // ISO/IEC 14496-15, 8.3.3.1 and 5.3.3.1: where the two low bits say the width of the units' length
    // fields.
    constexpr std::size_t HevcLengthByte = 21;
    constexpr std::size_t AvcLengthByte = 4;
    if (record != nullptr) {
        picture.configuration = record->payload;
    }
    const Bytes &bytes = picture.configuration;
    std::size_t lengthByte = 0;
    switch (configurationTypeOf(itemType)) {
    case fourCharacters("hvcC"):
        picture.codec = Codec::Hevc;
        lengthByte = HevcLengthByte;
        break;
    case fourCharacters("avcC"):
        picture.codec = Codec::Avc;
        lengthByte = AvcLengthByte;
        break;
    case fourCharacters("av1C"):
        picture.codec = Codec::Av1;
        return bytes.size() >= 4;
    case fourCharacters("jpgC"):
        picture.codec = Codec::Jpeg;
        return true; // ISO/IEC 23008-12, H.3: the record is optional
    default:
        return false;
    }
    if (bytes.size() <= lengthByte) {
        return false;
    }
    picture.lengthWidth = (bytes[lengthByte] & 3U) + 1;
    return picture.lengthWidth != 3;
}

namespace {

/// Open bitstream units, AV1 bitstream format, 5.3 and 4.10.5: all of each is
/// there. No picture ends in a run of zeros, as the data of one end with a bit that is set (its 8.2.4).
bool hasSoundAv1Units(std::span<const std::uint8_t> bytes)
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

bool hasSoundUnits(const CodedPicture &picture, std::span<const std::uint8_t> bytes)
{
    if (picture.codec == Codec::Av1) {
        return hasSoundAv1Units(bytes);
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
        if (unit.empty() ||
            unit.back() == 0) { // no unit ends so (ITU-T H.265 and H.264, 7.4.1): it never arrived
            return false;
        }
    } while (!reader.atEnd() && !reader.failed());
    return !reader.failed();
}

} // namespace imageworker
