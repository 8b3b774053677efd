#include "TrackReader.h"

#include "Boxes.h"
#include "CodecConfiguration.h"
#include "PictureProperties.h"

namespace imageworker {

namespace {

/// What one track says about its first sample.
struct Track
{
    std::uint32_t handler = 0;
    bool isAuxiliary = false;
    std::uint32_t codingName = 0;
    PixelSize size;
    ItemProperty configuration = {0, std::make_shared<const Bytes>()};
    ColourDescription colour;
    Bytes cleanAperture;
    unsigned quarterTurns = 0; ///< anticlockwise
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
            const auto record = payload.rest();
            track.configuration = {type, std::make_shared<const Bytes>(record.begin(), record.end())};
        } else if (type == fourCharacters("colr")) {
            readColour(payload.rest(), track.colour);
        } else if (type == fourCharacters("clap")) {
            track.cleanAperture.assign(payload.rest().begin(), payload.rest().end());
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

/// Track header box, ISO/IEC 14496-12, 8.3.2. Only quarter turns are read from its matrix.
bool readTrackHeader(ByteReader reader, Track &track)
{
    constexpr std::int32_t One = 0x10000;
    const unsigned version = readFullBoxHeader(reader).version;
    reader.take(version == 1 ? 32 : 20); // times, number, duration
    reader.take(16);                     // reserved, layer, group, volume
    const auto a = static_cast<std::int32_t>(reader.u32());
    const auto b = static_cast<std::int32_t>(reader.u32());
    if (a == 0 && b != 0) {
        track.quarterTurns = b == One ? 3 : 1;
    } else if (a == -One) {
        track.quarterTurns = 2;
    }
    return !reader.failed();
}

/// Reads a box of type @p type, the child of a box of type @p parent. Each type counts only in its own
/// parent.
bool readTrackBox(std::uint32_t parent, std::uint32_t type, ByteReader payload, Track &track)
{
    const auto descend = [&track, type](std::uint32_t childType, ByteReader child) {
        return readTrackBox(type, childType, child, track);
    };
    switch (parent) {
    case fourCharacters("moov"):
        return type != fourCharacters("trak") || forEachBox(payload, descend);
    case fourCharacters("trak"):
        if (type == fourCharacters("tkhd")) {
            return readTrackHeader(payload, track);
        }
        return type != fourCharacters("mdia") || forEachBox(payload, descend);
    case fourCharacters("mdia"):
        if (type == fourCharacters("hdlr")) {
            payload.take(8); // version, flags, pre-defined
            track.handler = payload.u32();
            return !payload.failed();
        }
        return type != fourCharacters("minf") || forEachBox(payload, descend);
    case fourCharacters("minf"):
        return type != fourCharacters("stbl") || forEachBox(payload, descend);
    case fourCharacters("stbl"):
        return readSampleTableChild(type, payload, track);
    default:
        return true;
    }
}

Result<Picture> pictureOf(const Track &track)
{
    CodedPicture coded;
    if (!isAcceptable(track.size.width, track.size.height) ||
        !readCodecConfiguration(track.codingName, &track.configuration, coded)) {
        return unreadable();
    }
    coded.data = {track.sample};
    Picture picture = pictureOf(std::move(coded), track.size);
    if (!track.cleanAperture.empty() &&
        !applyCleanAperture(ByteReader(track.cleanAperture), picture.transformation)) {
        return unreadable();
    }
    picture.transformation.rotateAnticlockwise(track.quarterTurns);
    picture.colour = track.colour;
    return picture;
}

} // namespace

Result<Picture> readFirstPictureOfTrack(const LoadedBox &movie)
{
    Result<Picture> picture = unreadable();
    const bool areSound = forEachBox(ByteReader(movie.payload), [&](std::uint32_t type, ByteReader payload) {
        if (type != fourCharacters("trak") || picture) {
            return true;
        }
        Track track;
        const bool isSound = readTrackBox(fourCharacters("moov"), type, payload, track);
        const bool showsPictures =
            track.handler == fourCharacters("pict") || track.handler == fourCharacters("vide");
        if (isSound && showsPictures && !track.isAuxiliary) {
            picture = pictureOf(track);
        }
        return isSound || !showsPictures;
    });
    return areSound ? std::move(picture) : unreadable();
}

} // namespace imageworker
