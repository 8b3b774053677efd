#include "WorkerConversionEngine.h"

#include "FileOperations.h"
#include "ImageWorker.h"
#include "ImageWorkerLauncher.h"
#include "PhotoFile.h"
#include "PhotoFileName.h"
#include "ScratchFile.h"

#include <QFileInfo>
#include <QPointer>

namespace {

ImageFormat imageFormat(OutputFormat format)
{
    return format == OutputFormat::jpeg ? ImageFormat::Jpeg : ImageFormat::Png;
}

QString outputExtension(OutputFormat format)
{
    return format == OutputFormat::jpeg ? QStringLiteral("jpg") : QStringLiteral("png");
}

QString folderOf(const QUrl &file)
{
    return QFileInfo(file.toLocalFile()).path();
}

/// "name.ext", then "name 2.ext", "name 3.ext" and so on.
QString numberedName(const QString &base, const QString &extension, int number)
{
    QString name = base;
    if (number > 1) {
        name += QLatin1Char(' ') + QString::number(number);
    }
    return extension.isEmpty() ? name : name + QLatin1Char('.') + extension;
}

/// Offers the names one after another until `use` takes one with anything but `std::errc::file_exists`: a
/// name that was free a moment ago may be taken by now.
template<typename Use>
tl::expected<QString, std::error_code> useFirstFreeName(const QString &folder, const QString &base,
                                                        const QString &extension, Use use)
{
    for (int number = 1;; ++number) {
        const QString path = FileOperations::pathIn(folder, numberedName(base, extension, number));
        if (FileOperations::exists(path)) {
            continue;
        }
        const std::error_code error = use(path);
        if (!error) {
            return path;
        }
        if (error != std::errc::file_exists) {
            return tl::unexpected(error);
        }
    }
}

/// The folder that the output goes into, made when it is missing; else the file system's error.
tl::expected<QString, std::error_code> makeOutputDirectory(const QUrl &sourceURL, OutputLocation location)
{
    const QString sourceFolder = folderOf(sourceURL);
    if (location == OutputLocation::alongside) {
        return sourceFolder;
    }
    const QString folder = FileOperations::pathIn(sourceFolder, QStringLiteral("Lumaport"));
    if (const std::error_code error = FileOperations::createFolder(folder)) {
        return tl::unexpected(error);
    }
    return folder;
}

ConversionFailure failureOf(ImageWorkerFault fault)
{
    switch (fault) {
    case ImageWorkerFault::Unreadable:
        return ConversionError::unreadableImage;
    case ImageWorkerFault::CannotWrite:
        return ConversionError::cannotWriteImage;
    case ImageWorkerFault::NotLockedDown:
        return UnsafeToOpen();
    }
    Q_UNREACHABLE();
}

bool archive(const QUrl &source)
{
    const QString originals = FileOperations::pathIn(folderOf(source), QStringLiteral("Originals"));
    if (FileOperations::createFolder(originals)) {
        return false;
    }
    const QString fileName = source.fileName();
    return useFirstFreeName(
               originals, PhotoFileName::base(fileName), PhotoFileName::extension(fileName),
               [&source](const QString &path) { return FileOperations::move(source.toLocalFile(), path); })
        .has_value();
}

} // namespace

std::unique_ptr<ConversionEngine> ConversionEngine::create(std::shared_ptr<ImageWorkerLauncher> launcher)
{
    return std::make_unique<WorkerConversionEngine>(std::move(launcher));
}

WorkerConversionEngine::WorkerConversionEngine(std::shared_ptr<ImageWorkerLauncher> launcher)
    : m_launcher(std::move(launcher))
{
    m_executor.setMaxThreadCount(1);
}

WorkerConversionEngine::~WorkerConversionEngine()
{
    m_executor.clear();
    m_launcher->endAll();
    m_executor.waitForDone();
}

void WorkerConversionEngine::convert(const QUrl &sourceURL, const ConversionSettings &settings,
                                     QObject *receiver, std::function<void(const ConversionOutcome &)> done)
{
    ++m_waiting;
    m_executor.start([this, sourceURL, settings, receiver = QPointer(receiver), done = std::move(done)] {
        if (--m_waiting > 0) {
            prepare(); // the next photo's worker gets ready while this one is busy
        }
        const ConversionOutcome outcome = convertNow(sourceURL, settings);
        QMetaObject::invokeMethod(
            this,
            [receiver, done, outcome] {
                if (receiver) {
                    done(outcome);
                }
            },
            Qt::QueuedConnection);
    });
}

void WorkerConversionEngine::prepare()
{
    m_launcher->prepare();
}

ConversionOutcome WorkerConversionEngine::convertNow(const QUrl &sourceURL,
                                                     const ConversionSettings &settings)
{
    const QString fileName = sourceURL.fileName();
    if (!PhotoFileName::isHeic(fileName)) {
        return tl::unexpected(ConversionError::unsupportedFile);
    }
    const auto image = render(sourceURL, settings);
    if (!image && image.error() != ConversionFailure(ConversionError::cannotWriteImage)) {
        return tl::unexpected(image.error());
    }
    const auto folder = makeOutputDirectory(sourceURL, settings.outputLocation);
    if (!folder) {
        return tl::unexpected(folder.error());
    }
    if (!image) {
        return tl::unexpected(image.error());
    }
    const auto output =
        useFirstFreeName(*folder, PhotoFileName::base(fileName), outputExtension(settings.format),
                         [&image](const QString &path) { return image->placeAs(path); });
    if (!output) {
        return tl::unexpected(ConversionError::cannotWriteImage);
    }
    if (settings.originalPolicy == OriginalPolicy::archive && !archive(sourceURL)) {
        return tl::unexpected(ConversionError::cannotArchiveOriginal);
    }
    return ConversionResult{.sourceURL = sourceURL, .outputURL = QUrl::fromLocalFile(*output)};
}

tl::expected<ScratchFile, ConversionFailure>
WorkerConversionEngine::render(const QUrl &sourceURL, const ConversionSettings &settings)
{
    const FileDescriptor photo = openPhoto(sourceURL);
    if (!photo.isOpen()) {
        return tl::unexpected(ConversionError::unreadableImage);
    }
    const std::unique_ptr<ImageWorker> worker = m_launcher->launch();
    if (const auto size = worker->open(photo); !size) {
        return tl::unexpected(failureOf(size.error()));
    }
    auto scratch = ScratchFile::create(folderOf(sourceURL));
    if (!scratch) {
        return tl::unexpected(ConversionError::cannotWriteImage);
    }
    const auto written =
        worker->write(scratch->descriptor(), imageFormat(settings.format), settings.jpegQuality);
    if (!written) {
        return tl::unexpected(failureOf(written.error()));
    }
    return std::move(*scratch);
}
