#include "MadeExif.h"

#include "HeifFile.h"
#include "TiffFields.h"

#include <algorithm>
#include <array>

namespace imageworker {

namespace {

enum Type : unsigned { Text = 2, Short = 3, Long = 4, Rational = 5, Undefined = 7 };

struct Field
{
    unsigned tag;
    Type type;
    std::vector<std::size_t> values; ///< characters, numbers, or numerators and denominators
};

Field text(unsigned tag, const std::string &value)
{
    Field field{tag, Text, {value.begin(), value.end()}};
    field.values.push_back(0);
    return field;
}

Field numbers(TiffTag tag, std::vector<std::size_t> values, Type type = Long)
{
    return {static_cast<unsigned>(tag), type, std::move(values)};
}

/// Builds a structure from its end to its start: what is linked stands before what links to it.
class TiffBuilder
{
public:
    explicit TiffBuilder(bool littleEndian)
        : m_littleEndian(littleEndian)
        , m_bytes(littleEndian ? bytesOf("II") : bytesOf("MM"))
    {
        append(42, 2);
        append(0, 4);
    }

    std::size_t size() const { return m_bytes.size(); }
    Bytes take() { return std::move(m_bytes); }
    void append(std::size_t value, unsigned width)
    {
        m_bytes.resize(size() + width);
        set(size() - width, value, width);
    }
    void set(std::size_t position, std::size_t value, unsigned width)
    {
        Bytes number = bigEndian(value, width);
        if (m_littleEndian) {
            std::ranges::reverse(number);
        }
        std::ranges::copy(number, m_bytes.begin() + static_cast<std::ptrdiff_t>(position));
    }

    /// Appends a directory and, behind it, the values that do not fit into it; gives its position.
    std::size_t add(const std::vector<Field> &fields, std::size_t next = 0)
    {
        constexpr unsigned EntryLength = 12;
        constexpr std::array<unsigned, 8> Widths = {0, 1, 1, 2, 4, 4, 0, 1}; // bytes of a value
        const std::size_t directory = size();
        append(fields.size(), 2);
        std::size_t entry = size();
        m_bytes.resize(entry + fields.size() * EntryLength);
        append(next, 4);
        for (const Field &field : fields) {
            const unsigned width = Widths[field.type];
            const std::size_t length = width * field.values.size();
            set(entry, field.tag, 2);
            set(entry + 2, field.type, 2);
            set(entry + 4, field.values.size() / (field.type == Rational ? 2 : 1), 4);
            std::size_t position = entry + 8;
            if (length > 4) {
                position = size();
                m_bytes.resize(position + length + length % 2);
                set(entry + 8, position, 4);
            }
            for (const std::size_t value : field.values) {
                set(position, value, width);
                position += width;
            }
            entry += EntryLength;
        }
        return directory;
    }

private:
    bool m_littleEndian;
    Bytes m_bytes;
};

} // namespace

Bytes makeExif(const ExifRecipe &recipe)
{
    TiffBuilder tiff(recipe.isLittleEndian);
    const std::size_t position = tiff.add({text(1, "N"),
                                           {2, Rational, {54, 1, 30, 1, 0, 1}},
                                           text(3, "E"),
                                           {4, Rational, {10, 1, 15, 1, 0, 1}}});
    const std::size_t interoperability = tiff.add({text(1, "R98")});
    std::vector<Field> details = {text(0x9003, "2024:05:06 07:08:09"),
                                  numbers(TiffTag::SubjectArea, {1000, 500, 200, 100}, Short),
                                  numbers(TiffTag::PixelWidth, {4032}), numbers(TiffTag::PixelHeight, {3024}),
                                  numbers(TiffTag::InteroperabilityDirectory, {interoperability})};
    if (recipe.makerNoteLength > 0) {
        details.push_back(
            numbers(TiffTag::MakerNote, std::vector<std::size_t>(recipe.makerNoteLength, 'N'), Undefined));
    }
    const std::size_t exif = tiff.add(details);
    std::size_t preview = 0;
    const auto appendPreview = [&] {
        constexpr std::size_t FirstValue = 2 + 8;
        tiff.set(preview + FirstValue, tiff.size(), 4);
        for (std::size_t index = 0; index < recipe.previewLength; ++index) {
            tiff.append('P', 1);
        }
    };
    if (recipe.previewLength > 0) {
        preview = tiff.add(
            {numbers(TiffTag::PreviewOffset, {0}), numbers(TiffTag::PreviewLength, {recipe.previewLength})});
    }
    if (preview != 0 && !recipe.isPreviewLast) {
        appendPreview();
    }
    const std::size_t first =
        tiff.add({text(0x010F, "Lens"), text(0x0110, "Camera of some maker"),
                  numbers(TiffTag::Orientation, {recipe.orientation}, Short),
                  numbers(TiffTag::ExifDirectory, {exif}), numbers(TiffTag::PositionDirectory, {position})},
                 preview);
    tiff.set(4, first, 4);
    if (preview != 0 && recipe.isPreviewLast) {
        appendPreview();
    }
    return tiff.take();
}

} // namespace imageworker
