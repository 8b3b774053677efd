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

/// @p size pixels of @p whole.
Raster partOf(const Raster &whole, int left, int top, PixelSize size);
/// Lays @p picture on @p canvas; what lies outside is left out.
void lay(const Raster &picture, int left, int top, Raster &canvas);

/// A test's check that the copy of @p photo shows what the independent decoder shows.
void expectLikeIndependentDecoder(const Bytes &photo);

/// How far both may differ: the independent decoder rounds to integers in between.
constexpr int Rounding = 2;

/// Largest difference of two values at the same place; that of black and white for pictures of other sizes.
int largestDifference(const Raster &a, const Raster &b);

} // namespace imageworker
