#pragma once

#include "PhotoConverter.h"
#include "Raster.h"

#include <optional>

namespace imageworker {

/// A file without a name to write into.
class MemoryFile
{
public:
    MemoryFile();
    ~MemoryFile();
    MemoryFile(const MemoryFile &) = delete;
    MemoryFile &operator=(const MemoryFile &) = delete;

    int descriptor() const { return m_descriptor; }
    Bytes bytes() const;

private:
    int m_descriptor;
};

/// The copy of @p photo, a whole file.
Result<Bytes> convert(const Bytes &photo, OutputFormat format);

/// The pixels of its PNG; nothing when it is refused.
std::optional<Raster> shown(const Bytes &photo);

/// Its preview of at most @p side pixels; nothing when it is refused.
std::optional<Raster> thumbnailOf(const Bytes &photo, int side);

/// How far a copy may differ from what the independent decoder shows, which rounds to integers in between.
constexpr int Rounding = 2;

/// Expects the copy of @p photo to show @p expected.
void expectShown(const Bytes &photo, const std::optional<Raster> &expected, int tolerance = Rounding);

/// Expects it to show what the independent decoder does.
void expectLikeIndependentDecoder(const Bytes &photo);

/// Largest difference of two values at the same place; that of black and white for pictures of other sizes.
int largestDifference(const Raster &a, const Raster &b);

} // namespace imageworker
