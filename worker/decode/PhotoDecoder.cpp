#include "PhotoDecoder.h"

#include "GridDecoder.h"
#include "JpegDecoder.h"
#include "OverlayComposer.h"
#include "Pipeline.h"
#include "PngDecoder.h"

#include <algorithm>

namespace imageworker {

namespace {

std::size_t areaOf(PixelSize size)
{
    return static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height);
}

/// Keeps one channel of a grey picture as an opacity plane.
class AlphaWriter : public RowEncoder
{
public:
    explicit AlphaWriter(PixelSize size)
        : m_plane(std::make_unique<AlphaPlane>(AlphaPlane{size, Bytes(areaOf(size))}))
    {}

    Order order() const override { return Order::AtOnce; }
    int chunkHeight() const override { return 64; }
    Result<void> encodeChunk(int, int top, int height, const RowReader &readRow) override
    {
        const auto width = static_cast<std::size_t>(m_plane->size.width);
        Bytes row(width * 4);
        for (int y = top; y < top + height; ++y) {
            readRow(y, row.data());
            std::uint8_t *opacities = m_plane->samples.data() + static_cast<std::size_t>(y) * width;
            for (std::size_t x = 0; x < width; ++x) {
                opacities[x] = row[4 * x];
            }
        }
        return {};
    }

    std::unique_ptr<AlphaPlane> take() { return std::move(m_plane); }

private:
    std::unique_ptr<AlphaPlane> m_plane;
};

/// Some writers store the opacity in fewer pixels than the picture.
std::unique_ptr<AlphaPlane> stretched(const AlphaPlane &plane, PixelSize size)
{
    auto result = std::make_unique<AlphaPlane>(AlphaPlane{size, Bytes(areaOf(size))});
    std::size_t index = 0;
    for (std::int64_t y = 0; y < size.height; ++y) {
        const std::int64_t row = y * plane.size.height / size.height;
        for (std::int64_t x = 0; x < size.width; ++x) {
            const std::int64_t column = x * plane.size.width / size.width;
            result->samples[index++] =
                plane.samples[static_cast<std::size_t>(row * plane.size.width + column)];
        }
    }
    return result;
}

Result<std::unique_ptr<AlphaPlane>> decodeAlpha(const Source &source, const Picture &picture, PixelSize size,
                                                int workers)
{
    if (!std::holds_alternative<TileGrid>(picture.content)) {
        return unreadable();
    }
    GridDecoder decoder(source, picture, nullptr, workers, 0);
    AlphaWriter writer(decoder.size());
    if (!runPipeline(decoder, writer, workers)) {
        return unreadable();
    }
    auto plane = writer.take();
    return plane->size == size ? std::move(plane) : stretched(*plane, size);
}

Result<std::unique_ptr<RowSource>> openPicture(const Source &source, const Picture &picture, int workers,
                                               int smallestSide)
{
    if (std::holds_alternative<TileGrid>(picture.content)) {
        std::unique_ptr<AlphaPlane> alpha;
        if (picture.alpha != nullptr) {
            auto decoded = decodeAlpha(source, *picture.alpha, picture.transformation.size(), workers);
            if (!decoded) {
                return unreadable();
            }
            alpha = std::move(*decoded);
        }
        return std::make_unique<GridDecoder>(source, picture, std::move(alpha), workers, smallestSide);
    }
    const auto decode = [&source, workers](const Picture &layer) -> Result<Raster> {
        const auto rows = openPicture(source, layer, workers, 0);
        if (!rows) {
            return unreadable();
        }
        RasterWriter writer((*rows)->size());
        if (!runPipeline(**rows, writer, workers)) {
            return unreadable();
        }
        return writer.take();
    };
    auto canvas = composeOverlay(std::get<Overlay>(picture.content), decode);
    if (!canvas) {
        return unreadable();
    }
    return std::make_unique<RasterSource>(std::move(*canvas), picture.transformation);
}

Result<std::unique_ptr<RowSource>> openJpegOrPng(const Source &source, const JpegOrPng &file,
                                                 int smallestSide)
{
    const auto bytes = source.read(0, source.size());
    if (!bytes) {
        return unreadable();
    }
    const int longest = std::max(file.stored.width, file.stored.height);
    int reduction = 1;
    while (smallestSide > 0 && reduction < 8 && longest / (2 * reduction) >= smallestSide) {
        reduction *= 2;
    }
    auto raster =
        file.kind == JpegOrPng::Kind::Png ? decodePng(*bytes, reduction) : decodeJpeg(*bytes, reduction);
    if (!raster) {
        return unreadable();
    }
    Transformation transformation(raster->size);
    transformation.orientLike(file.transformation);
    return std::make_unique<RasterSource>(std::move(*raster), transformation);
}

} // namespace

Result<std::unique_ptr<RowSource>> openPhoto(const Source &source, const Photo &photo, int workers,
                                             int smallestSide)
{
    if (const auto *file = std::get_if<JpegOrPng>(&photo.picture)) {
        return openJpegOrPng(source, *file, smallestSide);
    }
    return openPicture(source, std::get<Picture>(photo.picture), workers, smallestSide);
}

} // namespace imageworker
