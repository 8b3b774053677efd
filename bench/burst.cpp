// burst SOURCE COUNT png|jpeg [beside-previews]: sends COUNT photos like SOURCE through the conversion engine
// at once, as when a phone sends an album. Prints seconds from the first to the last, and how many could not
// be converted. With the last argument, previews are asked for all the time, as by a list that scrolls; the
// photos are sent when the first preview has come.

#include "ConversionEngine.h"
#include "ImageWorkerLauncher.h"
#include "ThumbnailStore.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTextStream>

#include <map>

namespace {

/// Photos like one, under names of their own.
class Album
{
public:
    explicit Album(const QString &source)
        : m_source(source)
    {}

    QUrl nextPhoto()
    {
        const QString photo = m_folder.filePath(QStringLiteral("IMG_%1.HEIC").arg(++m_count));
        QFile::link(m_source, photo);
        return QUrl::fromLocalFile(photo);
    }

private:
    QString m_source;
    QTemporaryDir m_folder;
    int m_count = 0;
};

/// Asks for the next preview whenever one comes.
class Previews
{
public:
    Previews(Album &album, std::function<void()> whenFirstCame)
        : m_album(album)
        , m_whenFirstCame(std::move(whenFirstCame))
        , m_store(ImageWorkerLauncher::create())
    {}

    void ask()
    {
        const QUrl photo = m_album.nextPhoto();
        m_requests[photo] = m_store.image(photo, [this](const QImage & /*preview*/) {
            ++m_count;
            std::exchange(m_whenFirstCame, [] {})();
            ask();
        });
    }
    int count() const { return m_count; }

private:
    Album &m_album;
    std::function<void()> m_whenFirstCame;
    ThumbnailStore m_store;
    std::map<QUrl, std::unique_ptr<ThumbnailRequest>> m_requests;
    int m_count = 0;
};

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const auto format = optionFromRawValue<OutputFormat>(arguments.value(3).toUpper());
    const int count = arguments.value(2).toInt();
    const bool isBesidePreviews = arguments.value(4) == QLatin1String("beside-previews");
    if (!format || count < 1 || arguments.size() != (isBesidePreviews ? 5 : 4)) {
        QTextStream(stderr) << "usage: burst SOURCE COUNT png|jpeg [beside-previews]\n";
        return 2;
    }
    ConversionSettings settings;
    settings.format = *format;
    Album album(QFileInfo(arguments[1]).absoluteFilePath());
    const auto engine = ConversionEngine::create(ImageWorkerLauncher::create());
    int failed = 0;
    int left = count;
    QElapsedTimer timer;
    const auto send = [&] {
        timer.start();
        for (int number = 0; number < count; ++number) {
            engine->convert(album.nextPhoto(), settings, qApp, [&](const ConversionOutcome &done) {
                failed += done ? 0 : 1;
                if (--left == 0) {
                    QCoreApplication::quit();
                }
            });
        }
    };
    Previews previews(album, send);
    if (isBesidePreviews) {
        engine->prepare();
        constexpr int AtATime = 4;
        for (int request = 0; request < AtATime; ++request) {
            previews.ask();
        }
    } else {
        send();
    }
    QCoreApplication::exec();
    QTextStream(stdout) << static_cast<double>(timer.nsecsElapsed()) / 1e9 << " s, " << failed << " failed";
    if (isBesidePreviews) {
        QTextStream(stdout) << ", " << previews.count() << " previews";
    }
    QTextStream(stdout) << '\n';
    return failed == 0 ? 0 : 1;
}
