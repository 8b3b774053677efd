#include "ModelFixture.h"

#include "DefaultsStore.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

using namespace std::chrono_literals;

void ManualEngine::convert(const QUrl &sourceURL, const ConversionSettings &settings, QObject * /*receiver*/,
                           std::function<void(const ConversionOutcome &)> done)
{
    running.push_back({sourceURL, settings, std::move(done)});
}

void ManualEngine::succeed(const QString &outputName)
{
    const QUrl source = running.front().source;
    end(ConversionResult{.sourceURL = source, .outputURL = source.resolved(QUrl(outputName))});
}

void ManualEngine::fail(ConversionError error)
{
    end(tl::unexpected(error));
}

void ManualEngine::end(const ConversionOutcome &outcome)
{
    const Conversion conversion = running.front();
    running.pop_front();
    conversion.done(outcome);
}

bool ManualFolderMonitor::start(const QUrl &at, std::function<void()> onChange)
{
    stop();
    if (!QDir(at.toLocalFile()).exists()) {
        return false;
    }
    report = std::move(onChange);
    return true;
}

ModelFixture::ModelFixture()
    : defaults(DefaultsStore::inFile(home.filePath(QStringLiteral("lumaport.conf"))))
{
    QDir(home.path()).mkdir(QStringLiteral("Photos"));
    defaults->store(QStringLiteral("watchFolder"), home.filePath(QStringLiteral("Photos")));
}

AppModel &ModelFixture::launch()
{
    m_model.reset();
    engine = std::make_shared<ManualEngine>();
    m_notifications = std::make_unique<NotificationManager>(center, workspace);
    m_model = std::make_unique<AppModel>(AppModelServices{.jobs = jobs,
                                                          .clock = clock,
                                                          .defaults = defaults,
                                                          .notifications = m_notifications.get(),
                                                          .workspace = workspace,
                                                          .openPanel = panel,
                                                          .appearance = appearance,
                                                          .engine = engine,
                                                          .folderMonitor = monitor});
    return *m_model;
}

QUrl ModelFixture::url(const QString &name) const
{
    return QUrl::fromLocalFile(home.filePath(QStringLiteral("Photos/") + name));
}

QUrl ModelFixture::write(const QString &name, int bytes) const
{
    QFile file(url(name).toLocalFile());
    if (!file.open(QIODevice::WriteOnly) || file.write(QByteArray(bytes, 'x')) != bytes) {
        qFatal("cannot write %s", qPrintable(file.fileName()));
    }
    return url(name);
}

void ModelFixture::settle()
{
    monitor->report();
    turn();
    jobs->advance(350ms + 850ms);
    turn();
}

void ModelFixture::turn()
{
    QCoreApplication::processEvents();
}
