#include "Xmp.h"

#include "MagicBytes.h"

extern "C" {
#include <libavutil/md5.h>
}

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace imageworker {

namespace {

Bytes joined(std::string_view prefix, std::string_view content)
{
    Bytes bytes(prefix.begin(), prefix.end());
    bytes.insert(bytes.end(), content.begin(), content.end());
    return bytes;
}

/// @p packet without the processing instructions around it and the padding.
std::string_view withoutWrapper(std::string_view packet)
{
    constexpr std::string_view Instruction = "<?xpacket";
    if (const std::size_t last = packet.rfind(Instruction); last != std::string_view::npos && last > 0) {
        packet = packet.substr(0, last);
    }
    if (packet.starts_with(Instruction)) {
        packet.remove_prefix(std::min(packet.find("?>"), packet.size() - 2) + 2);
    }
    const std::size_t end = packet.find_last_not_of(" \t\r\n");
    return packet.substr(0, end == std::string_view::npos ? 0 : end + 1);
}

/// The MD5 of @p text in capital hexadecimal digits.
std::string digestOf(std::string_view text)
{
    std::array<std::uint8_t, 16> digest = {};
    av_md5_sum(digest.data(), reinterpret_cast<const std::uint8_t *>(text.data()), text.size());
    std::string digits;
    for (const std::uint8_t byte : digest) {
        constexpr std::string_view Digits = "0123456789ABCDEF";
        digits += Digits[byte >> 4];
        digits += Digits[byte & 15];
    }
    return digits;
}

std::string bigEndian(std::size_t value)
{
    std::string bytes;
    for (const unsigned shift : {24U, 16U, 8U, 0U}) {
        bytes += static_cast<char>(value >> shift & 0xFF);
    }
    return bytes;
}

/// A property of a packet: an attribute (name="6") with the blank before it, or an element (<name>6</name>).
struct Property
{
    std::size_t start = 0;
    std::size_t valueStart = 0;
    std::size_t valueEnd = 0;
    std::size_t end = 0;
    bool hasValue = true; ///< unlike <name/>
};

Property element(std::string_view text, std::string_view name, std::size_t start)
{
    const std::size_t tagEnd = text.find('>', start);
    if (tagEnd == std::string_view::npos || text[tagEnd - 1] == '/') {
        return {start, tagEnd, tagEnd, tagEnd + 1, false};
    }
    const std::string closing = "</" + std::string(name) + '>';
    const std::size_t valueEnd = text.find(closing, tagEnd);
    return {start, tagEnd + 1, valueEnd, valueEnd + closing.size()};
}

Property attribute(std::string_view text, std::size_t start, std::size_t assignment)
{
    const std::size_t quote = text.find_first_of("\"'", assignment);
    const std::size_t end = quote == std::string_view::npos ? quote : text.find(text[quote], quote + 1);
    return {start, quote + 1, end, end + 1};
}

/// The first property of @p name from @p position on; nothing when there is none or the packet breaks off in
/// it.
std::optional<Property> findProperty(std::string_view text, std::string_view name, std::size_t position)
{
    constexpr std::string_view Blank = " \t\r\n";
    for (std::size_t found = text.find(name, std::max<std::size_t>(position, 1));
         found != std::string_view::npos; found = text.find(name, found + name.size())) {
        const std::size_t after = found + name.size();
        const std::size_t next = std::min(text.find_first_not_of(Blank, after), text.size() - 1);
        std::optional<Property> property;
        if (text[found - 1] == '<' && (next > after || text[next] == '>' || text[next] == '/')) {
            property = element(text, name, found - 1);
        } else if (Blank.find(text[found - 1]) != std::string_view::npos && text[next] == '=') {
            property = attribute(text, found - 1, next);
        }
        if (property) {
            return property->valueEnd == std::string_view::npos ? std::nullopt : property;
        }
    }
    return std::nullopt;
}

/// @p text with @p value for every property of @p name, or without them.
std::string edited(std::string_view text, std::string_view name, std::optional<std::string_view> value)
{
    std::string result;
    std::size_t copied = 0;
    while (const auto property = findProperty(text, name, copied)) {
        const bool isKept = value && property->hasValue;
        result.append(text, copied, (isKept ? property->valueStart : property->start) - copied);
        result.append(isKept ? *value : "");
        copied = isKept ? property->valueEnd : property->end;
    }
    return result.append(text, copied);
}

} // namespace

void describeCopyInXmp(Bytes &xmp, PixelSize size)
{
    // Other parts of the photo's file, which the copy does not have.
    constexpr std::array Removed = {"Container:Directory",
                                    "GCamera:MicroVideo",
                                    "GCamera:MicroVideoOffset",
                                    "GCamera:MicroVideoPresentationTimestampUs",
                                    "GCamera:MicroVideoVersion",
                                    "GCamera:MotionPhoto",
                                    "GCamera:MotionPhotoPresentationTimestampUs",
                                    "GCamera:MotionPhotoVersion",
                                    "hdrgm:Version",
                                    "xmpNote:HasExtendedXMP"};
    const std::string width = std::to_string(size.width);
    const std::string height = std::to_string(size.height);
    std::string text(xmp.begin(), xmp.end());
    for (const auto &[name, value] : {std::pair<const char *, std::string_view>("tiff:Orientation", "1"),
                                      {"tiff:ImageWidth", width},
                                      {"tiff:ImageLength", height},
                                      {"exif:PixelXDimension", width},
                                      {"exif:PixelYDimension", height},
                                      {"exif:ColorSpace", "1"}}) {
        text = edited(text, name, value);
    }
    for (const char *name : Removed) {
        text = edited(text, name, std::nullopt);
    }
    xmp.assign(text.begin(), text.end());
}

std::vector<Bytes> xmpSegments(const Bytes &xmp, std::size_t longest)
{
    if (xmp.empty()) {
        return {};
    }
    const std::string packet(xmp.begin(), xmp.end());
    if (JpegXmpStart.size() + packet.size() <= longest) {
        return {joined(JpegXmpStart, packet)};
    }
    const std::string_view content = withoutWrapper(packet);
    const std::string digest = digestOf(content);
    std::vector<Bytes> segments = {
        joined(JpegXmpStart,
               "<?xpacket begin=\"\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?><x:xmpmeta xmlns:x=\"adobe:ns:meta/\">"
               "<rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">"
               "<rdf:Description rdf:about=\"\" xmlns:xmpNote=\"http://ns.adobe.com/xmp/note/\""
               " xmpNote:HasExtendedXMP=\"" +
                   digest + "\"/></rdf:RDF></x:xmpmeta><?xpacket end=\"w\"?>")};
    const std::string start = std::string(JpegExtendedXmpStart) + digest + bigEndian(content.size());
    const std::size_t room = longest - start.size() - bigEndian(0).size();
    for (std::size_t offset = 0; offset < content.size(); offset += room) {
        segments.push_back(joined(start + bigEndian(offset), content.substr(offset, room)));
    }
    return segments;
}

} // namespace imageworker
