// MakeSeeds FOLDER: a few small photos of different kinds for the fuzzers to start from.

#include "AvcPicture.h"
#include "ExactColour.h"
#include "MadeExif.h"
#include "MadePhoto.h"
#include "MadeTracks.h"
#include "PlainPhoto.h"

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

/// Of tiles of 10 bits in the colours of high dynamic range, cropped.
Bytes gridOfHighDynamicRange()
{
    HeifFile file;
    const CodedItem coded = codedItemOf(makePhoto({.size = {64, 64}, .depth = 10}));
    HeifFile::Properties properties = coded.properties;
    properties.push_back(codePoints(9, 16, 9, false));
    const std::vector<unsigned> tiles = {file.add("hvc1", coded.data, properties),
                                         file.add("hvc1", coded.data, properties)};
    const Bytes crop = joined({bigEndian(90, 4), bigEndian(1, 4), bigEndian(50, 4), bigEndian(1, 4),
                               bigEndian(3, 4), bigEndian(2, 4), bigEndian(0, 4), bigEndian(1, 4)});
    const unsigned grid =
        file.add("grid", {0, 0, 0, 1, 0, 120, 0, 60}, {spatialExtents(120, 60), {"clap", crop}});
    file.refer(grid, "dimg", tiles);
    return file.bytes(grid);
}

/// A tone map over a picture, with opacity multiplied into it.
Bytes toneMap()
{
    HeifFile file;
    const CodedItem coded = makeAvcItem(cornerColours({64, 48}, false));
    HeifFile::Properties properties = coded.properties;
    properties.push_back(opacityRole());
    const unsigned base = file.add("avc1", coded.data, coded.properties);
    const unsigned opacity = file.add("avc1", coded.data, properties);
    file.refer(opacity, "auxl", {base});
    file.refer(base, "prem", {opacity});
    const unsigned map = file.add("tmap", Bytes(30), {spatialExtents(64, 48), codePoints(9, 18, 9, false)});
    file.refer(map, "dimg", {base, base});
    file.refer(file.add("Exif", joined({Bytes(4), makeExif({.orientation = 6})}), {}), "cdsc", {map});
    return file.bytes(map);
}

Bytes tracks()
{
    MadeTrack track;
    track.codingName = "avc1";
    track.picture = makeAvcItem(cornerColours({64, 48}, false));
    track.width = 64;
    track.height = 48;
    track.clockwiseQuarters = 1;
    MadeTrack opacity = track;
    opacity.isAuxiliary = true;
    opacity.offsets = MadeTrack::Offsets::Long;
    return fileOfTracks({opacity, track});
}

Bytes profile()
{
    const Profile srgb(cmsCreate_sRGBProfile());
    return savedProfile(srgb.get());
}

std::vector<Bytes> photos()
{
    const Bytes exif = makeExif({.orientation = 6, .makerNoteLength = 40, .previewLength = 20});
    const std::string packet = "<?xpacket begin='' id=''?><x:xmpmeta xmlns:x='adobe:ns:meta/'><rdf:RDF>"
                               "<rdf:Description tiff:Orientation='6'><exif:PixelXDimension>64"
                               "</exif:PixelXDimension><dc:title>" +
                               std::string(600, 'X') + "</dc:title></rdf:Description></rdf:RDF></x:xmpmeta>";
    const Bytes xmp(packet.begin(), packet.end());
    const Raster picture = cornerColours({40, 30}, true);
    const PhotoRecipe recipes[] = {
        {.size = {64, 48}},
        {.size = {65, 47}, .chroma = PhotoRecipe::Chroma::Full, .orientation = 6},
        {.size = {64, 64}, .chroma = PhotoRecipe::Chroma::None},
        {.size = {64, 64}, .hasAlpha = true, .iccProfile = profile(), .exif = exif, .xmp = xmp},
        {.size = {64, 64}, .codec = PhotoRecipe::Codec::Av1},
    };
    std::vector<Bytes> all = {derivedPhoto(),
                              avcPhoto(),
                              gridOfHighDynamicRange(),
                              toneMap(),
                              tracks(),
                              makeJpeg(picture, {profile(), exif, xmp}),
                              makePng(picture, {profile(), exif, xmp})};
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
