// burst SOURCE COUNT png|jpeg: sends COUNT photos like SOURCE through the conversion engine at once, as when
// a phone sends an album. Prints seconds from the first to the last, and how many could not be converted.

#include "ConversionEngine.h"
#include "ImageWorkerLauncher.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTextStream>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const auto format = optionFromRawValue<OutputFormat>(arguments.value(3).toUpper());
    const int count = arguments.value(2).toInt();
    if (!format || count < 1) {
        QTextStream(stderr) << "usage: burst SOURCE COUNT png|jpeg\n";
        return 2;
    }
    ConversionSettings settings;
    settings.format = *format;
    const QString source = QFileInfo(arguments[1]).absoluteFilePath();
    const QTemporaryDir folder;
    const auto engine = ConversionEngine::create(ImageWorkerLauncher::create());
    int failed = 0;
    int left = count;
    QElapsedTimer timer;
    timer.start();
    for (int number = 1; number <= count; ++number) {
        const QString photo = folder.filePath(QStringLiteral("IMG_%1.HEIC").arg(number));
        QFile::link(source, photo);
        engine->convert(QUrl::fromLocalFile(photo), settings, qApp, [&](const ConversionOutcome &done) {
            failed += done ? 0 : 1;
            if (--left == 0) {
                QCoreApplication::quit();
            }
        });
    }
    QCoreApplication::exec();
    QTextStream(stdout) << static_cast<double>(timer.nsecsElapsed()) / 1e9 << " s, " << failed << " failed\n";
    return failed == 0 ? 0 : 1;
}
