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
    picture.configuration = record != nullptr ? record->payload : std::make_shared<const Bytes>();
    const Bytes &bytes = *picture.configuration;
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

} // namespace imageworker
