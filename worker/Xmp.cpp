#include "Xmp.h"

extern "C" {
#include <libavutil/md5.h>
}

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace imageworker {

namespace {

constexpr std::string_view MainPrefix("http://ns.adobe.com/xap/1.0/\0", 29);
constexpr std::string_view ExtensionPrefix("http://ns.adobe.com/xmp/extension/\0", 35);

Bytes joined(std::string_view prefix, std::string_view content)
{
    Bytes bytes(prefix.begin(), prefix.end());
    bytes.insert(bytes.end(), content.begin(), content.end());
    return bytes;
}

/// Without the processing instructions around it and the blanks that leave room for changes.
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

/// Replaces every value of @p property, which may be an attribute (name="6") or an element (<name>6</name>).
void replaceValue(std::string &text, std::string_view property, std::string_view value)
{
    constexpr std::string_view Blank = " \t\r\n";
    for (std::size_t found = text.find(property); found != std::string::npos;
         found = text.find(property, found)) {
        const bool isElement = found > 0 && text[found - 1] == '<';
        found += property.size();
        std::size_t start = text.find_first_not_of(Blank, found);
        if (start == std::string::npos) {
            return;
        }
        char last = '<';
        if (isElement && text[start] == '>') {
            ++start;
        } else if (!isElement && text[start] == '=') {
            start = text.find_first_of("\"'", start);
            if (start == std::string::npos) {
                return;
            }
            last = text[start++];
        } else {
            continue;
        }
        const std::size_t end = text.find(last, start);
        if (end == std::string::npos) {
            return;
        }
        text.replace(start, end - start, value);
        found = start;
    }
}

} // namespace

void describeCopyInXmp(Bytes &xmp, PixelSize size)
{
    std::string text(xmp.begin(), xmp.end());
    const std::string width = std::to_string(size.width);
    const std::string height = std::to_string(size.height);
    replaceValue(text, "tiff:Orientation", "1");
    replaceValue(text, "tiff:ImageWidth", width);
    replaceValue(text, "tiff:ImageLength", height);
    replaceValue(text, "exif:PixelXDimension", width);
    replaceValue(text, "exif:PixelYDimension", height);
    replaceValue(text, "exif:ColorSpace", "1");
    xmp.assign(text.begin(), text.end());
}

std::vector<Bytes> xmpSegments(const Bytes &xmp, std::size_t longest)
{
    if (xmp.empty()) {
        return {};
    }
    const std::string packet(xmp.begin(), xmp.end());
    if (MainPrefix.size() + packet.size() <= longest) {
        return {joined(MainPrefix, packet)};
    }
    const std::string_view content = withoutWrapper(packet);
    const std::string digest = digestOf(content);
    std::vector<Bytes> segments = {
        joined(MainPrefix,
               "<?xpacket begin=\"\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?><x:xmpmeta xmlns:x=\"adobe:ns:meta/\">"
               "<rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">"
               "<rdf:Description rdf:about=\"\" xmlns:xmpNote=\"http://ns.adobe.com/xmp/note/\""
               " xmpNote:HasExtendedXMP=\"" +
                   digest + "\"/></rdf:RDF></x:xmpmeta><?xpacket end=\"w\"?>")};
    const std::string start = std::string(ExtensionPrefix) + digest + bigEndian(content.size());
    const std::size_t room = longest - start.size() - bigEndian(0).size();
    for (std::size_t offset = 0; offset < content.size(); offset += room) {
        segments.push_back(joined(start + bigEndian(offset), content.substr(offset, room)));
    }
    return segments;
}

} // namespace imageworker
