// burst SOURCE COUNT png|jpeg: sends COUNT photos like SOURCE through the conversion engine at once, as when
// a phone sends an album. Prints seconds from the first to the last, and how many could not be converted.

#include "ConversionEngine.h"
#include "ImageWorkerLauncher.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTextStream>

namespace {

struct Outcome
{
    double seconds = 0;
    int failed = 0;
};

Outcome convertAll(const QString &source, int count, const ConversionSettings &settings)
{
    const QTemporaryDir folder;
    const auto engine = ConversionEngine::create(ImageWorkerLauncher::create());
    QEventLoop loop;
    Outcome outcome;
    int left = count;
    QElapsedTimer timer;
    timer.start();
    for (int number = 1; number <= count; ++number) {
        const QString photo = folder.filePath(QStringLiteral("IMG_%1.HEIC").arg(number));
        QFile::link(source, photo);
        engine->convert(QUrl::fromLocalFile(photo), settings, &loop, [&](const ConversionOutcome &done) {
            outcome.failed += done ? 0 : 1;
            if (--left == 0) {
                loop.quit();
            }
        });
    }
    loop.exec();
    outcome.seconds = static_cast<double>(timer.nsecsElapsed()) / 1e9;
    return outcome;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const auto format =
        arguments.size() == 4 ? optionFromRawValue<OutputFormat>(arguments[3].toUpper()) : std::nullopt;
    const int count = format ? arguments[2].toInt() : 0;
    if (count < 1) {
        QTextStream(stderr) << "usage: burst SOURCE COUNT png|jpeg\n";
        return 2;
    }
    ConversionSettings settings;
    settings.format = *format;
    const Outcome outcome = convertAll(QFileInfo(arguments[1]).absoluteFilePath(), count, settings);
    QTextStream(stdout) << outcome.seconds << " s, " << outcome.failed << " failed\n";
    return outcome.failed == 0 ? 0 : 1;
}
