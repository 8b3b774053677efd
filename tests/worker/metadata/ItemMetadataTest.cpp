#include "AvcPicture.h"
#include "ConvertedPhoto.h"
#include "MadeExif.h"
#include "MadePhoto.h"
#include "PhotoReader.h"

#include <gtest/gtest.h>

namespace imageworker {

namespace {

/// The payload of an "Exif" item.
Bytes exifItem(const Bytes &tiff)
{
    return joined({Bytes(4), tiff});
}

TEST(ItemMetadata, ShouldTurnAPictureThatDoesNotTurnItself)
{
    const CodedItem coded = makeAvcItem(cornerColours({96, 64}, false));
    const auto expected = shown(photoOf(coded, {rotation(3)}));
    for (const bool turnsItself : {false, true}) {
        SCOPED_TRACE(turnsItself);
        HeifFile::Properties properties(turnsItself ? 1 : 0, rotation(3));
        HeifFile file;
        const unsigned primary = file.add(coded, properties);
        properties.push_back(opacityRole());
        file.refer(file.add(coded, properties), "auxl", {primary});
        const Bytes exif = makeExif({.orientation = turnsItself ? 3U : 6U});
        file.refer(file.add("Exif", exifItem(exif), {}), "cdsc", {primary});
        const auto copy = shown(file.bytes(primary));
        ASSERT_TRUE(copy && expected);
        for (std::size_t index = 0; index < copy->rgba.size(); ++index) { // its opacity is like its red
            ASSERT_EQ(copy->rgba[index], expected->rgba[index - index % 4]);
        }
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
