#include "Exif.h"

#include "ByteReader.h"
#include "TiffFields.h"
#include "TiffWriter.h"

#include <algorithm>
#include <string_view>

namespace imageworker {

namespace {

constexpr std::uint32_t StandardRgb = 1;

void setIfPresent(TiffFields &tiff, const std::vector<TiffField> &fields, TiffTag tag, std::uint32_t value)
{
    if (const TiffField *field = fieldOf(fields, tag)) {
        tiff.setValue(*field, value);
    }
}

bool startsWithTiff(std::span<const std::uint8_t> bytes)
{
    constexpr std::string_view LittleEndian("II*\0", 4);
    constexpr std::string_view BigEndian("MM\0*", 4);
    const std::string_view start(reinterpret_cast<const char *>(bytes.data()),
                                 std::min<std::size_t>(bytes.size(), 4));
    return start == LittleEndian || start == BigEndian;
}

/// Transforms a subject location or area: x and y, then nothing, a diameter, or width and height (Exif 2.32,
/// 4.6.5, tags 0x9214 and 0xA214). A place outside the crop moves to its edge.
void turnPlace(TiffFields &tiff, const TiffField *field, const Transformation &transformation)
{
    if (field == nullptr || field->count < 2) {
        return;
    }
    const PixelRectangle crop = transformation.crop();
    const auto inside = [&](std::size_t index, int start, int length) {
        return std::clamp(static_cast<int>(tiff.value(*field, index) & 0xFFFF), start, start + length - 1);
    };
    const PixelRectangle place =
        transformation.shown({inside(0, crop.x, crop.width), inside(1, crop.y, crop.height), 1, 1});
    tiff.setValue(*field, static_cast<std::uint32_t>(place.x), 0);
    tiff.setValue(*field, static_cast<std::uint32_t>(place.y), 1);
    if (field->count == 4 && transformation.orientation().transposed) {
        const std::uint32_t width = tiff.value(*field, 2);
        tiff.setValue(*field, tiff.value(*field, 3), 2);
        tiff.setValue(*field, width, 3);
    }
}

/// Unlinks the second directory, which describes the preview, and overwrites the preview, which may show what
/// a crop removes. Gives the length of the structure without it.
std::size_t removePreview(TiffFields &tiff)
{
    const std::size_t length = tiff.bytes().size();
    const std::size_t link = tiff.linkPosition(tiff.firstDirectory());
    const std::size_t directory = link == 0 ? 0 : tiff.number(link, 4);
    if (directory == 0) {
        return length;
    }
    tiff.setNumber(link, 4, 0);
    const auto fields = tiff.fields(directory);
    const TiffField *offsetField = fieldOf(fields, TiffTag::PreviewOffset);
    const TiffField *lengthField = fieldOf(fields, TiffTag::PreviewLength);
    if (offsetField == nullptr || lengthField == nullptr) {
        return length;
    }
    const std::size_t offset = tiff.value(*offsetField);
    const std::size_t previewLength = tiff.value(*lengthField);
    // A preview starts after the directory that describes it. Other offsets are wrong.
    if (offset <= directory || offset > length || previewLength > length - offset) {
        return length;
    }
    std::ranges::fill(tiff.bytes().subspan(offset, previewLength), std::uint8_t{0});
    return offset + previewLength == length ? offset : length;
}

} // namespace

Bytes tiffOfExifItem(std::span<const std::uint8_t> item)
{
    ByteReader reader(item);
    reader.take(reader.u32());
    if (startsWithTiff(reader.rest())) {
        return {reader.rest().begin(), reader.rest().end()};
    }
    // Some writers leave the offset out or count it wrong.
    constexpr std::size_t FurthestStart = 16;
    for (std::size_t start = 0; start <= std::min(FurthestStart, item.size()); ++start) {
        if (const auto tiff = item.subspan(start); startsWithTiff(tiff)) {
            return {tiff.begin(), tiff.end()};
        }
    }
    return {};
}

unsigned exifOrientation(std::span<const std::uint8_t> tiff)
{
    Bytes copy(tiff.begin(), tiff.end());
    const auto structure = TiffFields::of(copy);
    if (!structure) {
        return 1;
    }
    const auto fields = structure->fields(structure->firstDirectory());
    const TiffField *field = fieldOf(fields, TiffTag::Orientation);
    const unsigned orientation = field == nullptr ? 1 : structure->value(*field);
    return orientation >= 1 && orientation <= 8 ? orientation : 1;
}

void describeCopy(Bytes &tiff, const Transformation &transformation)
{
    auto structure = TiffFields::of(tiff);
    if (!structure) {
        tiff.clear();
        return;
    }
    const auto width = static_cast<std::uint32_t>(transformation.size().width);
    const auto height = static_cast<std::uint32_t>(transformation.size().height);
    const auto fields = structure->fields(structure->firstDirectory());
    setIfPresent(*structure, fields, TiffTag::Orientation, 1);
    setIfPresent(*structure, fields, TiffTag::ImageWidth, width);
    setIfPresent(*structure, fields, TiffTag::ImageLength, height);
    if (const TiffField *link = fieldOf(fields, TiffTag::ExifDirectory)) {
        const auto details = structure->fields(structure->value(*link));
        setIfPresent(*structure, details, TiffTag::ColourSpace, StandardRgb);
        setIfPresent(*structure, details, TiffTag::PixelWidth, width);
        setIfPresent(*structure, details, TiffTag::PixelHeight, height);
        turnPlace(*structure, fieldOf(details, TiffTag::SubjectArea), transformation);
        turnPlace(*structure, fieldOf(details, TiffTag::SubjectLocation), transformation);
    }
    tiff.resize(removePreview(*structure));
}

Bytes exifWithin(const Bytes &tiff, std::size_t limit)
{
    if (tiff.size() <= limit) {
        return tiff;
    }
    Bytes copy = tiff;
    const auto structure = TiffFields::of(copy);
    return structure ? rewrittenWithin(*structure, limit) : Bytes();
}

} // namespace imageworker
