#include "Pipeline.h"

#include "ConvertedPhoto.h"
#include "ExactColour.h"
#include "JpegDecoder.h"
#include "JpegEncoder.h"
#include "JpegOrPngFile.h"
#include "MadePhoto.h"
#include "PngEncoder.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <numeric>
#include <random>

namespace imageworker {

namespace {

Raster noise(PixelSize size)
{
    Raster picture(size);
    std::mt19937 random(7);
    for (std::size_t index = 0; index < picture.rgba.size(); ++index) {
        picture.rgba[index] = index % 4 == 3 ? 255 : static_cast<std::uint8_t>(random());
    }
    return picture;
}

/// A picture in strips of the given heights, of two tiles each (left and right half). Only the reserved
/// number of strips is in memory: one decoded too early overwrites one that is still read.
class StripSource : public RowSource
{
public:
    StripSource(const Raster &picture, const std::vector<int> &heights)
        : m_picture(picture)
    {
        int top = 0;
        for (const int height : heights) {
            m_strips.push_back({top, height, 2});
            top += height;
        }
    }

    PixelSize size() const override { return m_picture.size; }
    const std::vector<Strip> &strips() const override { return m_strips; }
    void reserveStrips(int strips) override { m_held.resize(static_cast<std::size_t>(strips)); }
    Result<void> decodeTile(int, int index, int tile) override
    {
        const Strip &strip = m_strips[static_cast<std::size_t>(index)];
        const std::size_t half = m_picture.rowLength() / 2;
        auto &rows = heldBy(index)[static_cast<std::size_t>(tile)];
        rows.clear();
        for (int y = strip.top; y < strip.top + strip.height; ++y) {
            const std::uint8_t *row = m_picture.row(y) + static_cast<std::size_t>(tile) * half;
            rows.insert(rows.end(), row, row + half);
        }
        return {};
    }
    void readRow(int index, int y, std::uint8_t *rgba) const override
    {
        const Strip &strip = m_strips[static_cast<std::size_t>(index)];
        ASSERT_TRUE(y >= strip.top && y < strip.top + strip.height) << "row " << y << " of strip " << index;
        const std::size_t half = m_picture.rowLength() / 2;
        for (const Bytes &rows : const_cast<StripSource *>(this)->heldBy(index)) {
            ASSERT_EQ(rows.size(), half * static_cast<std::size_t>(strip.height)) << "strip " << index;
            rgba = std::copy_n(rows.data() + half * static_cast<std::size_t>(y - strip.top), half, rgba);
        }
    }

private:
    std::array<Bytes, 2> &heldBy(int strip)
    {
        return m_held[static_cast<std::size_t>(strip) % m_held.size()];
    }

    const Raster &m_picture;
    std::vector<Strip> m_strips;
    std::vector<std::array<Bytes, 2>> m_held;
};

/// The file that @p makeEncoder(output, size) writes of a picture in strips of these heights.
template<typename MakeEncoder>
Bytes written(const Raster &picture, const std::vector<int> &heights, int workers,
              const MakeEncoder &makeEncoder)
{
    const MemoryFile file;
    OutputFile output(file.descriptor());
    StripSource source(picture, heights);
    EXPECT_TRUE(runPipeline(source, *makeEncoder(output, picture.size), workers));
    return file.bytes();
}

/// A JPEG by this program or another, with the profile of sRGB.
Raster pixelsOf(const Bytes &jpeg)
{
    auto picture = decodeJpeg(jpeg, 1);
    EXPECT_TRUE(picture);
    return picture ? std::move(*picture) : Raster();
}

TEST(Pipeline, ShouldWriteEveryRowOnceInItsPlace)
{
    const std::vector<std::vector<int>> layouts = {{1},                      // one row
                                                   {300},                    // one strip
                                                   {64, 64, 64, 17},         // as tiles lie
                                                   {10, 100, 100, 100, 33},  // chunks across strips
                                                   std::vector<int>(90, 3)}; // strips smaller than chunks
    const Bytes srgb = savedProfile(Profile(cmsCreate_sRGBProfile()).get());
    for (const auto &heights : layouts) {
        const Raster picture = noise({76, std::accumulate(heights.begin(), heights.end(), 0)});
        for (const int workers : {1, 2, 5}) {
            SCOPED_TRACE(testing::Message() << heights.size() << " strips, " << workers << " workers");
            const auto png =
                readPng(written(picture, heights, workers, [](OutputFile &output, PixelSize size) {
                    return makePngEncoder(output, size, {});
                }));
            ASSERT_TRUE(png);
            EXPECT_EQ(png->rgba, picture.rgba);
            for (const int quality : {90, 95}) {
                const auto encoder = [quality](OutputFile &output, PixelSize size) {
                    return makeJpegEncoder(output, size, quality / 100.0, {});
                };
                const Bytes other = makeJpeg(picture, {.iccProfile = srgb},
                                             {.quality = quality, .sampling = quality < 95 ? 2 : 1});
                EXPECT_EQ(pixelsOf(written(picture, heights, workers, encoder)).rgba, pixelsOf(other).rgba);
            }
        }
    }
}

TEST(JpegEncoder, ShouldRefusePicturesThatTheFormatCannotHold)
{
    for (const PixelSize size : {PixelSize{16, 70'000}, PixelSize{70'000, 16}}) {
        const MemoryFile file;
        OutputFile output(file.descriptor());
        const Raster picture(size);
        StripSource source(picture, {size.height});
        const auto result = runPipeline(source, *makeJpegEncoder(output, size, 0.9, {}), 2);
        ASSERT_FALSE(result);
        EXPECT_EQ(result.error(), ImageWorkerFault::CannotWrite);
    }
}

} // namespace

} // namespace imageworker
