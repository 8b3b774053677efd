#include "PictureReader.h"

#include "Boxes.h"
#include "CodecConfiguration.h"
#include "ItemData.h"
#include "PictureProperties.h"
#include "ReferenceBudget.h"
#include "TileDecoder.h"

#include <algorithm>
#include <map>

namespace imageworker {

namespace {

constexpr int MaximumDepth = 8;
constexpr std::size_t MaximumLayers = 64;

/// "ispe" gives the size before transformations and without padding. Some writers give the size after a
/// rotation; where that exceeds the coded size, the coded size counts.
PixelSize sizeOfSingle(const CodedPicture &coded, PixelSize extent)
{
    const auto decoder = TileDecoder::create(coded);
    const auto announced = decoder != nullptr ? decoder->announcedSize() : std::nullopt;
    const bool fits = !announced || (extent.width <= announced->width && extent.height <= announced->height);
    return fits ? extent : *announced;
}

/// Whether the tiles cover the canvas. A gap would look like a part of the photo.
bool isCovered(const TileGrid &grid)
{
    return std::int64_t{grid.tile.width} * grid.columns >= grid.canvas.width &&
           std::int64_t{grid.tile.height} * grid.rows >= grid.canvas.height;
}

class PictureReader
{
public:
    PictureReader(const Source &source, const ItemTable &table)
        : m_source(source)
        , m_table(table)
        , m_budget(source.size())
    {
        for (const auto &[identifier, item] : table.items) {
            if (isAlpha(table, item)) {
                for (const std::uint32_t master : referencesOf(item, fourCharacters("auxl"))) {
                    m_alphaOf.try_emplace(master, identifier);
                }
            }
        }
    }

    Result<Picture> read(std::uint32_t identifier, int depth);

private:
    Result<void> readContent(const Item &item, int depth, Picture &picture);
    Result<CodedPicture> readCoded(const Item &item);
    Result<void> readSingle(const Item &item, Picture &picture);
    Result<void> readGrid(const Item &item, int depth, Picture &picture);
    bool canJoin(std::uint32_t tile, const TileGrid &grid) const;
    Result<void> readTiles(const std::vector<std::uint32_t> &inputs, TileGrid grid, Picture &picture);
    Result<void> layTiles(const std::vector<std::uint32_t> &inputs, TileGrid grid, int depth,
                          Picture &picture);
    Result<void> readIdentity(const Item &item, int depth, Picture &picture);
    Result<void> readOverlay(const Item &item, int depth, Picture &picture);
    Result<void> readAlpha(std::uint32_t identifier, int depth, Picture &picture);
    Result<Bytes> readDerivation(const Item &item) const;

