#include "MadeTracks.h"

namespace imageworker {

namespace {

/// ISO/IEC 14496-12, 12.1.3: the description of samples that are pictures.
Bytes sampleDescription(const MadeTrack &track)
{
    const auto &properties = track.picture.properties;
    Bytes entry = joined(
        {Bytes(6), bigEndian(1, 2), Bytes(16), numbers(2, {track.size.width, track.size.height}), Bytes(50)});
    for (const HeifFile::Property &property : properties) {
        if (property.type == "colr" || property.type == "clap" || &property == &properties.front()) {
            entry = joined({entry, box(property.type, property.payload)});
        }
    }
    if (track.isAuxiliary) {
        entry = joined({entry, box("auxi", opacityRole().payload)});
    }
    return fullBox("stsd", 0, joined({bigEndian(1, 4), box(track.picture.type, entry)}));
}

/// ISO/IEC 14496-12, 8.3.2.
Bytes trackHeader(unsigned clockwiseQuarters)
{
    constexpr std::int32_t One = 0x10000;
    constexpr std::int32_t Sines[] = {0, One, 0, -One};
    const std::int32_t sine = Sines[clockwiseQuarters % 4];
    const std::int32_t cosine = Sines[(clockwiseQuarters + 1) % 4];
    const Bytes matrix = numbers(4, {cosine, sine, 0, -sine, cosine, 0, 0, 0, 0x40000000});
    return fullBox("tkhd", 0, joined({Bytes(36), matrix, Bytes(8)}));
}

Bytes trackBox(const MadeTrack &track, std::size_t offset)
{
    const auto length = static_cast<std::int64_t>(track.picture.data.size());
    const Bytes sizes =
        numbers(4, track.hasCommonSize ? std::vector{length, std::int64_t{1}}
                                       : std::vector{std::int64_t{0}, std::int64_t{1}, length});
    const Bytes offsets = joined({bigEndian(1, 4), bigEndian(offset, track.hasLongOffsets ? 8 : 4)});
    const Bytes samples = joined({sampleDescription(track), fullBox("stsz", 0, sizes),
                                  fullBox(track.hasLongOffsets ? "co64" : "stco", 0, offsets)});
    const Bytes handler = fullBox("hdlr", 0, joined({Bytes(4), bytesOf(track.handler), Bytes(13)}));
    const Bytes media = joined({handler, box("minf", box("stbl", samples))});
    return box("trak", joined({trackHeader(track.clockwiseQuarters), box("mdia", media)}));
}

Bytes movie(const std::vector<MadeTrack> &tracks, std::size_t offset)
{
    Bytes boxes;
    for (const MadeTrack &track : tracks) {
        boxes = joined({boxes, trackBox(track, offset)});
        offset += track.picture.data.size();
    }
    return box("moov", boxes);
}

} // namespace

Bytes fileOfTracks(const std::vector<MadeTrack> &tracks)
{
    const Bytes type = box("ftyp", joined({bytesOf("msf1"), Bytes(4), bytesOf("msf1hevc")}));
    constexpr std::size_t HeaderOfMediaData = 8;
    Bytes media;
    for (const MadeTrack &track : tracks) {
        media = joined({media, track.picture.data});
    }
    const std::size_t start = type.size() + movie(tracks, 0).size() + HeaderOfMediaData;
    return joined({type, movie(tracks, start), box("mdat", media)});
}

} // namespace imageworker
