#pragma once

#include "OptionEnum.h"
#include "OutputFormat.h"

#include <QByteArray>

/// Where converted files go, relative to the source file's folder.
enum class OutputLocation {
    alongside,       ///< into the source's own folder
    convertedFolder, ///< into its subfolder `Lumaport`
};

/// What happens to the source file after a successful conversion.
enum class OriginalPolicy {
    keep,
    archive, ///< moved into the subfolder `Originals` of its own folder
};

template<>
inline constexpr std::array rawValues<OutputFormat>{"PNG", "JPEG"};
template<>
inline constexpr std::array rawValues<OutputLocation>{"Beside originals", "Lumaport folder"};
template<>
inline constexpr std::array rawValues<OriginalPolicy>{"Keep originals", "Move to Originals"};

/// What the user has set about conversions.
struct ConversionSettings
{
    OutputFormat format = OutputFormat::png;
    OutputLocation outputLocation = OutputLocation::convertedFolder;
    OriginalPolicy originalPolicy = OriginalPolicy::keep;
    /// Fraction of 1, handed unchanged to the JPEG encoder; nothing checks its range.
    double jpegQuality = 0.9;
    bool notificationsEnabled = true;

    bool operator==(const ConversionSettings &) const = default;

    /// One JSON object with five keys named after the fields. None when the quality is no finite number.
    std::optional<QByteArray> toJson() const;
    /// All five keys must be there with the right types and exact texts; other keys are ignored.
    static std::optional<ConversionSettings> fromJson(const QByteArray &json);
};
