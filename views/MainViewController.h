#pragma once

#include "PhotoLandingStageController.h"

#include <QObject>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

#include <memory>

class AppModel;
class DefaultsStore;

/// What the main window shows and does, decided without a window: which workspace and panel are open, how
/// large the landing stage may be, the texts that follow the model, drops, and whether the welcome covers the
/// content.
class MainViewController : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The shell makes the one of the main window.")
    Q_PROPERTY(PhotoLandingStageController *stage READ stage CONSTANT)
    Q_PROPERTY(bool optionsVisible READ optionsVisible WRITE setOptionsVisible NOTIFY optionsVisibleChanged)
    Q_PROPERTY(bool showingHistory READ showingHistory WRITE setShowingHistory NOTIFY showingHistoryChanged)
    Q_PROPERTY(bool showsWelcome READ showsWelcome NOTIFY showsWelcomeChanged)
    Q_PROPERTY(QString headline READ headline NOTIFY textsChanged)
    Q_PROPERTY(QString workspaceDetail READ workspaceDetail NOTIFY textsChanged)
    Q_PROPERTY(QString readyText READ readyText NOTIFY itemsChanged)
    Q_PROPERTY(bool isBusy READ isBusy NOTIFY itemsChanged)
    Q_PROPERTY(bool isDropTargeted READ isDropTargeted NOTIFY textsChanged)
    Q_PROPERTY(QString watchFolderName READ watchFolderName NOTIFY watchFolderChanged)
    Q_PROPERTY(QString watchFolderPath READ watchFolderPath NOTIFY watchFolderChanged)
    Q_PROPERTY(QString openFolderLabel READ openFolderLabel NOTIFY watchFolderChanged)
    Q_PROPERTY(QString outputLocationText READ outputLocationText NOTIFY settingsChanged)

public:
    /// `model` must outlive the controller. `defaults` keeps whether the welcome has been seen.
    MainViewController(AppModel &model, std::shared_ptr<DefaultsStore> defaults, QObject *parent = nullptr);
    ~MainViewController() override;

    PhotoLandingStageController *stage() const { return m_stage.get(); }
    bool optionsVisible() const { return m_optionsVisible; }
    void setOptionsVisible(bool visible);
    /// The "Recent photos" workspace is shown, else the "AirDrop" workspace.
    bool showingHistory() const { return m_showingHistory; }
    void setShowingHistory(bool showing);

    /// On the first launch, and while it is shown again on request.
    bool showsWelcome() const { return !m_hasSeenWelcome || m_replayingWelcome; }
    Q_INVOKABLE void finishWelcome();

    /// What lies below the top bar is so low, in points, that everything stands closer together.
    Q_INVOKABLE static bool isCompact(double workspaceHeight);
    /// Height of the landing stage in points. `optionsShown` is 1 with the options panel open, 0 with it
    /// closed, and between them while it slides.
    Q_INVOKABLE static double stageHeight(double workspaceHeight, double optionsShown);

    QString headline() const;
    QString workspaceDetail() const;
    QString readyText() const;
    bool isBusy() const;
    bool isDropTargeted() const;
    QString watchFolderName() const;
    QString watchFolderPath() const;
    QString openFolderLabel() const;
    QString outputLocationText() const;

    /// A drag came over the landing workspace. False when it carries no file: then nothing reacts to it.
    Q_INVOKABLE bool dragEntered(const QList<QUrl> &urls);
    Q_INVOKABLE void dragLeft();
    /// Hands every dropped file to the model. True when at least one of them is a HEIC or HEIF photo by name.
    Q_INVOKABLE bool drop(const QList<QUrl> &urls);
    Q_INVOKABLE void choosePhotos();
    Q_INVOKABLE void openWatchFolder();

Q_SIGNALS:
    void optionsVisibleChanged();
    void showingHistoryChanged();
    void showsWelcomeChanged();
    void textsChanged();
    void itemsChanged();
    void watchFolderChanged();
    void settingsChanged();

private:
    void replayWelcome();

    AppModel &m_model;
    std::shared_ptr<DefaultsStore> m_defaults;
    std::unique_ptr<PhotoLandingStageController> m_stage;
    bool m_optionsVisible = false;
    bool m_showingHistory = false;
    bool m_hasSeenWelcome = false;
    bool m_replayingWelcome = false;
};
