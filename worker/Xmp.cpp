#include "Xmp.h"

#include <string>
#include <string_view>

namespace imageworker {

namespace {

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

} // namespace imageworker
