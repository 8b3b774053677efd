#include "ConversionItemTexts.h"

#include "PhotoFileName.h"

#include <QCoreApplication>

namespace ConversionItemTexts {

QString displayName(const ConversionItem &item)
{
    return PhotoFileName::shown(item.outputName.value_or(item.sourceName));
}

QUrl displayFile(const ConversionItem &item)
{
    return item.outputURL.value_or(item.sourceURL);
}

QString statusSymbol(const ConversionItem &item)
{
    switch (item.status) {
    case ConversionStatus::queued:
        return QStringLiteral("clock");
    case ConversionStatus::converting:
        return QStringLiteral("arrow.triangle.2.circlepath");
    case ConversionStatus::ready:
        return QStringLiteral("checkmark");
    case ConversionStatus::failed:
        return QStringLiteral("exclamationmark.triangle");
    }
    Q_UNREACHABLE();
}

QString statusText(const ConversionItem &item, const QString &withoutMessage)
{
    switch (item.status) {
    case ConversionStatus::queued:
        return QCoreApplication::translate("ConversionItem", "Waiting to convert");
    case ConversionStatus::converting:
        return QCoreApplication::translate("ConversionItem", "Converting on your Mac");
    case ConversionStatus::ready:
        return QCoreApplication::translate("ConversionItem", "Ready to use");
    case ConversionStatus::failed:
        return item.errorMessage.value_or(withoutMessage);
    }
    Q_UNREACHABLE();
}

} // namespace ConversionItemTexts
