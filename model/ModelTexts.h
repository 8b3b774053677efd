#pragma once

#include <QString>

/// The sentences of the status line.
namespace ModelTexts {

QString waiting();
QString landed(const QString &fileName);
QString ready(const QString &fileName);
QString couldNotConvert(const QString &fileName);
QString dropPhotosHere();
QString historyCleared();
QString couldNotWatch(const QString &folderName);
QString watching(const QString &folderName);
QString noPhotosIn(const QString &folderName);

} // namespace ModelTexts
