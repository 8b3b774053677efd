#pragma once

#include "MainWindowLayout.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

class AppDelegate;
class AppModel;
class LoginItem;

/// What the commands of the menu bar do.
class MainCommands : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("LumaportApp makes the only one.")
    Q_PROPERTY(QString watchingTitle READ watchingTitle NOTIFY watchingTitleChanged)
    Q_PROPERTY(bool startsAtLogin READ startsAtLogin NOTIFY startsAtLoginChanged)

public:
    /// `model`, `delegate` and `loginItem` must outlive the commands.
    MainCommands(AppModel &model, AppDelegate &delegate, LoginItem &loginItem, MainWindowLayout layout,
                 QObject *parent = nullptr);

    /// The title of toggleWatching(): what it would do now.
    QString watchingTitle() const;

    bool startsAtLogin() const;

    Q_INVOKABLE void toggleStartAtLogin();
    Q_INVOKABLE void showQuickPanel();
    Q_INVOKABLE void replayWelcome();
    Q_INVOKABLE void toggleWatching();
    /// Gives the main window its recommended frame, if it is open.
    Q_INVOKABLE void useRecommendedWindowSize() const;
    Q_INVOKABLE static void quit();

Q_SIGNALS:
    void watchingTitleChanged();
    void startsAtLoginChanged();

private:
    AppModel &m_model;
    AppDelegate &m_delegate;
    LoginItem &m_loginItem;
    MainWindowLayout m_layout;
};
