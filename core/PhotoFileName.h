#pragma once

#include <QString>

/// Names of photo files. The content is not looked at.
namespace PhotoFileName {

/// The part after the last point, as written; empty when there is none. A leading point only hides a file.
QString extension(const QString &fileName);

/// The part before the last point.
QString base(const QString &fileName);

/// The extension is "heic" or "heif" in any letter case.
bool isHeic(const QString &fileName);

} // namespace PhotoFileName
