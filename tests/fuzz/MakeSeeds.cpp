// MakeSeeds FOLDER: photos of different kinds, of up to 200 KB, for the fuzzers to start from.

#include "AvcPicture.h"
#include "ExactColour.h"
#include "JpegOrPngFile.h"
#include "MadeExif.h"
#include "MadePhoto.h"
#include "MadeTracks.h"

#include <algorithm>
#include <fstream>
#include <random>
#include <string>

namespace imageworker {

namespace {

CodedItem avcItem()
{
    return makeAvcItem(cornerColours({64, 48}, false));
}

/// A grid of two tiles with an overlay of the grid on itself and a turned identity of that.
Bytes derivedPhoto()
{
    HeifFile file;
    const CodedItem coded = codedItemOf(makePhoto({.size = TileSize}));
    const unsigned grid =
        file.addGrid(1, 2, {100, 60}, {file.add(coded), file.add(coded, {}, HeifFile::Place::Item)}, {},
                     HeifFile::Place::File);
    const Bytes description = joined({Bytes(2), numbers(2, {0xFFFF, 0, 0, 0xFFFF, 90, 80, 0, 0, 20, -6})});
    const unsigned overlay =
        file.add("iovl", description, {spatialExtents(90, 80)}, HeifFile::Place::ItemData);
    file.refer(overlay, "dimg", {grid, grid});
    const unsigned identity = file.add("iden", {}, {spatialExtents(80, 90), rotation(1), mirror(0)});
    file.refer(identity, "dimg", {overlay});
    return file.bytes(identity);
}

/// Of tiles of 10 bits in the colours of high dynamic range, cropped.
Bytes gridOfHighDynamicRange()
{
    HeifFile file;
    const CodedItem coded = codedItemOf(makePhoto({.size = TileSize, .depth = 10}));
    const HeifFile::Properties colours = {codePoints(9, 16, 9, false)};
    return file.bytes(file.addGrid(1, 2, {120, 60}, {file.add(coded, colours), file.add(coded, colours)},
                                   {crop({90, 50}, 3, 0)}));
}

/// A tone map over a picture, with opacity multiplied into it.
Bytes toneMap()
{
    HeifFile file;
    const unsigned base = file.add(avcItem());
    const unsigned opacity = file.add(avcItem(), {opacityRole()});
    file.refer(opacity, "auxl", {base});
    file.refer(base, "prem", {opacity});
    const unsigned map = file.add("tmap", Bytes(30), {spatialExtents(64, 48), codePoints(9, 18, 9, false)});
    file.refer(map, "dimg", {base, base});
    file.refer(file.add("Exif", joined({Bytes(4), makeExif({.orientation = 6})}), {}), "cdsc", {map});
    return file.bytes(map);
}

Bytes tracks()
{
    const MadeTrack track = {.picture = avcItem(), .size = {64, 48}, .clockwiseQuarters = 1};
    MadeTrack opacity = track;
    opacity.isAuxiliary = true;
    opacity.hasLongOffsets = true;
    return fileOfTracks({opacity, track});
}

/// As large as a small photo of a camera.
Raster noise()
{
    Raster picture({320, 256});
    std::minstd_rand random(3);
    std::ranges::generate(picture.rgba, [&] { return static_cast<std::uint8_t>(random() >> 8); });
    return picture;
}

/// A grid of tiles in slices, each of which says other things of itself.
Bytes largeGrid()
{
    HeifFile file;
    std::vector<unsigned> tiles;
    for (unsigned index = 0; index < 6; ++index) {
        const CodedItem coded = codedItemOf(makePhoto({.slices = 3}, partOf(noise(), 0, 0, {192, 192})));
        const HeifFile::Property unknown = {"wxyz", Bytes(index)};
        tiles.push_back(file.add(coded, {unknown, codePoints(1, 13, index, index % 2 == 0)}));
    }
    return file.bytes(file.addGrid(2, 3, {570, 380}, tiles, {{"pixi", Bytes(8), true}}));
}

Bytes profile()
{
    const Profile srgb(cmsCreate_sRGBProfile());
    return savedProfile(srgb.get());
}

std::vector<Bytes> photos()
{
    const Bytes exif = makeExif({.orientation = 6, .makerNoteLength = 40, .previewLength = 20});
    const Bytes xmp = bytesOf("<?xpacket begin='' id=''?><x:xmpmeta xmlns:x='adobe:ns:meta/'><rdf:RDF>"
                              "<rdf:Description tiff:Orientation='6'><exif:PixelXDimension>64"
                              "</exif:PixelXDimension><dc:title>" +
                              std::string(600, 'X') + "</dc:title></rdf:Description></rdf:RDF></x:xmpmeta>");
    const Raster picture = cornerColours({40, 30}, true);
    const PhotoRecipe recipes[] = {
        {.size = {64, 48}},
        {.size = {65, 47}, .chroma = PhotoRecipe::Chroma::Full, .orientation = 6},
        {.size = {64, 64}, .chroma = PhotoRecipe::Chroma::None},
        {.size = {64, 64}, .hasAlpha = true, .iccProfile = profile(), .exif = exif, .xmp = xmp},
        {.size = {64, 64}, .codec = PhotoRecipe::Codec::Av1},
    };
    std::vector<Bytes> all = {derivedPhoto(),
                              photoOf(avcItem()),
                              gridOfHighDynamicRange(),
                              toneMap(),
                              tracks(),
                              makeJpeg(picture, {profile(), exif, xmp}),
                              makePng(picture, {profile(), exif, xmp}),
                              makePng(picture, {}, {.isSrgb = false, .hasLinearGamma = true, .depth = 16}),
                              largeGrid(),
                              makePhoto({.hasAlpha = true, .orientation = 5, .exif = exif}, noise()),
                              makePhoto({.codec = PhotoRecipe::Codec::Av1}, noise()),
                              photoOf(makeAvcItem(noise(), 0, 4)),
                              makeJpeg(noise(), {{}, exif, xmp}, {.quality = 80, .isProgressive = true}),
                              makePng(partOf(noise(), 0, 0, {200, 200}), {{}, exif, {}})};
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
