#include "ConversionError.h"

#include <QCoreApplication>

namespace {

struct Sentence
{
    Q_DECLARE_TR_FUNCTIONS(ConversionError)
};

QString describe(ConversionError error)
{
    switch (error) {
    case ConversionError::unsupportedFile:
        return Sentence::tr("This file is not a HEIC or HEIF image.");
    case ConversionError::unreadableImage:
        return Sentence::tr("The image could not be opened. It may still be transferring.");
    case ConversionError::cannotCreateDestination:
        return Sentence::tr("Lumaport could not create the converted file.");
    case ConversionError::cannotWriteImage:
        return Sentence::tr("The converted image could not be written.");
    case ConversionError::cannotArchiveOriginal:
        return Sentence::tr("The image converted, but its original could not be archived.");
    }
    Q_UNREACHABLE();
}

QString describe(const std::error_code &error)
{
    return QString::fromLocal8Bit(QByteArray::fromStdString(error.message()));
}

QString describe(UnsafeToOpen /*unsafe*/)
{
    return Sentence::tr("Photos can’t be opened safely on this system, so nothing was converted.");
}

} // namespace

QString description(const ConversionFailure &failure)
{
    return std::visit([](const auto &each) { return describe(each); }, failure);
}
