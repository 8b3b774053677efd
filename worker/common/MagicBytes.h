#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace imageworker {

/// What a PNG starts with (W3C PNG, 5.2).
inline constexpr std::array<std::uint8_t, 8> PngSignature = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};

/// What a JPEG starts with: its first marker and the start of the next (ITU-T T.81, B.1.1.3).
inline constexpr std::array<std::uint8_t, 3> JpegSignature = {0xFF, 0xD8, 0xFF};

/// What an "iTXt" chunk with an XMP packet starts with: its keyword, not compressed, no language, no
/// translation.
inline constexpr std::string_view PngXmpStart("XML:com.adobe.xmp\0\0\0\0\0", 22);

// What the application segments of a JPEG start with (Exif 2.32, 4.7.2; XMP, Storage in Files, 1.1.3;
// ICC.1, B.4).
inline constexpr std::string_view JpegExifStart("Exif\0\0", 6);
inline constexpr std::string_view JpegXmpStart("http://ns.adobe.com/xap/1.0/\0", 29);
inline constexpr std::string_view JpegExtendedXmpStart("http://ns.adobe.com/xmp/extension/\0", 35);
inline constexpr std::string_view JpegIccStart("ICC_PROFILE\0", 12);

} // namespace imageworker
