#include "ConvertedPhoto.h"

#include "MadePhoto.h"
#include "PhotoReader.h"
#include "Thumbnail.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <gtest/gtest.h>
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

Result<Bytes> convert(const Bytes &photo, OutputFormat format)
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
    const auto copy = convert(photo, OutputFormat::png);
    return copy ? readPng(*copy) : std::nullopt;
}

std::optional<Raster> thumbnailOf(const Bytes &photo, int side)
{
    const auto source = sourceOfBytes(photo);
    const auto read = readPhoto(*source);
    const MemoryFile output;
    const auto size = read ? writeThumbnail(*source, *read, output.descriptor(), side) : unreadable();
    if (!size) {
        return std::nullopt;
    }
    Raster pixels(*size);
    pixels.rgba = output.bytes();
    return pixels;
}

void expectShown(const Bytes &photo, const std::optional<Raster> &expected, int tolerance)
{
    const auto copy = shown(photo);
    ASSERT_TRUE(copy && expected);
    ASSERT_EQ(copy->size, expected->size);
    EXPECT_LE(largestDifference(*copy, *expected), tolerance);
}

void expectLikeIndependentDecoder(const Bytes &photo)
{
    expectShown(photo, decodeIndependently(photo));
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
