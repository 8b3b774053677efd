#include "ConversionError.h"

#include <QCoreApplication>

namespace {

QString sentence(const char *text)
{
    return QCoreApplication::translate("ConversionError", text);
}

QString describe(ConversionError error)
{
    switch (error) {
    case ConversionError::unsupportedFile:
        return sentence(QT_TRANSLATE_NOOP("ConversionError", "This file is not a HEIC or HEIF image."));
    case ConversionError::unreadableImage:
        return sentence(QT_TRANSLATE_NOOP("ConversionError",
                                          "The image could not be opened. It may still be transferring."));
    case ConversionError::cannotCreateDestination:
        return sentence(
            QT_TRANSLATE_NOOP("ConversionError", "Lumaport could not create the converted file."));
    case ConversionError::cannotWriteImage:
        return sentence(QT_TRANSLATE_NOOP("ConversionError", "The converted image could not be written."));
    case ConversionError::cannotArchiveOriginal:
        return sentence(QT_TRANSLATE_NOOP("ConversionError",
                                          "The image converted, but its original could not be archived."));
    }
    Q_UNREACHABLE();
}

QString describe(const std::error_code &error)
{
    return QString::fromLocal8Bit(QByteArray::fromStdString(error.message()));
}

QString describe(UnsafeToOpen /*unsafe*/)
{
    return sentence(QT_TRANSLATE_NOOP(
        "ConversionError", "Photos can’t be opened safely on this system, so nothing was converted."));
}

} // namespace

QString description(const ConversionFailure &failure)
{
    return std::visit([](const auto &each) { return describe(each); }, failure);
}
