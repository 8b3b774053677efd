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
        , m_bytes(joined({bytesOf(littleEndian ? "II" : "MM"), number(42, 2), number(0, 4)}))
    {}

    std::size_t size() const { return m_bytes.size(); }
    Bytes take() { return std::move(m_bytes); }
    void append(const Bytes &bytes) { m_bytes.insert(m_bytes.end(), bytes.begin(), bytes.end()); }
    /// Links what will be appended next, from @p position.
    void linkNext(std::size_t position)
    {
        std::ranges::copy(number(size(), 4), m_bytes.begin() + static_cast<std::ptrdiff_t>(position));
    }

    /// Appends a directory and, behind it, the values that do not fit into it; gives its position.
    std::size_t add(const std::vector<Field> &fields, std::size_t next = 0)
    {
        constexpr std::array<unsigned, 8> Widths = {0, 1, 1, 2, 4, 4, 0, 1}; // bytes of a value
        const std::size_t directory = size();
        const std::size_t end = directory + 2 + 12 * fields.size() + 4;
        Bytes values;
        append(number(fields.size(), 2));
        for (const Field &field : fields) {
            Bytes value;
            for (const std::size_t part : field.values) {
                const Bytes bytes = number(part, Widths[field.type]);
                value.insert(value.end(), bytes.begin(), bytes.end());
            }
            append(joined({number(field.tag, 2), number(field.type, 2),
                           number(field.values.size() / (field.type == Rational ? 2 : 1), 4)}));
            const bool fits = value.size() <= 4;
            value.resize(fits ? 4 : value.size() + value.size() % 2);
            append(fits ? value : number(end + values.size(), 4));
            values = joined({values, fits ? Bytes() : value});
        }
        append(joined({number(next, 4), values}));
        return directory;
    }

private:
    Bytes number(std::size_t value, unsigned width) const
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
    const auto appendPreview = [&](bool isNow) {
        constexpr std::size_t FirstValue = 2 + 8;
        if (preview != 0 && isNow) {
            tiff.linkNext(preview + FirstValue);
            tiff.append(Bytes(recipe.previewLength, 'P'));
        }
    };
    if (recipe.previewLength > 0) {
        preview = tiff.add(
            {numbers(TiffTag::PreviewOffset, {0}), numbers(TiffTag::PreviewLength, {recipe.previewLength})});
    }
    appendPreview(!recipe.isPreviewLast);
    tiff.linkNext(4);
    tiff.add({text(0x010F, "Lens"), text(0x0110, "Camera of some maker"),
              numbers(TiffTag::Orientation, {recipe.orientation}, Short),
              numbers(TiffTag::ExifDirectory, {exif}), numbers(TiffTag::PositionDirectory, {position})},
             preview);
    appendPreview(recipe.isPreviewLast);
    return tiff.take();
}

} // namespace imageworker
