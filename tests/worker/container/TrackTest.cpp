#include "AvcPicture.h"
#include "ConvertedPhoto.h"
#include "MadePhoto.h"
#include "MadeTracks.h"

#include <gtest/gtest.h>

namespace imageworker {

namespace {

TEST(Tracks, ShouldShowTheFirstPictureCroppedAndTurnedWhereverTheTablesSayItIs)
{
    CodedItem picture = codedItemOf(makePhoto({.size = {128, 64}}));
    picture.properties.push_back(crop({50, 30}, 10, 6));
    for (unsigned quarters = 0; quarters < 4; ++quarters) {
        SCOPED_TRACE(quarters);
        expectShown(fileOfTracks({{.picture = picture,
                                   .size = {128, 64},
                                   .clockwiseQuarters = quarters,
                                   .hasLongOffsets = quarters % 2 == 1,
                                   .hasCommonSize = quarters > 1}}),
                    decodeIndependently(photoOf(picture, {rotation((4 - quarters) % 4)})));
    }
}

TEST(Tracks, ShouldBePassedOverWhenTheyAreNotToBeShown)
{
    const Bytes photo = makePhoto({});
    const CodedItem other = codedItemOf(makePhoto({.size = {64, 64}}));
    const MadeTrack sound = {.picture = other, .size = {64, 64}, .handler = "soun"};
    const MadeTrack opacity = {.picture = other, .size = {64, 64}, .isAuxiliary = true};
    const MadeTrack visible = {.picture = codedItemOf(photo), .size = {96, 64}};
    expectShown(fileOfTracks({sound, opacity, visible}), decodeIndependently(photo));
    EXPECT_FALSE(shown(fileOfTracks({sound, opacity})));
}

TEST(Tracks, ShouldFollowTheirColours)
{
    // It says that its range is full.
    const CodedItem picture = makeAvcItem(cornerColours({64, 48}, false));
    expectShown(fileOfTracks({{.picture = picture, .size = {64, 48}}}), shown(photoOf(picture)), 0);
}

} // namespace

} // namespace imageworker
