#include "AvcPicture.h"
#include "ConvertedPhoto.h"
#include "ExactColour.h"
#include "MadePhoto.h"
#include "MadeTracks.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace imageworker {

namespace {

MadeTrack trackOf(const Bytes &photo, PixelSize size)
{
    MadeTrack track;
    track.picture = codedItemOf(photo);
    auto &properties = track.picture.properties;
    std::stable_partition(properties.begin(), properties.end(),
                          [](const HeifFile::Property &property) { return property.type == "hvcC"; });
    track.width = static_cast<unsigned>(size.width);
    track.height = static_cast<unsigned>(size.height);
    return track;
}

TEST(Tracks, ShouldShowTheFirstPictureWhereverTheTablesSayItIs)
{
    const Bytes photo = makePhoto({});
    const auto reference = decodeIndependently(photo);
    ASSERT_TRUE(reference);
    for (const auto offsets : {MadeTrack::Offsets::Short, MadeTrack::Offsets::Long}) {
        for (const auto sizes : {MadeTrack::Sizes::Common, MadeTrack::Sizes::Listed}) {
            SCOPED_TRACE(testing::Message() << static_cast<int>(offsets) << static_cast<int>(sizes));
            MadeTrack track = trackOf(photo, {96, 64});
            track.offsets = offsets;
            track.sizes = sizes;
            const auto copy = shown(fileOfTracks({track}));
            ASSERT_TRUE(copy);
            EXPECT_LE(largestDifference(*copy, *reference), 2);
        }
    }
}

TEST(Tracks, ShouldBePassedOverWhenTheyAreNotToBeShown)
{
    const Bytes photo = makePhoto({});
    const auto reference = decodeIndependently(photo);
    ASSERT_TRUE(reference);
    const MadeTrack visible = trackOf(photo, {96, 64});
    MadeTrack sound = trackOf(makePhoto({.size = {64, 64}}), {64, 64});
    sound.handler = "soun";
    MadeTrack opacity = trackOf(makePhoto({.size = {64, 64}}), {64, 64});
    opacity.isAuxiliary = true;
    const auto copy = shown(fileOfTracks({sound, opacity, visible}));
    ASSERT_TRUE(copy);
    EXPECT_LE(largestDifference(*copy, *reference), 2);
    EXPECT_FALSE(shown(fileOfTracks({sound, opacity})));
}

TEST(Tracks, ShouldFollowTheirColours)
{
    const Raster picture = cornerColours({64, 48}, false);
    MadeTrack track;
    track.codingName = "avc1";
    track.picture = makeAvcItem(picture); // says that its range is full
    track.width = 64;
    track.height = 48;
    const auto copy = shown(fileOfTracks({track}));
    ASSERT_TRUE(copy);
    for (int x = 0; x < 64; ++x) {
        ASSERT_EQ(copy->row(0)[4L * x], picture.row(0)[4L * x]);
    }
}

TEST(Tracks, ShouldBeCroppedAndTurned)
{
    const auto number = [](unsigned value) { return bigEndian(value, 4); };
    const HeifFile::Property crop = {"clap", joined({number(50), number(1), number(30), number(1), number(6),
                                                     number(1), number(3), number(1)})};
    for (unsigned quarters = 1; quarters < 4; ++quarters) {
        SCOPED_TRACE(quarters);
        MadeTrack track = trackOf(makePhoto({.size = {128, 64}}), {128, 64});
        track.picture.properties.push_back(crop);
        track.clockwiseQuarters = quarters;
        const auto copy = shown(fileOfTracks({track}));
        HeifFile file; // an item's turn is anticlockwise
        track.picture.properties.push_back({"irot", {static_cast<std::uint8_t>(4 - quarters)}});
        const auto reference =
            decodeIndependently(file.bytes(file.add("hvc1", track.picture.data, track.picture.properties)));
        ASSERT_TRUE(copy && reference);
        EXPECT_LE(largestDifference(*copy, *reference), 2);
    }
}

} // namespace

} // namespace imageworker
