#include "ConvertedPhoto.h"

#include "MadePhoto.h"
#include "PhotoReader.h"

#include <algorithm>
#include <cstdlib>
#include <stdexcept>
#include <sys/mman.h>
#include <unistd.h>

namespace imageworker {

MemoryFile::MemoryFile()
    : m_descriptor(::memfd_create("output", MFD_CLOEXEC))
{}

MemoryFile::~MemoryFile()
{
    ::close(m_descriptor);
}

Bytes MemoryFile::bytes() const
{
    Bytes content(static_cast<std::size_t>(::lseek(m_descriptor, 0, SEEK_END)));
    if (::pread(m_descriptor, content.data(), content.size(), 0) != static_cast<ssize_t>(content.size())) {
        throw std::runtime_error("reading back failed");
    }
    return content;
}

Result<Bytes> convert(const Bytes &photo, CopyFormat format)
{
    const auto source = sourceOfBytes(photo);
    const auto read = readPhoto(*source);
    if (!read) {
        return tl::unexpected(read.error());
    }
    const MemoryFile output;
    if (const auto written = writeCopy(*source, *read, output.descriptor(), format, 0.9); !written) {
        return tl::unexpected(written.error());
    }
    return output.bytes();
}

std::optional<Raster> shown(const Bytes &photo)
{
    const auto copy = convert(photo, CopyFormat::Png);
    return copy ? readPng(*copy) : std::nullopt;
}

int largestDifference(const Raster &a, const Raster &b)
{
    if (a.size != b.size) {
        return 255;
    }
    int largest = 0;
    for (std::size_t index = 0; index < a.rgba.size(); ++index) {
        largest = std::max(largest, std::abs(a.rgba[index] - b.rgba[index]));
    }
    return largest;
}

} // namespace imageworker