    const Source &m_source;
    const ItemTable &m_table;
    std::map<std::uint32_t, std::uint32_t> m_alphaOf; ///< by the item it belongs to
    ReferenceBudget m_budget;
};

Result<Picture> PictureReader::read(std::uint32_t identifier, int depth)
{
    const Item *item = m_table.find(identifier);
    if (item == nullptr || depth > MaximumDepth || !m_budget.takePicture() || !isUnderstood(m_table, *item)) {
        return unreadable();
    }
    Picture picture;
    if (!readContent(*item, depth, picture)) {
        return unreadable();
    }
    // Only the base of a tone map is shown. The colours of the tone map are those of its result.
    ColourDescription colour =
        item->type == fourCharacters("tmap") ? ColourDescription{} : colourOf(m_table, *item);
    if (colour.codePoints) {
        picture.colour.codePoints = colour.codePoints;
    }
    if (!colour.iccProfile.empty()) {
        picture.colour.iccProfile = std::move(colour.iccProfile);
    }
    if (!m_budget.takeBytes(picture.colour.iccProfile.size()) ||
        !applyTransformations(m_table, *item, picture)) {
        return unreadable();
    }
    // An identity transforms the alpha of its input, too.
    if (picture.alpha != nullptr && !applyTransformations(m_table, *item, *picture.alpha)) {
        return unreadable();
    }
    if (!readAlpha(identifier, depth, picture)) {
        return unreadable();
    }
    return picture;
}

Result<void> PictureReader::readContent(const Item &item, int depth, Picture &picture)
{
    switch (item.type) {
    case fourCharacters("grid"):
        return readGrid(item, depth, picture);
    case fourCharacters("iden"):
        return readIdentity(item, depth, picture);
    case fourCharacters("iovl"):
        return readOverlay(item, depth, picture);
    case fourCharacters("tmap"): { // the first input is the picture, the second its gain map
        const auto inputs = referencesOf(item, fourCharacters("dimg"));
        const Item *base = inputs.empty() ? nullptr : m_table.find(inputs.front());
        if (base == nullptr || base->type == item.type) {
            return unreadable();
        }
        return readIdentity(item, depth, picture);
    }
    default:
        return readSingle(item, picture);
    }
}

Result<CodedPicture> PictureReader::readCoded(const Item &item)
{
    CodedPicture coded;
    const ItemProperty *record = m_table.property(item, configurationTypeOf(item.type));
    if (!readCodecConfiguration(item.type, record, coded)) {
        return unreadable();
    }
    auto location = locateItem(m_source, m_table, item);
    if (!location || !m_budget.takeBytes(lengthOf(*location))) {
        return unreadable();
    }
    coded.data = std::move(*location);
    return coded;
}

Result<void> PictureReader::readSingle(const Item &item, Picture &picture)
{
    const auto extent = spatialExtent(m_table, item);
    auto coded = extent ? readCoded(item) : unreadable();
    if (!coded) {
        return unreadable();
    }
    const PixelSize size = sizeOfSingle(*coded, *extent);
    picture = pictureOf(std::move(*coded), size);
    return {};
}

Result<Bytes> PictureReader::readDerivation(const Item &item) const
{
    constexpr std::uint64_t LongestDerivation = 65'536;
    const auto location = locateItem(m_source, m_table, item);
    if (!location || lengthOf(*location) > LongestDerivation) {
        return unreadable();
    }
    return m_source.read(*location);
}

/// Grid derivation, ISO/IEC 23008-12, 6.6.2.3.
Result<void> PictureReader::readGrid(const Item &item, int depth, Picture &picture)
{
    const auto bytes = readDerivation(item);
    if (!bytes) {
        return unreadable();
    }
    ByteReader reader(*bytes);
    const unsigned version = reader.u8();
    const unsigned width = (reader.u8() & 1) != 0 ? 4 : 2;
    TileGrid grid;
    grid.rows = reader.u8() + 1;
    grid.columns = reader.u8() + 1;
    const auto canvasWidth = static_cast<std::int64_t>(reader.number(width));
    const auto canvasHeight = static_cast<std::int64_t>(reader.number(width));
    const auto inputs = referencesOf(item, fourCharacters("dimg"));
    if (reader.failed() || version != 0 || !isAcceptable(canvasWidth, canvasHeight) ||
        inputs.size() != static_cast<std::size_t>(grid.rows) * static_cast<std::size_t>(grid.columns)) {
        return unreadable();
    }
    grid.canvas = {static_cast<int>(canvasWidth), static_cast<int>(canvasHeight)};
    picture.transformation = Transformation(grid.canvas);
    const bool join =
        std::ranges::all_of(inputs, [this, &grid](std::uint32_t input) { return canJoin(input, grid); });
    return join ? readTiles(inputs, std::move(grid), picture)
                : layTiles(inputs, std::move(grid), depth, picture);
}

/// Whether the planes of @p tile can be joined to those of other tiles: it is coded, opaque and not
/// transformed, and no chroma sample belongs to two tiles.
bool PictureReader::canJoin(std::uint32_t tile, const TileGrid &grid) const
{
    const Item *item = m_table.find(tile);
    const auto size = item != nullptr ? spatialExtent(m_table, *item) : unreadable();
    return size && configurationTypeOf(item->type) != 0 && !isTransformed(m_table, *item) &&
           !m_alphaOf.contains(tile) && (grid.columns == 1 || size->width % 2 == 0) &&
           (grid.rows == 1 || size->height % 2 == 0);
}

Result<void> PictureReader::readTiles(const std::vector<std::uint32_t> &inputs, TileGrid grid,
                                      Picture &picture)
{
    if (!m_budget.takeTiles(inputs.size())) {
        return unreadable();
    }
    for (const std::uint32_t input : inputs) {
        const Item &tile = *m_table.find(input);
        const auto size = spatialExtent(m_table, tile);
        auto coded = size ? readCoded(tile) : unreadable();
        if (!coded || !isUnderstood(m_table, tile) || (!grid.tiles.empty() && *size != grid.tile)) {
            return unreadable();
        }
        if (grid.tiles.empty()) {
            grid.tile = *size;
            picture.colour = colourOf(m_table, tile);
        }
        grid.tiles.push_back(std::move(*coded));
    }
    if (!isCovered(grid)) {
        return unreadable();
    }
    picture.content = std::move(grid);
    return {};
}

/// Reads tiles that cannot be joined. Each is decoded whole, as a layer of an overlay; no camera writes them,
/// so that may be slow.
Result<void> PictureReader::layTiles(const std::vector<std::uint32_t> &inputs, TileGrid grid, int depth,
                                     Picture &picture)
{
    Overlay overlay;
    overlay.canvas = grid.canvas;
    for (const std::uint32_t input : inputs) {
        auto tile = read(input, depth + 1);
        if (!tile) {
            return unreadable();
        }
        const PixelSize size = tile->transformation.size();
        const int index = static_cast<int>(overlay.layers.size());
        grid.tile = index == 0 ? size : grid.tile;
        if (size != grid.tile) {
            return unreadable();
        }
        overlay.layers.push_back({index % grid.columns * size.width, index / grid.columns * size.height,
                                  std::make_shared<Picture>(std::move(*tile))});
    }
    if (!isCovered(grid)) {
        return unreadable();
    }
    picture.content = std::move(overlay);
    return {};
}

/// Identity derivation, ISO/IEC 23008-12, 6.6.2.1: the input with its own transformations.
Result<void> PictureReader::readIdentity(const Item &item, int depth, Picture &picture)
{
    const auto inputs = referencesOf(item, fourCharacters("dimg"));
    auto input = inputs.empty() ? unreadable() : read(inputs.front(), depth + 1);
    if (!input) {
        return unreadable();
    }
    picture = std::move(*input);
    return {};
}

/// Overlay derivation, ISO/IEC 23008-12, 6.6.2.2.
Result<void> PictureReader::readOverlay(const Item &item, int depth, Picture &picture)
{
    const auto bytes = readDerivation(item);
    const auto inputs = referencesOf(item, fourCharacters("dimg"));
    if (!bytes || inputs.empty() || inputs.size() > MaximumLayers) {
        return unreadable();
    }
    ByteReader reader(*bytes);
    const unsigned version = reader.u8();
    const unsigned width = (reader.u8() & 1) != 0 ? 4 : 2;
    Overlay overlay;
    for (std::uint16_t &channel : overlay.fill) {
        channel = reader.u16();
    }
    const auto canvasWidth = static_cast<std::int64_t>(reader.number(width));
    const auto canvasHeight = static_cast<std::int64_t>(reader.number(width));
    const auto offset = [&reader, width] {
        const std::uint64_t value = reader.number(width);
        return width == 2 ? static_cast<std::int16_t>(value) : static_cast<std::int32_t>(value);
    };
    if (version != 0 || !isAcceptable(canvasWidth, canvasHeight)) {
        return unreadable();
    }
    overlay.canvas = {static_cast<int>(canvasWidth), static_cast<int>(canvasHeight)};
    for (const std::uint32_t input : inputs) {
        Overlay::Layer layer;
        layer.x = offset();
        layer.y = offset();
        auto read = reader.failed() ? unreadable() : this->read(input, depth + 1);
        if (!read) {
            return unreadable();
        }
        layer.picture = std::make_shared<Picture>(std::move(*read));
        overlay.layers.push_back(std::move(layer));
    }
    picture.transformation = Transformation(overlay.canvas);
    picture.content = std::move(overlay);
    return {};
}

/// Alpha auxiliary picture, ISO/IEC 23008-12, 6.4.5. Unreadable where it belongs to a picture that is
/// composed: its opacity would be lost.
Result<void> PictureReader::readAlpha(std::uint32_t identifier, int depth, Picture &picture)
{
    const auto found = m_alphaOf.find(identifier);
    if (found == m_alphaOf.end()) {
        return {};
    }
    const std::uint32_t auxiliary = found->second;
    auto alpha = read(auxiliary, depth + 1);
    const auto isGrid = [](const Picture &read) { return std::holds_alternative<TileGrid>(read.content); };
    if (!alpha || alpha->alpha != nullptr || !isGrid(*alpha) || !isGrid(picture)) {
        return unreadable();
    }
    alpha->colour.iccProfile.clear();
    alpha->colour.isOpacity = true;
    picture.alpha = std::make_shared<Picture>(std::move(*alpha));
    const auto premultipliedBy = referencesOf(*m_table.find(identifier), fourCharacters("prem"));
    picture.premultiplied = std::ranges::find(premultipliedBy, auxiliary) != premultipliedBy.end();
    return {};
}

} // namespace

Result<Picture> readPicture(const Source &source, const ItemTable &table, std::uint32_t identifier)
{
    return PictureReader(source, table).read(identifier, 0);
}

} // namespace imageworker
