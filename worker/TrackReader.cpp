#include "TrackReader.h"

#include "Boxes.h"
#include "CodecConfiguration.h"
#include "ItemData.h"
#include "PictureProperties.h"

#include <functional>

namespace imageworker {

namespace {

/// What is gathered of one track on the way to its first sample.
struct Track
{
    std::uint32_t handler = 0;
    bool isAuxiliary = false;
    std::uint32_t codingName = 0;
    PixelSize size;
    ItemProperty configuration;
    ColourDescription colour;
    Extent sample;
};

/// Visual sample entry, ISO/IEC 14496-12, 12.1.3.
bool readSampleEntry(std::uint32_t codingName, ByteReader reader, Track &track)
{
    reader.take(24); // reserved, data reference index, pre-defined
    track.codingName = codingName;
    track.size.width = reader.u16();
    track.size.height = reader.u16();
    reader.take(50); // resolutions, frame count, compressor's name, depth
    return !reader.failed() && forEachBox(reader, [&track](std::uint32_t type, ByteReader payload) {
        if (type == configurationTypeOf(track.codingName)) {
            track.configuration = {type, Bytes(payload.rest().begin(), payload.rest().end())};
        } else if (type == fourCharacters("colr")) {
            readColour(payload.rest(), track.colour);
        } else if (type == fourCharacters("auxi")) {
            track.isAuxiliary = true;
        }
        return true;
    });
}

/// Sample description box, ISO/IEC 14496-12, 8.5.2: the first entry.
bool readSampleDescription(ByteReader reader, Track &track)
{
    readFullBoxHeader(reader);
    reader.u32(); // entry count
    return !reader.failed() && forEachBox(reader, [&track](std::uint32_t type, ByteReader payload) {
        return track.codingName != 0 || configurationTypeOf(type) == 0 ||
               readSampleEntry(type, payload, track);
    });
}

/// Sample table boxes, ISO/IEC 14496-12, 8.7.3.2 and 8.7.5: length and place of the first sample.
bool readSampleTableChild(std::uint32_t type, ByteReader payload, Track &track)
{
    switch (type) {
    case fourCharacters("stsd"):
        return readSampleDescription(payload, track);
    case fourCharacters("stsz"): {
        readFullBoxHeader(payload);
        const std::uint32_t commonSize = payload.u32();
        payload.u32(); // sample count
        track.sample.length = commonSize != 0 ? commonSize : payload.u32();
        return !payload.failed();
    }
    case fourCharacters("stco"):
    case fourCharacters("co64"):
        readFullBoxHeader(payload);
        payload.u32(); // entry count
        track.sample.offset = payload.number(type == fourCharacters("stco") ? 4 : 8);
        return !payload.failed();
    default:
        return true;
    }
}

bool readTrackChild(std::uint32_t type, ByteReader payload, Track &track)
{
    const auto descend = [&track](std::uint32_t childType, ByteReader child) {
        return readTrackChild(childType, child, track);
    };
    switch (type) {
    case fourCharacters("mdia"):
    case fourCharacters("minf"):
        return forEachBox(payload, descend);
    case fourCharacters("stbl"):
        return forEachBox(payload, [&track](std::uint32_t childType, ByteReader child) {
            return readSampleTableChild(childType, child, track);
        });
    case fourCharacters("hdlr"):
        payload.take(8); // version, flags, pre-defined
        if (track.handler == 0) {
            track.handler = payload.u32();
        }
        return !payload.failed();
    default:
        return true;
    }
}

Result<Picture> pictureOf(const Source &source, const Track &track)
{
    CodedPicture coded;
    if (!isAcceptable(track.size.width, track.size.height) ||
        !readCodecConfiguration(track.codingName, &track.configuration, coded)) {
        return unreadable();
    }
    coded.data = {track.sample};
    const auto bytes = readAll(source, coded.data);
    if (!bytes || !hasSoundUnits(coded, *bytes)) {
        return unreadable();
    }
    TileGrid grid;
    grid.tile = track.size;
    grid.canvas = track.size;
    grid.tiles.push_back(std::move(coded));
    Picture picture;
    picture.upright = Upright(track.size);
    picture.colour = track.colour;
    picture.content = std::move(grid);
    return picture;
}

} // namespace

Result<Picture> readFirstPictureOfTrack(const Source &source, const LoadedBox &movie)
{
    Result<Picture> picture = unreadable();
    const bool sound = forEachBox(ByteReader(movie.payload), [&](std::uint32_t type, ByteReader payload) {
        if (type != fourCharacters("trak") || picture) {
            return true;
        }
        Track track;
        const bool trackIsSound = forEachBox(payload, [&track](std::uint32_t childType, ByteReader child) {
            return readTrackChild(childType, child, track);
        });
        const bool showsPictures =
            track.handler == fourCharacters("pict") || track.handler == fourCharacters("vide");
        if (trackIsSound && showsPictures && !track.isAuxiliary) {
            picture = pictureOf(source, track);
        }
        return trackIsSound;
    });
    return sound ? std::move(picture) : unreadable();
}

} // namespace imageworker
