#include "ModelFixture.h"

#include "WriteFile.h"

#include <QCoreApplication>
#include <QDir>

using namespace std::chrono_literals;

void ManualEngine::succeed(const QString &outputName)
{
    const QUrl source = running.front().source;
    end(ConversionResult{.sourceURL = source, .outputURL = source.resolved(QUrl(outputName))});
}

void ManualEngine::end(const ConversionOutcome &outcome)
{
    const Conversion conversion = running.front();
    running.pop_front();
    conversion.done(outcome);
}

bool ManualFolderMonitor::start(const QUrl &at, std::function<void()> onChange)
{
    const bool isThere = QDir(at.toLocalFile()).exists();
    lostFolder &= !isThere;
    report = isThere ? std::move(onChange) : nullptr;
    return isThere;
}

ModelFixture::ModelFixture()
{
    ThumbnailStore::setShared(&thumbnails);
    QDir(home.path()).mkdir("Photos");
    defaults->store("watchFolder", home.filePath("Photos"));
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

QString ModelFixture::path(const QString &name) const
{
    return home.filePath("Photos/" + name);
}

QUrl ModelFixture::write(const QString &name, int size) const
{
    return writeFile(path(name), QByteArray(size, 'x'));
}

void ModelFixture::pass(std::chrono::milliseconds time)
{
    jobs->advance(time);
    turn();
}

void ModelFixture::scan()
{
    monitor->report();
    turn();
    pass(350ms);
}

void ModelFixture::settle()
{
    scan();
    pass(850ms);
}

void ModelFixture::turn()
{
    QCoreApplication::processEvents();
}
