#include "WorkerConversionEngine.h"

#include "ConversionActivity.h"
#include "FileOperations.h"
#include "ImageWorker.h"
#include "ImageWorkerLauncher.h"
#include "PhotoFile.h"
#include "PhotoFileName.h"
#include "ScratchFile.h"

#include <QFileInfo>
#include <QPointer>

namespace {

QString outputExtension(OutputFormat format)
{
    return format == OutputFormat::jpeg ? QStringLiteral("jpg") : QStringLiteral("png");
}

QString folderOf(const QUrl &file)
{
    return QFileInfo(file.toLocalFile()).path();
}

/// The path of the first of these names that is free in `folder`.
QString freePath(const QString &folder, const QString &base, const QString &extension)
{
    int number = 1;
    QString path;
    do {
        path = FileOperations::pathIn(folder, PhotoFileName::numbered(base, extension, number));
        ++number;
    } while (FileOperations::exists(path));
    return path;
}

/// A file in `directory` whose name is free, for the archived original.
QUrl uniqueSourceURL(const QString &directory, const QUrl &source)
{
    const QString name = source.fileName();
    return QUrl::fromLocalFile(
        freePath(directory, PhotoFileName::base(name), PhotoFileName::extension(name)));
}

/// Places a file with `place` at the path that `find` returns, and tries again when that name has been taken
/// meanwhile. Returns the path, or the file system's error.
template<typename Find, typename Place>
tl::expected<QString, std::error_code> placeFreely(Find find, Place place)
{
    while (true) {
        const QString path = find();
        const std::error_code error = place(path);
        if (!error) {
            return path;
        }
        if (error != std::errc::file_exists) {
            return tl::unexpected(error);
        }
    }
}

/// The folder of the output, created when it is missing; or the file system's error.
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
    return placeFreely([&] { return uniqueSourceURL(originals, source).toLocalFile(); },
                       [&](const QString &path) { return FileOperations::move(source.toLocalFile(), path); })
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
    // Ends with the job, also when that is dropped.
    auto activity = std::make_shared<ConversionActivity>();
    m_executor.start([this, activity = std::move(activity), sourceURL, settings,
                      receiver = QPointer(receiver), done = std::move(done)] {
        --m_waiting;
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
    const auto output = placeFreely(
        [&] { return freePath(*folder, PhotoFileName::base(fileName), outputExtension(settings.format)); },
        [&](const QString &path) { return image->placeAs(path); });
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
    if (m_waiting > 0) {
        prepare(); // the next photo's worker starts while this one is busy
    }
    if (const auto opened = worker->open(photo); !opened) {
        return tl::unexpected(failureOf(opened.error()));
    }
    auto scratch = ScratchFile::create(folderOf(sourceURL));
    if (!scratch) {
        return tl::unexpected(ConversionError::cannotWriteImage);
    }
    const auto written = worker->write(scratch->descriptor(), settings.format, settings.jpegQuality);
    if (!written) {
        return tl::unexpected(failureOf(written.error()));
    }
    return std::move(*scratch);
}
