#pragma once

#include "MainWindowLayout.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

class AppDelegate;
class AppModel;

/// The commands of the menu bar.
class MainCommands : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the application")
    Q_PROPERTY(QString watchingTitle READ watchingTitle NOTIFY watchingTitleChanged)

public:
    /// `model` and `delegate` must outlive the commands.
    MainCommands(AppModel &model, AppDelegate &delegate, MainWindowLayout layout, QObject *parent = nullptr);

    /// What toggleWatching() would do now.
    QString watchingTitle() const;

    Q_INVOKABLE void showQuickPanel();
    Q_INVOKABLE void replayWelcome();
    Q_INVOKABLE void convertExistingFiles();
    Q_INVOKABLE void toggleWatching();
    /// Gives the open main window its recommended frame; nothing happens while it is closed.
    Q_INVOKABLE void useRecommendedWindowSize() const;
    Q_INVOKABLE static void quit();

Q_SIGNALS:
    void watchingTitleChanged();

private:
    AppModel &m_model;
    AppDelegate &m_delegate;
    MainWindowLayout m_layout;
};
