#include "MadeTracks.h"

namespace imageworker {

namespace {

Bytes bytesOf(std::string_view text)
{
    return {text.begin(), text.end()};
}

/// ISO/IEC 14496-12, 12.1.3: the description of samples that are pictures.
Bytes sampleDescription(const MadeTrack &track)
{
    Bytes children;
    for (const HeifFile::Property &property : track.picture.properties) {
        if (property.type == "colr" || property.type == "clap" ||
            property.type == track.picture.properties.front().type) {
            children = joined({children, box(property.type, property.payload)});
        }
    }
    if (track.isAuxiliary) {
        children = joined(
            {children,
             fullBox("auxi", 0, joined({bytesOf("urn:mpeg:mpegB:cicp:systems:auxiliary:alpha"), {0}}))});
    }
    const Bytes entry = joined({Bytes(6), bigEndian(1, 2), Bytes(16), bigEndian(track.width, 2),
                                bigEndian(track.height, 2), Bytes(50), children});
    return fullBox("stsd", 0, joined({bigEndian(1, 4), box(track.codingName, entry)}));
}

/// ISO/IEC 14496-12, 8.3.2.
Bytes trackHeader(unsigned clockwiseQuarters)
{
    constexpr std::int32_t One = 0x10000;
    constexpr std::int32_t Sines[] = {0, One, 0, -One};
    const std::int32_t sine = Sines[clockwiseQuarters % 4];
    const std::int32_t cosine = Sines[(clockwiseQuarters + 1) % 4];
    Bytes matrix;
    for (const std::int32_t number : {cosine, sine, 0, -sine, cosine, 0, 0, 0, 0x40000000}) {
        matrix = joined({matrix, bigEndian(static_cast<std::uint32_t>(number), 4)});
    }
    return fullBox("tkhd", 0, joined({Bytes(36), matrix, Bytes(8)}));
}

Bytes trackBox(const MadeTrack &track, std::size_t offset)
{
    const std::size_t length = track.picture.data.size();
    const Bytes sizes = track.sizes == MadeTrack::Sizes::Common
                            ? joined({bigEndian(length, 4), bigEndian(1, 4)})
                            : joined({bigEndian(0, 4), bigEndian(1, 4), bigEndian(length, 4)});
    const bool isLong = track.offsets == MadeTrack::Offsets::Long;
    const Bytes offsets = joined({bigEndian(1, 4), bigEndian(offset, isLong ? 8 : 4)});
    const Bytes samples = box("stbl", joined({sampleDescription(track), fullBox("stsz", 0, sizes),
                                              fullBox(isLong ? "co64" : "stco", 0, offsets)}));
    const Bytes handler = fullBox("hdlr", 0, joined({Bytes(4), bytesOf(track.handler), Bytes(13)}));
    return box("trak", joined({trackHeader(track.clockwiseQuarters),
                               box("mdia", joined({handler, box("minf", samples)}))}));
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
