#include "MadeExif.h"

#include "HeifFile.h"
#include "TiffFields.h"

#include <algorithm>
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

/// Builds a structure from its end to its start: what is linked stands before what links to it.
class TiffBuilder
{
public:
    explicit TiffBuilder(bool littleEndian)
        : m_littleEndian(littleEndian)
        , m_bytes(littleEndian ? Bytes{'I', 'I', 42, 0, 0, 0, 0, 0} : Bytes{'M', 'M', 0, 42, 0, 0, 0, 0})
    {}

    Field text(unsigned tag, std::string_view value) const
    {
        Bytes bytes(value.begin(), value.end());
        bytes.push_back(0);
        return {tag, Text, bytes.size(), bytes};
    }
    Field number(TiffTag tag, std::size_t value) const
    {
        return {static_cast<unsigned>(tag), Long, 1, bytesOf(value, 4)};
    }
    Field shortNumbers(TiffTag tag, const std::vector<std::size_t> &values) const
    {
        Field field{static_cast<unsigned>(tag), Short, values.size(), {}};
        for (const std::size_t value : values) {
            append(field.value, bytesOf(value, 2));
        }
        return field;
    }
    /// Whole degrees and minutes.
    Field angle(unsigned tag, unsigned degrees, unsigned minutes) const
    {
        Field field{tag, Rational, 3, {}};
        for (const unsigned part : {degrees, minutes, 0U}) {
            append(field.value, bytesOf(part, 4));
            append(field.value, bytesOf(1, 4));
        }
        return field;
    }

    /// Appends a directory behind the values that do not fit into it; gives its position.
    std::size_t add(std::vector<Field> fields, std::size_t next = 0)
    {
        for (Field &field : fields) {
            if (field.value.size() > 4) {
                const std::size_t position = m_bytes.size();
                append(m_bytes, field.value);
                m_bytes.resize(m_bytes.size() + m_bytes.size() % 2);
                field.value = bytesOf(position, 4);
            }
            field.value.resize(4);
        }
        const std::size_t position = m_bytes.size();
        append(m_bytes, bytesOf(fields.size(), 2));
        for (const Field &field : fields) {
            append(m_bytes, bytesOf(field.tag, 2));
            append(m_bytes, bytesOf(field.type, 2));
            append(m_bytes, bytesOf(field.count, 4));
            append(m_bytes, field.value);
        }
        append(m_bytes, bytesOf(next, 4));
        return position;
    }

    Bytes finish(std::size_t firstDirectory)
    {
        std::ranges::copy(bytesOf(firstDirectory, 4), m_bytes.begin() + 4);
        return std::move(m_bytes);
    }
    Bytes &bytes() { return m_bytes; }

private:
    static void append(Bytes &bytes, const Bytes &more)
    {
        bytes.insert(bytes.end(), more.begin(), more.end());
    }
    Bytes bytesOf(std::size_t value, unsigned width) const
    {
        Bytes bytes = bigEndian(value, width);
        if (m_littleEndian) {
            std::ranges::reverse(bytes);
        }
        return bytes;
    }

    bool m_littleEndian;
    Bytes m_bytes;
};

} // namespace

Bytes makeExif(const ExifRecipe &recipe)
{
    TiffBuilder tiff(recipe.isLittleEndian);
    const std::size_t position =
        tiff.add({tiff.text(1, "N"), tiff.angle(2, 54, 30), tiff.text(3, "E"), tiff.angle(4, 10, 15)});
    const std::size_t interoperability = tiff.add({tiff.text(1, "R98")});
    std::vector<Field> details = {tiff.text(0x9003, "2024:05:06 07:08:09"),
                                  tiff.shortNumbers(TiffTag::SubjectArea, {1000, 500, 200, 100})};
    if (recipe.makerNoteLength > 0) {
        details.push_back({static_cast<unsigned>(TiffTag::MakerNote), Undefined, recipe.makerNoteLength,
                           Bytes(recipe.makerNoteLength, 'N')});
    }
    details.push_back(tiff.number(TiffTag::PixelWidth, 4032));
    details.push_back(tiff.number(TiffTag::PixelHeight, 3024));
    details.push_back(tiff.number(TiffTag::InteroperabilityDirectory, interoperability));
    const std::size_t exif = tiff.add(std::move(details));
    const std::vector<Field> fields = {tiff.text(0x010F, "Lens"), tiff.text(0x0110, "Camera of some maker"),
                                       tiff.shortNumbers(TiffTag::Orientation, {recipe.orientation}),
                                       tiff.number(TiffTag::ExifDirectory, exif),
                                       tiff.number(TiffTag::PositionDirectory, position)};
    if (recipe.previewLength == 0) {
        return tiff.finish(tiff.add(fields));
    }
    // The preview starts behind the directory that describes it.
    constexpr std::size_t LengthOfDirectory = 2 + 2 * 12 + 4;
    const auto addPreview = [&](std::size_t start) {
        return tiff.add({tiff.number(TiffTag::PreviewOffset, start),
                         tiff.number(TiffTag::PreviewLength, recipe.previewLength)});
    };
    const auto appendPreview = [&] { tiff.bytes().insert(tiff.bytes().end(), recipe.previewLength, 'P'); };
    if (!recipe.isPreviewLast) {
        const std::size_t directory = addPreview(tiff.bytes().size() + LengthOfDirectory);
        appendPreview();
        return tiff.finish(tiff.add(fields, directory));
    }
    TiffBuilder measured = tiff;
    measured.add(fields);
    const std::size_t start = measured.bytes().size() + LengthOfDirectory;
    const std::size_t directory = addPreview(start);
    const std::size_t first = tiff.add(fields, directory);
    appendPreview();
    return tiff.finish(first);
}

} // namespace imageworker
