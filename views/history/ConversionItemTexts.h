#pragma once

#include "ConversionItem.h"

/// How one entry of the history is shown, wherever it is.
namespace ConversionItemTexts {

/// The converted file's name, else the source's.
QString displayName(const ConversionItem &item);
/// The converted file, else the source.
QUrl displayFile(const ConversionItem &item);
QString statusSymbol(const ConversionItem &item);
/// A failed entry shows its message, or `withoutMessage` when it has none.
QString statusText(const ConversionItem &item, const QString &withoutMessage);

} // namespace ConversionItemTexts
