// convert SOURCE FOLDER png|jpeg [QUALITY]: sends one photo through the conversion engine, as the application
// does. The copy lands in FOLDER, numbered on a clash, and nothing else does. Prints the copy's path, or the
// error's sentence on standard error with exit status 1.

#include "ConversionEngine.h"
#include "ImageWorkerLauncher.h"
#include "WorkerCount.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTextStream>

namespace {

/// The engine writes copies beside or below the source. In a temporary folder it finds a link to the source,
/// and a link to `folder` in place of its own subfolder.
ConversionOutcome convertInto(const QString &folder, const QString &source,
                              const ConversionSettings &settings)
{
    const auto engine = ConversionEngine::create(ImageWorkerLauncher::create());
    engine->prepare();
    const QTemporaryDir temporary(QDir(folder).filePath(QStringLiteral(".convert-XXXXXX")));
    const QString photo = temporary.filePath(QFileInfo(source).fileName());
    if (!temporary.isValid() || !QFile::link(source, photo) ||
        !QFile::link(folder, temporary.filePath(QStringLiteral("Lumaport")))) {
        return tl::unexpected(ConversionError::cannotWriteImage);
    }
    ConversionOutcome result;
    QEventLoop loop;
    engine->convert(QUrl::fromLocalFile(photo), settings, &loop, [&](const ConversionOutcome &outcome) {
        result = outcome;
        loop.quit();
    });
    loop.exec();
    awaitBookingOfWorkers();
    return result;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const auto format = optionFromRawValue<OutputFormat>(arguments.value(3).toUpper());
    ConversionSettings settings;
    bool isNumber = true;
    if (arguments.size() > 4) {
        settings.jpegQuality = arguments[4].toDouble(&isNumber);
    }
    if (!format || !isNumber || arguments.size() > 5) {
        QTextStream(stderr) << "usage: convert SOURCE FOLDER png|jpeg [QUALITY]\n";
        return 2;
    }
    settings.format = *format;
    const QString folder = QFileInfo(arguments[2]).absoluteFilePath();
    const ConversionOutcome outcome =
        convertInto(folder, QFileInfo(arguments[1]).absoluteFilePath(), settings);
    if (!outcome) {
        QTextStream(stderr) << description(outcome.error()) << '\n';
        return 1;
    }
    QTextStream(stdout) << QDir(folder).filePath(outcome->outputURL.fileName()) << '\n';
    return 0;
}
