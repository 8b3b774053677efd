#pragma once

#include "Result.h"

#include <optional>
#include <span>

namespace imageworker {

/// Tags that are read or changed (TIFF 6.0, section 8; Exif 2.32, 4.6).
enum class TiffTag : std::uint16_t {
    ImageWidth = 0x0100,
    ImageLength = 0x0101,
    Orientation = 0x0112,
    PreviewOffset = 0x0201,
    PreviewLength = 0x0202,
    ExifDirectory = 0x8769,
    PositionDirectory = 0x8825,
    SubjectArea = 0x9214,
    MakerNote = 0x927C,
    ColourSpace = 0xA001,
    PixelWidth = 0xA002,
    PixelHeight = 0xA003,
    SubjectLocation = 0xA214,
    InteroperabilityDirectory = 0xA005,
};

/// One entry of a directory of fields.
struct TiffField
{
    TiffTag tag{};
    std::uint16_t type = 0;
    std::uint32_t count = 0;
    std::size_t valuePosition = 0; ///< of the value's bytes, which lie inside the structure
    std::size_t valueLength = 0;   ///< in bytes
};

/// Reads and changes a TIFF structure in place, in its own byte order. Positions count from its start.
class TiffFields
{
public:
    /// Nothing when @p bytes do not start with a TIFF header.
    static std::optional<TiffFields> of(std::span<std::uint8_t> bytes);

    std::size_t firstDirectory() const { return number(4, 4); }

    /// The fields of the directory at @p position. Fields of unknown types, and those whose values lie
    /// outside, are left out.
    std::vector<TiffField> fields(std::size_t position) const;

    /// Position of the link to the directory after the one at @p position; 0 when there is none.
    std::size_t linkPosition(std::size_t position) const;

    /// Number @p index of a field of whole numbers.
    std::uint32_t value(const TiffField &field, std::size_t index = 0) const;
    void setValue(const TiffField &field, std::uint32_t value, std::size_t index = 0);

    /// A number of 2 or 4 bytes; 0 outside the structure.
    std::uint32_t number(std::size_t position, std::size_t width) const;
    void setNumber(std::size_t position, std::size_t width, std::uint32_t value);

    std::span<std::uint8_t> bytes() const { return m_bytes; }

private:
    TiffFields(std::span<std::uint8_t> bytes, bool littleEndian)
        : m_bytes(bytes)
        , m_littleEndian(littleEndian)
    {}

    std::span<std::uint8_t> m_bytes;
    bool m_littleEndian;
};

/// The field of @p tag in @p fields, or null.
const TiffField *fieldOf(const std::vector<TiffField> &fields, TiffTag tag);

} // namespace imageworker
