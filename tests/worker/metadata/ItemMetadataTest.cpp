#include "AvcPicture.h"
#include "ConvertedPhoto.h"
#include "MadeExif.h"
#include "MadePhoto.h"
#include "PhotoReader.h"

#include <cstring>
#include <gtest/gtest.h>

namespace imageworker {

namespace {

/// The payload of an "Exif" item.
Bytes exifItem(const Bytes &tiff)
{
    return joined({Bytes(4), tiff});
}

/// As photos with orientation 6 are shown.
Raster turnedClockwise(const Raster &stored)
{
    Raster turned({stored.size.height, stored.size.width});
    for (int y = 0; y < turned.size.height; ++y) {
        for (int x = 0; x < turned.size.width; ++x) {
            std::memcpy(turned.row(y) + std::ptrdiff_t{4} * x,
                        stored.row(stored.size.height - 1 - x) + std::ptrdiff_t{4} * y, 4);
        }
    }
    return turned;
}

TEST(ItemMetadata, ShouldTurnAPictureThatDoesNotTurnItself)
{
    const Raster picture = cornerColours({96, 64}, false);
    const CodedItem coded = makeAvcItem(picture);
    Raster expected = turnedClockwise(picture); // its red is all channels and the opacity
    for (std::size_t index = 0; index < expected.rgba.size(); ++index) {
        expected.rgba[index] = expected.rgba[index - index % 4];
    }
    for (const bool turnsItself : {false, true}) {
        SCOPED_TRACE(turnsItself);
        HeifFile::Properties properties =
            turnsItself ? HeifFile::Properties{rotation(3)} : HeifFile::Properties{};
        HeifFile file;
        const unsigned primary = file.add(coded, properties);
        properties.push_back(opacityRole());
        file.refer(file.add(coded, properties), "auxl", {primary});
        const Bytes exif = makeExif({.orientation = turnsItself ? 3U : 6U});
        file.refer(file.add("Exif", exifItem(exif), {}), "cdsc", {primary});
        expectShown(file.bytes(primary), expected, 0);
    }
}

TEST(ItemMetadata, ShouldBeThePrimaryItemsOwn)
{
    const CodedItem coded = makeAvcItem(cornerColours({64, 48}, false));
    const Bytes own = makeExif({.orientation = 3});
    const Bytes foreign = makeExif({.orientation = 6});
    for (const bool namesItsPicture : {true, false}) {
        HeifFile file;
        const unsigned other = file.add(coded);
        const unsigned primary = file.add(coded);
        file.refer(file.add("Exif", exifItem(foreign), {}), "cdsc", {other});
        const unsigned item = file.add("Exif", exifItem(own), {});
        if (namesItsPicture) {
            file.refer(item, "cdsc", {other, primary});
        }
        const Bytes bytes = file.bytes(primary);
        const auto photo = readPhoto(*sourceOfBytes(bytes));
        ASSERT_TRUE(photo);
        EXPECT_EQ(photo->exif, own);
    }
}

} // namespace

} // namespace imageworker
