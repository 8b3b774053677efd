#include "PhotoRows.h"

#include "JpegDecoder.h"
#include "OverlayComposer.h"
#include "Pipeline.h"
#include "PngDecoder.h"
#include "ReducedRows.h"

namespace imageworker {

namespace {

/// Keeps one channel of a grey picture: its opacity plane.
class AlphaWriter : public RowEncoder
{
public:
    explicit AlphaWriter(AlphaPlane &plane)
        : m_plane(plane)
    {}

    Order order() const override { return Order::AtOnce; }
    int chunkHeight() const override { return 64; }
    Result<void> begin() override
    {
        m_plane.samples.resize(static_cast<std::size_t>(m_plane.size.width) *
                               static_cast<std::size_t>(m_plane.size.height));
        return {};
    }
    Result<void> encodeChunk(int, int top, int height, const RowReader &readRow) override
    {
        const auto width = static_cast<std::size_t>(m_plane.size.width);
        Bytes row(width * 4);
        for (int y = top; y < top + height; ++y) {
            readRow(y, row.data());
            std::uint8_t *opacities = m_plane.samples.data() + static_cast<std::size_t>(y) * width;
            for (std::size_t x = 0; x < width; ++x) {
                opacities[x] = row[4 * x];
            }
        }
        return {};
    }
    Result<void> finish() override { return {}; }

private:
    AlphaPlane &m_plane;
};

Result<AlphaPlane> decodeAlpha(const Source &source, const Picture &picture, int workers)
{
    AlphaPlane plane;
    const auto *grid = std::get_if<TileGrid>(&picture.content);
    if (grid == nullptr) {
        return unreadable();
    }
    auto rows = TileRows::create(source, *grid, picture.upright, picture.colour, {}, workers);
    if (!rows) {
        return unreadable();
    }
    plane.size = (*rows)->size();
    AlphaWriter writer(plane);
    if (!runPipeline(**rows, writer, workers)) {
        return unreadable();
    }
    return plane;
}

/// Some writers store the opacity in fewer pixels than the picture.
AlphaPlane stretched(const AlphaPlane &plane, PixelSize size)
{
    AlphaPlane result{size,
                      Bytes(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height))};
    std::size_t index = 0;
    for (std::int64_t y = 0; y < size.height; ++y) {
        const auto row = static_cast<std::size_t>(y * plane.size.height / size.height);
        for (std::int64_t x = 0; x < size.width; ++x) {
            const auto column = static_cast<std::size_t>(x * plane.size.width / size.width);
            result.samples[index++] =
                plane.samples[row * static_cast<std::size_t>(plane.size.width) + column];
        }
    }
    return result;
}

Result<std::unique_ptr<TileRows>> openGrid(const Source &source, const Picture &picture, const TileGrid &grid,
                                           int workers)
{
    AlphaPlane alpha;
    if (picture.alpha != nullptr) {
        auto decoded = decodeAlpha(source, *picture.alpha, workers);
        if (!decoded) {
            return unreadable();
        }
        const PixelSize size = picture.upright.size();
        alpha = decoded->size == size ? std::move(*decoded) : stretched(*decoded, size);
        alpha.premultiplied = picture.premultiplied;
    }
    return TileRows::create(source, grid, picture.upright, picture.colour, std::move(alpha), workers);
}

Result<std::unique_ptr<RowSource>> openPicture(const Source &source, const Picture &picture, int workers)
{
    if (const auto *grid = std::get_if<TileGrid>(&picture.content)) {
        return openGrid(source, picture, *grid, workers);
    }
    const auto decode = [&source, workers](const Picture &layer) -> Result<Raster> {
        const auto rows = openPicture(source, layer, workers);
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
    return std::make_unique<RasterRows>(std::move(*canvas), picture.upright);
}

/// The stored picture in sRGB, made smaller while it is decoded where @p smallestSide (in pixels, of the
/// longer side) allows; 0 asks for the full size.
Result<Raster> decodeJpegOrPng(const Source &source, const JpegOrPng &file, int smallestSide)
{
    const auto bytes = source.read(0, source.size());
    if (!bytes) {
        return unreadable();
    }
    unsigned reduction = 1;
    const auto longest = static_cast<unsigned>(std::max(file.stored.width, file.stored.height));
    while (smallestSide > 0 && reduction < 8 &&
           longest / (2 * reduction) >= static_cast<unsigned>(smallestSide)) {
        reduction *= 2;
    }
    return file.kind == JpegOrPng::Kind::Png ? decodePng(*bytes, reduction) : decodeJpeg(*bytes, reduction);
}

Result<std::unique_ptr<RowSource>> openJpegOrPng(const Source &source, const JpegOrPng &file,
                                                 int smallestSide)
{
    auto raster = decodeJpegOrPng(source, file, smallestSide);
    if (!raster) {
        return unreadable();
    }
    Upright upright(raster->size);
    upright.turnLike(file.upright);
    return std::make_unique<RasterRows>(std::move(*raster), upright);
}

} // namespace

Result<std::unique_ptr<RowSource>> openRows(const Source &source, const Photo &photo, int workers)
{
    if (const auto *file = std::get_if<JpegOrPng>(&photo.picture)) {
        return openJpegOrPng(source, *file, 0);
    }
    return openPicture(source, std::get<Picture>(photo.picture), workers);
}

Result<std::unique_ptr<RowSource>> openReducedRows(const Source &source, const Photo &photo, int workers,
                                                   int smallestSide)
{
    if (const auto *file = std::get_if<JpegOrPng>(&photo.picture)) {
        return openJpegOrPng(source, *file, smallestSide);
    }
    const auto &picture = std::get<Picture>(photo.picture);
    const auto *grid = std::get_if<TileGrid>(&picture.content);
    if (grid == nullptr) {
        return openPicture(source, picture, workers);
    }
    auto rows = openGrid(source, picture, *grid, workers);
    if (!rows) {
        return unreadable();
    }
    const int factor = ReducedRows::factorFor(**rows, smallestSide);
    return std::make_unique<ReducedRows>(std::move(*rows), factor);
}

} // namespace imageworker
