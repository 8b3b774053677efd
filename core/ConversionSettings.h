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
struct OptionCases<OutputFormat>
{
    static constexpr std::array<OptionCase<OutputFormat>, 2> cases{{
        {OutputFormat::png, "PNG"},
        {OutputFormat::jpeg, "JPEG"},
    }};
};

template<>
struct OptionCases<OutputLocation>
{
    static constexpr std::array<OptionCase<OutputLocation>, 2> cases{{
        {OutputLocation::alongside, "Beside originals"},
        {OutputLocation::convertedFolder, "Lumaport folder"},
    }};
};

template<>
struct OptionCases<OriginalPolicy>
{
    static constexpr std::array<OptionCase<OriginalPolicy>, 2> cases{{
        {OriginalPolicy::keep, "Keep originals"},
        {OriginalPolicy::archive, "Move to Originals"},
    }};
};

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
