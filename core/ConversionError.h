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

/// The image worker could not be locked down, so no photo was given to it.
struct UnsafeToOpen
{
    bool operator==(const UnsafeToOpen &) const = default;
};

/// What a conversion raises: an error of its own, or the file system's, unchanged.
using ConversionFailure = std::variant<ConversionError, std::error_code, UnsafeToOpen>;

/// The sentence that the user reads; the only place where one is made.
QString description(const ConversionFailure &failure);
