// MakeSeeds FOLDER: a few small photos of different kinds for the fuzzers to start from.

#include "AvcPicture.h"
#include "HeifFile.h"
#include "MadePhoto.h"

#include <fstream>
#include <string>

namespace imageworker {

namespace {

/// A grid of two tiles with an overlay of the grid on itself and a turned identity of that.
Bytes derivedPhoto()
{
    HeifFile file;
    const CodedItem coded = codedItemOf(makePhoto({.size = {64, 64}}));
    const std::vector<unsigned> tiles = {
        file.add("hvc1", coded.data, coded.properties),
        file.add("hvc1", coded.data, coded.properties, HeifFile::Place::Item)};
    const unsigned grid = file.add("grid", {0, 0, 0, 1, 0, 100, 0, 60}, {spatialExtents(100, 60)});
    file.refer(grid, "dimg", tiles);
    const unsigned overlay =
        file.add("iovl", {0, 0, 255, 255, 0, 0, 0, 0, 255, 255, 0, 90, 0, 80, 0, 0, 0, 0, 0, 20, 255, 250},
                 {spatialExtents(90, 80)}, HeifFile::Place::ItemData);
    file.refer(overlay, "dimg", {grid, grid});
    const unsigned identity = file.add("iden", {}, {spatialExtents(80, 90), {"irot", {1}}, {"imir", {0}}});
    file.refer(identity, "dimg", {overlay});
    return file.bytes(identity);
}

Bytes avcPhoto()
{
    HeifFile file;
    const CodedItem coded = makeAvcItem(cornerColours({64, 48}, false));
    return file.bytes(file.add("avc1", coded.data, coded.properties));
}

std::vector<Bytes> photos()
{
    const PhotoRecipe recipes[] = {
        {.size = {64, 48}},
        {.size = {65, 47}, .chroma = PhotoRecipe::Chroma::Full, .orientation = 6},
        {.size = {64, 64}, .chroma = PhotoRecipe::Chroma::None},
        {.size = {64, 64}, .hasAlpha = true, .exif = {'I', 'I', 42, 0, 8, 0, 0, 0, 0, 0}},
        {.size = {64, 64}, .codec = PhotoRecipe::Codec::Av1},
    };
    std::vector<Bytes> all = {derivedPhoto(), avcPhoto()};
    for (const PhotoRecipe &recipe : recipes) {
        all.push_back(makePhoto(recipe));
    }
    return all;
}

} // namespace

} // namespace imageworker

int main(int argumentCount, char **arguments)
{
    if (argumentCount != 2) {
        return 1;
    }
    int number = 0;
    for (const imageworker::Bytes &photo : imageworker::photos()) {
        std::ofstream file(std::string(arguments[1]) + "/made-" + std::to_string(number++) + ".heic",
                           std::ios::binary);
        file.write(reinterpret_cast<const char *>(photo.data()), static_cast<std::streamsize>(photo.size()));
    }
    return 0;
}
