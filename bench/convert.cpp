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

struct Order
{
    QString source;
    QString folder;
    ConversionSettings settings;
};

std::optional<Order> readOrder(const QStringList &arguments)
{
    if (arguments.size() < 4 || arguments.size() > 5) {
        return std::nullopt;
    }
    Order order{.source = QFileInfo(arguments[1]).absoluteFilePath(),
                .folder = QFileInfo(arguments[2]).absoluteFilePath(),
                .settings = {}};
    const auto format = optionFromRawValue<OutputFormat>(arguments[3].toUpper());
    bool isNumber = true;
    if (arguments.size() == 5) {
        order.settings.jpegQuality = arguments[4].toDouble(&isNumber);
    }
    if (!format || !isNumber) {
        return std::nullopt;
    }
    order.settings.format = *format;
    return order;
}

/// The engine places copies beside or below the source. A passing folder with two links, the photo and its
/// subfolder, makes FOLDER the place where they go.
ConversionOutcome convertInto(const Order &order)
{
    const auto engine = ConversionEngine::create(ImageWorkerLauncher::create());
    engine->prepare();
    const QTemporaryDir passing(QDir(order.folder).filePath(QStringLiteral(".convert-XXXXXX")));
    const QDir links(passing.path());
    const QString photo = links.filePath(QFileInfo(order.source).fileName());
    if (!passing.isValid() || !QFile::link(order.source, photo) ||
        !QFile::link(order.folder, links.filePath(QStringLiteral("Lumaport")))) {
        return tl::unexpected(ConversionError::cannotWriteImage);
    }
    ConversionOutcome result;
    QEventLoop loop;
    engine->convert(QUrl::fromLocalFile(photo), order.settings, &loop, [&](const ConversionOutcome &outcome) {
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
    QTextStream errors(stderr);
    const auto order = readOrder(QCoreApplication::arguments());
    if (!order) {
        errors << "usage: convert SOURCE FOLDER png|jpeg [QUALITY]\n";
        return 2;
    }
    const ConversionOutcome outcome = convertInto(*order);
    if (!outcome) {
        errors << description(outcome.error()) << '\n';
        return 1;
    }
    QTextStream(stdout) << QDir(order->folder).filePath(outcome->outputURL.fileName()) << '\n';
    return 0;
}
