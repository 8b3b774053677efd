#include "MadeGrid.h"

#include "ConvertedPhoto.h"
#include "MadePhoto.h"

namespace imageworker {

using Properties = HeifFile::Properties;

Properties with(Properties properties, const Properties &more)
{
    properties.insert(properties.end(), more.begin(), more.end());
    return properties;
}

HeifFile::Property rotation(std::uint8_t quarters)
{
    return {"irot", {quarters}};
}

HeifFile::Property mirror(std::uint8_t axis)
{
    return {"imir", {axis}};
}

HeifFile::Property crop(PixelSize size, int halvesRight, int halvesDown)
{
    const auto number = [](int value) { return bigEndian(static_cast<std::uint32_t>(value), 4); };
    return {"clap", joined({number(size.width), number(1), number(size.height), number(1),
                            number(halvesRight), number(2), number(halvesDown), number(2)})};
}

Bytes gridOf(unsigned rows, unsigned columns, PixelSize canvas)
{
    return joined({Bytes(2), bigEndian(rows - 1, 1), bigEndian(columns - 1, 1),
                   bigEndian(static_cast<unsigned>(canvas.width), 2),
                   bigEndian(static_cast<unsigned>(canvas.height), 2)});
}

unsigned addGrid(HeifFile &file, PixelSize canvas, const Properties &properties, HeifFile::Place place)
{
    constexpr int Columns = 3;
    constexpr int Rows = 2;
    const Raster whole = cornerColours({Columns * TileSize.width, Rows * TileSize.height}, false);
    std::vector<unsigned> tiles;
    for (int row = 0; row < Rows; ++row) {
        for (int column = 0; column < Columns; ++column) {
            const Raster part = partOf(whole, column * TileSize.width, row * TileSize.height, TileSize);
            const CodedItem tile = codedItemOf(makePhoto({}, part));
            tiles.push_back(file.add("hvc1", tile.data, tile.properties));
        }
    }
    const auto extents =
        spatialExtents(static_cast<unsigned>(canvas.width), static_cast<unsigned>(canvas.height));
    const unsigned grid = file.add("grid", gridOf(Rows, Columns, canvas), with({extents}, properties), place);
    file.refer(grid, "dimg", tiles);
    return grid;
}

} // namespace imageworker
