#pragma once

#include "AppModelSingleton.h"
#include "ModelFixture.h"
#include "Scene.h"
#include "WriteFile.h"

#include <QDir>

/// A scene with a model of its own, whose thumbnails are plain colours.
class ModelScene : public Scene
{
public:
    ModelScene()
        : model(fixture.launch())
    {
        AppModelSingleton::provide(model);
    }
    ~ModelScene() { close(); }
    ModelScene(const ModelScene &) = delete;
    ModelScene &operator=(const ModelScene &) = delete;

    /// A history entry whose file is in the watched folder and gives a thumbnail of `colour`.
    ConversionItem item(const QString &name, ConversionStatus status,
                        const QByteArray &colour = "orange") const
    {
        const QUrl source = writeFile(fixture.path(name), colour);
        ConversionItem item = ConversionItem::queuedFor(source, {});
        item.status = status;
        if (status == ConversionStatus::ready) {
            item.outputURL = source;
            item.outputName = name.section(QLatin1Char('.'), 0, -2) + QStringLiteral(".png");
        }
        return item;
    }

    /// Has a folder of the home watched: a picture may show its name, which is the same each time.
    void watch(const QString &folder)
    {
        QDir::home().mkpath(folder);
        fixture.panel->answer = {QUrl::fromLocalFile(QDir::home().filePath(folder))};
        model.chooseWatchFolder();
        ModelFixture::turn();
    }

    ModelFixture fixture;
    AppModel &model;
};
