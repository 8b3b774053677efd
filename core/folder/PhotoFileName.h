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

/// The name of a file or folder as texts show it: in one line, and isolated from the text around it when it
/// has letters that are written from right to left.
QString shown(const QString &fileName);

/// "base.extension", and "base 2.extension" for the number 2. A base that makes it longer than a file system
/// takes is shortened, by whole characters.
QString numbered(const QString &base, const QString &extension, int number);

} // namespace PhotoFileName
