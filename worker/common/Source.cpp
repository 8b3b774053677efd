#include "Source.h"

#include <algorithm>
#include <cerrno>
#include <unistd.h>

namespace imageworker {

namespace {

class FileSource : public Source
{
public:
    FileSource(int descriptor, std::uint64_t size)
        : m_descriptor(descriptor)
        , m_size(size)
    {}
    std::uint64_t size() const override { return m_size; }

private:
    bool fill(std::uint64_t offset, std::span<std::uint8_t> bytes) const override
    {
        while (!bytes.empty()) {
            const ssize_t count =
                ::pread(m_descriptor, bytes.data(), bytes.size(), static_cast<off_t>(offset));
            if (count == 0 || (count < 0 && errno != EINTR)) {
                return false;
            }
            if (count > 0) {
                offset += static_cast<std::uint64_t>(count);
                bytes = bytes.subspan(static_cast<std::size_t>(count));
            }
        }
        return true;
    }

    int m_descriptor;
    std::uint64_t m_size;
};

class MemorySource : public Source
{
public:
    explicit MemorySource(std::span<const std::uint8_t> bytes)
        : m_bytes(bytes)
    {}
    std::uint64_t size() const override { return m_bytes.size(); }

private:
    bool fill(std::uint64_t offset, std::span<std::uint8_t> bytes) const override
    {
        std::ranges::copy(m_bytes.subspan(static_cast<std::size_t>(offset), bytes.size()), bytes.begin());
        return true;
    }

    std::span<const std::uint8_t> m_bytes;
};

} // namespace

std::uint64_t lengthOf(const DataLocation &location)
{
    std::uint64_t length = 0;
    for (const Extent &extent : location) {
        length += extent.length;
    }
    return length;
}

Result<Bytes> Source::read(std::uint64_t offset, std::uint64_t length) const
{
    return read(DataLocation{{offset, length}});
}

Result<Bytes> Source::read(const DataLocation &location) const
{
    for (const Extent &extent : location) {
        if (extent.offset > size() || extent.length > size() - extent.offset) {
            return unreadable();
        }
    }
    Bytes bytes(static_cast<std::size_t>(lengthOf(location)));
    std::span<std::uint8_t> rest = bytes;
    for (const Extent &extent : location) {
        if (!fill(extent.offset, rest.first(static_cast<std::size_t>(extent.length)))) {
            return unreadable();
        }
        rest = rest.subspan(static_cast<std::size_t>(extent.length));
    }
    return bytes;
}

std::unique_ptr<Source> sourceOfFile(int descriptor)
{
    // Not fstat(): newer C libraries make of it a call that looks at any file by its name.
    const off_t size = ::lseek(descriptor, 0, SEEK_END);
    return size < 0 ? nullptr : std::make_unique<FileSource>(descriptor, static_cast<std::uint64_t>(size));
}

std::unique_ptr<Source> sourceOfBytes(std::span<const std::uint8_t> bytes)
{
    return std::make_unique<MemorySource>(bytes);
}

} // namespace imageworker
