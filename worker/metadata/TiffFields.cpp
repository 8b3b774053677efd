#include "TiffFields.h"

#include <algorithm>
#include <array>

namespace imageworker {

namespace {

constexpr std::size_t HeaderLength = 8;
constexpr std::size_t FieldLength = 12;
constexpr std::uint16_t Short = 3;

/// Bytes of one value of each field type, TIFF 6.0, section 2; 0 for types that do not exist.
std::size_t widthOfType(std::uint16_t type)
{
    constexpr std::array<std::size_t, 14> Widths = {0, 1, 1, 2, 4, 8, 1, 1, 2, 4, 8, 4, 8, 4};
    return type < Widths.size() ? Widths[type] : 0;
}

} // namespace

std::optional<TiffFields> TiffFields::of(std::span<std::uint8_t> bytes)
{
    if (bytes.size() < HeaderLength || bytes[0] != bytes[1] || (bytes[0] != 'I' && bytes[0] != 'M')) {
        return std::nullopt;
    }
    TiffFields fields(bytes, bytes[0] == 'I');
    if (fields.number(2, 2) != 42) {
        return std::nullopt;
    }
    return fields;
}

std::uint32_t TiffFields::number(std::size_t position, std::size_t width) const
{
    if (position > m_bytes.size() || width > m_bytes.size() - position) {
        return 0;
    }
    std::uint32_t value = 0;
    for (std::size_t index = 0; index < width; ++index) {
        const std::size_t at = m_littleEndian ? width - 1 - index : index;
        value = (value << 8) | m_bytes[position + at];
    }
    return value;
}

void TiffFields::setNumber(std::size_t position, std::size_t width, std::uint32_t value)
{
    if (position > m_bytes.size() || width > m_bytes.size() - position) {
        return;
    }
    for (std::size_t index = 0; index < width; ++index) {
        const std::size_t at = m_littleEndian ? index : width - 1 - index;
        m_bytes[position + at] = static_cast<std::uint8_t>(value >> (8 * index));
    }
}

std::vector<TiffField> TiffFields::fields(std::size_t position) const
{
    std::vector<TiffField> fields;
    const std::size_t count = number(position, 2);
    for (std::size_t index = 0; index < count; ++index) {
        const std::size_t entry = position + 2 + index * FieldLength;
        if (position < HeaderLength || entry + FieldLength > m_bytes.size()) {
            break;
        }
        TiffField field;
        field.tag = static_cast<TiffTag>(number(entry, 2));
        field.type = static_cast<std::uint16_t>(number(entry + 2, 2));
        field.count = number(entry + 4, 4);
        field.valueLength = widthOfType(field.type) * field.count;
        field.valuePosition = field.valueLength <= 4 ? entry + 8 : number(entry + 8, 4);
        const bool isInside = field.valuePosition <= m_bytes.size() &&
                              field.valueLength <= m_bytes.size() - field.valuePosition;
        if (field.valueLength > 0 && isInside) {
            fields.push_back(field);
        }
    }
    return fields;
}

std::size_t TiffFields::linkPosition(std::size_t position) const
{
    const std::size_t link = position + 2 + number(position, 2) * FieldLength;
    return position >= HeaderLength && link + 4 <= m_bytes.size() ? link : 0;
}

std::uint32_t TiffFields::value(const TiffField &field, std::size_t index) const
{
    const std::size_t width = field.type == Short ? 2 : 4;
    return number(field.valuePosition + index * width, width);
}

void TiffFields::setValue(const TiffField &field, std::uint32_t value, std::size_t index)
{
    const std::size_t width = field.type == Short ? 2 : 4;
    setNumber(field.valuePosition + index * width, width, value);
}

const TiffField *fieldOf(const std::vector<TiffField> &fields, TiffTag tag)
{
    const auto found =
        std::ranges::find_if(fields, [tag](const TiffField &field) { return field.tag == tag; });
    return found == fields.end() ? nullptr : &*found;
}

} // namespace imageworker
