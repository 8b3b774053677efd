#include "AvcPicture.h"
#include "ConvertedPhoto.h"
#include "MadePhoto.h"
#include "MadeTracks.h"

#include <gtest/gtest.h>

namespace imageworker {

namespace {

TEST(Tracks, ShouldShowTheFirstPictureWhereverTheTablesSayItIs)
{
    const Bytes photo = makePhoto({});
    for (const bool isLong : {false, true}) {
        for (const bool isCommon : {false, true}) {
            SCOPED_TRACE(testing::Message() << isLong << isCommon);
            expectShown(fileOfTracks({{.picture = codedItemOf(photo),
                                       .size = {96, 64},
                                       .hasLongOffsets = isLong,
                                       .hasCommonSize = isCommon}}),
                        decodeIndependently(photo));
        }
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

TEST(Tracks, ShouldBeCroppedAndTurned)
{
    CodedItem picture = codedItemOf(makePhoto({.size = {128, 64}}));
    picture.properties.push_back(crop({50, 30}, 12, 6));
    for (unsigned quarters = 1; quarters < 4; ++quarters) {
        SCOPED_TRACE(quarters);
        expectShown(fileOfTracks({{.picture = picture, .size = {128, 64}, .clockwiseQuarters = quarters}}),
                    decodeIndependently(photoOf(picture, {rotation(4 - quarters)})));
    }
}

} // namespace

} // namespace imageworker
