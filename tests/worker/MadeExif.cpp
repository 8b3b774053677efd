#include "MadeExif.h"

#include "TiffFields.h"

#include <string_view>

namespace imageworker {

namespace {

enum Type : unsigned { Text = 2, Short = 3, Long = 4, Rational = 5, Undefined = 7 };

struct Field
{
    unsigned tag;
    Type type;
    std::size_t count;
    Bytes value;
};

Bytes number(std::size_t value, unsigned width)
{
    Bytes bytes;
    for (unsigned index = 0; index < width; ++index) {
        bytes.push_back(static_cast<std::uint8_t>(value >> (8 * index)));
    }
    return bytes;
}

void append(Bytes &bytes, const Bytes &more)
{
    bytes.insert(bytes.end(), more.begin(), more.end());
}

Field text(unsigned tag, std::string_view value)
{
    Bytes bytes(value.begin(), value.end());
    bytes.push_back(0);
    return {tag, Text, bytes.size(), bytes};
}

Field longNumber(TiffTag tag, std::size_t value)
{
    return {static_cast<unsigned>(tag), Long, 1, number(value, 4)};
}

/// Whole degrees and minutes.
Field angle(unsigned tag, unsigned degrees, unsigned minutes)
{
    Bytes value;
    for (const unsigned part : {degrees, minutes, 0U}) {
        append(value, number(part, 4));
        append(value, number(1, 4));
    }
    return {tag, Rational, 3, value};
}

/// Appends a directory behind the values that do not fit into it; gives its position.
std::size_t appendDirectory(Bytes &tiff, std::vector<Field> fields, std::size_t next = 0)
{
    for (Field &field : fields) {
        if (field.value.size() > 4) {
            const std::size_t position = tiff.size();
            append(tiff, field.value);
            tiff.resize(tiff.size() + tiff.size() % 2);
            field.value = number(position, 4);
        }
        field.value.resize(4);
    }
    const std::size_t position = tiff.size();
    append(tiff, number(fields.size(), 2));
    for (const Field &field : fields) {
        append(tiff, number(field.tag, 2));
        append(tiff, number(field.type, 2));
        append(tiff, number(field.count, 4));
        append(tiff, field.value);
    }
    append(tiff, number(next, 4));
    return position;
}

std::size_t appendPreview(Bytes &tiff, std::size_t length)
{
    constexpr std::size_t LengthOfDirectory = 2 + 2 * 12 + 4;
    const std::size_t directory =
        appendDirectory(tiff, {longNumber(TiffTag::PreviewOffset, tiff.size() + LengthOfDirectory),
                               longNumber(TiffTag::PreviewLength, length)});
    tiff.insert(tiff.end(), length, 'P');
    return directory;
}

} // namespace

Bytes makeExif(const ExifRecipe &recipe)
{
    Bytes tiff = {'I', 'I', 42, 0, 0, 0, 0, 0};
    const std::size_t position =
        appendDirectory(tiff, {text(1, "N"), angle(2, 54, 30), text(3, "E"), angle(4, 10, 15)});
    const std::size_t interoperability = appendDirectory(tiff, {text(1, "R98")});
    std::vector<Field> details = {text(0x9003, "2024:05:06 07:08:09")};
    if (recipe.makerNoteLength > 0) {
        details.push_back({static_cast<unsigned>(TiffTag::MakerNote), Undefined, recipe.makerNoteLength,
                           Bytes(recipe.makerNoteLength, 'N')});
    }
    details.push_back(longNumber(TiffTag::InteroperabilityDirectory, interoperability));
    const std::size_t exif = appendDirectory(tiff, std::move(details));
    const std::size_t preview = recipe.previewLength > 0 ? appendPreview(tiff, recipe.previewLength) : 0;
    const std::size_t first = appendDirectory(
        tiff,
        {text(0x010F, "Lens"),
         {static_cast<unsigned>(TiffTag::Orientation), Short, 1, number(recipe.orientation, 2)},
         longNumber(TiffTag::ExifDirectory, exif),
         longNumber(TiffTag::PositionDirectory, position)},
        preview);
    TiffFields::of(tiff)->setNumber(4, 4, static_cast<std::uint32_t>(first));
    return tiff;
}

} // namespace imageworker
