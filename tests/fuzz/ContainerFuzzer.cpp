// Feeds the container reader. Whatever it accepts must be coherent: that is what the decoding relies on. Its
// metadata are cut to less than a segment of a JPEG holds: to need that in earnest a file would have to be
// larger than is fed.

#include "Exif.h"
#include "PhotoReader.h"
#include "Xmp.h"

#include <cstdlib>

namespace {

using namespace imageworker;

void cutMetadata(const Photo &photo)
{
    constexpr std::size_t FewFields = 150;
    constexpr std::size_t LeastForXmp = 500; // the first segment's own words take most of it
    Bytes exif = photo.exif;
    describeCopy(exif, photo.transformation());
    Bytes xmp = photo.xmp;
    describeCopyInXmp(xmp, photo.transformation().size());
    bool areWithin = exifWithin(exif, FewFields).size() <= FewFields;
    for (const Bytes &segment : xmpSegments(xmp, LeastForXmp)) {
        areWithin = areWithin && segment.size() <= LeastForXmp;
    }
    if (!areWithin) {
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto source = sourceOfBytes({data, size});
    const auto photo = readPhoto(*source);
    if (!photo) {
        return 0;
    }
    const PixelSize shown = photo->transformation().size();
    if (!isAcceptable(shown.width, shown.height)) {
        std::abort();
    }
    cutMetadata(*photo);
    if (const auto *picture = std::get_if<Picture>(&photo->picture)) {
        if (const auto *grid = std::get_if<TileGrid>(&picture->content)) {
            const PixelRectangle crop = picture->transformation.crop();
            const bool isInside = crop.x >= 0 && crop.y >= 0 && crop.x + crop.width <= grid->canvas.width &&
                                  crop.y + crop.height <= grid->canvas.height;
            const auto tiles = static_cast<std::size_t>(grid->rows) * static_cast<std::size_t>(grid->columns);
            if (!isInside || grid->tiles.size() != tiles) {
                std::abort();
            }
        }
    }
    return 0;
}
