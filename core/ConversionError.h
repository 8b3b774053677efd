#pragma once

#include <QString>

#include <system_error>
#include <variant>

/// Why a photo was not converted.
enum class ConversionError {
    unsupportedFile,
    unreadableImage,
    cannotCreateDestination,
    cannotWriteImage,
    cannotArchiveOriginal,
};

/// No image worker could be locked down, so none was given the photo.
struct UnsafeToOpen
{
    bool operator==(const UnsafeToOpen &) const = default;
};

/// Why a conversion failed: one of its own errors, or the file system's.
using ConversionFailure = std::variant<ConversionError, std::error_code, UnsafeToOpen>;

/// The sentence that the user reads.
QString description(const ConversionFailure &failure);
