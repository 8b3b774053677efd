#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>

namespace imageworker {

/// A four-character code as a number: fourCharacters("meta").
constexpr std::uint32_t fourCharacters(const char (&text)[5])
{
    std::uint32_t code = 0;
    for (int index = 0; index < 4; ++index) {
        code = (code << 8) | static_cast<std::uint8_t>(text[index]);
    }
    return code;
}

/// Reads big-endian numbers off untrusted bytes. Every bound is checked in take(): past the end all reads
/// give zero and failed() stays true, so that a parser checks once, when it has read a whole structure.
class ByteReader
{
public:
    ByteReader() = default;
    explicit ByteReader(std::span<const std::uint8_t> bytes)
        : m_bytes(bytes)
    {}

    std::size_t remaining() const { return m_bytes.size(); }
    bool atEnd() const { return m_bytes.empty(); }
    bool failed() const { return m_failed; }
    std::span<const std::uint8_t> rest() const { return m_bytes; }

    /// The next @p count bytes, or none of them when there are fewer.
    std::span<const std::uint8_t> take(std::uint64_t count)
    {
        if (count > m_bytes.size()) {
            m_failed = true;
            m_bytes = {};
            return {};
        }
        const auto taken = m_bytes.first(static_cast<std::size_t>(count));
        m_bytes = m_bytes.subspan(taken.size());
        return taken;
    }

    /// A number of @p width bytes, 0 to 8; a width of 0 reads nothing and gives 0.
    std::uint64_t number(unsigned width)
    {
        std::uint64_t value = 0;
        for (const std::uint8_t byte : take(width)) {
            value = (value << 8) | byte;
        }
        return value;
    }
    std::uint8_t u8() { return static_cast<std::uint8_t>(number(1)); }
    std::uint16_t u16() { return static_cast<std::uint16_t>(number(2)); }
    std::uint32_t u32() { return static_cast<std::uint32_t>(number(4)); }
    std::uint64_t u64() { return number(8); }

    /// Skips a text up to and with its terminating zero; to the end where there is none.
    std::span<const std::uint8_t> text()
    {
        const auto end = std::find(m_bytes.begin(), m_bytes.end(), std::uint8_t{0});
        const auto length = static_cast<std::size_t>(end - m_bytes.begin());
        const auto value = take(length);
        take(m_bytes.empty() ? 0 : 1);
        return value;
    }

private:
    std::span<const std::uint8_t> m_bytes;
    bool m_failed = false;
};

} // namespace imageworker
