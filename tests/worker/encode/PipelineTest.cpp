#include "Pipeline.h"

#include "ConvertedPhoto.h"
#include "JpegEncoder.h"
#include "MadePhoto.h"
#include "PlainPhoto.h"
#include "PngEncoder.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <jpeglib.h>
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

/// Gives a picture in strips of the given heights, of two tiles each (left and right half). It holds only as
/// many as it was told to: a strip decoded too early overwrites one that is still read.
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

/// The pixels of a JPEG as the library reads them.
Raster readJpeg(const Bytes &file)
{
    jpeg_decompress_struct jpeg = {};
    jpeg_error_mgr errors = {};
    jpeg.err = jpeg_std_error(&errors);
    jpeg_create_decompress(&jpeg);
    jpeg_mem_src(&jpeg, file.data(), file.size());
    jpeg_read_header(&jpeg, TRUE);
    jpeg.out_color_space = JCS_EXT_RGBA;
    jpeg_start_decompress(&jpeg);
    Raster picture({static_cast<int>(jpeg.output_width), static_cast<int>(jpeg.output_height)});
    while (jpeg.output_scanline < jpeg.output_height) {
        std::uint8_t *row = picture.row(static_cast<int>(jpeg.output_scanline));
        jpeg_read_scanlines(&jpeg, &row, 1);
    }
    jpeg_finish_decompress(&jpeg);
    EXPECT_EQ(errors.num_warnings, 0);
    jpeg_destroy_decompress(&jpeg);
    return picture;
}

struct Layout
{
    const char *name;
    std::vector<int> heights;
};

class Pipeline : public testing::TestWithParam<Layout>
{
protected:
    Pipeline()
        : m_picture(noise({76, std::accumulate(GetParam().heights.begin(), GetParam().heights.end(), 0)}))
    {}

    template<typename MakeEncoder>
    Bytes run(int workers, const MakeEncoder &makeEncoder)
    {
        const MemoryFile file;
        OutputFile output(file.descriptor());
        StripSource source(m_picture, GetParam().heights);
        const auto encoder = makeEncoder(output, m_picture.size);
        EXPECT_TRUE(runPipeline(source, *encoder, workers));
        return file.bytes();
    }

    const Raster m_picture;
};

TEST_P(Pipeline, ShouldWriteEveryRowOnceInItsPlace)
{
    for (const int workers : {1, 2, 5}) {
        SCOPED_TRACE(workers);
        const auto png = readPng(run(
            workers, [](OutputFile &output, PixelSize size) { return makePngEncoder(output, size, {}); }));
        ASSERT_TRUE(png);
        EXPECT_EQ(png->rgba, m_picture.rgba);
        for (const double quality : {0.9, 0.95}) {
            const Raster jpeg = readJpeg(run(workers, [quality](OutputFile &output, PixelSize size) {
                return makeJpegEncoder(output, size, quality, {});
            }));
            const Raster expected = readJpeg(
                makeJpeg(m_picture, {},
                         {.quality = static_cast<int>(quality * 100), .sampling = quality < 0.95 ? 2 : 1}));
            ASSERT_EQ(jpeg.size, expected.size);
            EXPECT_EQ(jpeg.rgba, expected.rgba);
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
        const auto written = runPipeline(source, *makeJpegEncoder(output, size, 0.9, {}), 2);
        ASSERT_FALSE(written);
        EXPECT_EQ(written.error(), Fault::CannotWrite);
    }
}

INSTANTIATE_TEST_SUITE_P(Layouts, Pipeline,
                         testing::Values(Layout{"OneRow", {1}}, Layout{"OneStrip", {300}},
                                         Layout{"Tiles", {64, 64, 64, 17}},
                                         Layout{"ChunksAcrossStrips", {10, 100, 100, 100, 33}},
                                         Layout{"StripsSmallerThanChunks", std::vector<int>(90, 3)}),
                         [](const auto &tested) { return tested.param.name; });

} // namespace

} // namespace imageworker
