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
    Q_PROPERTY(bool optionsVisible MEMBER m_optionsVisible NOTIFY optionsVisibleChanged)
    Q_PROPERTY(bool showingHistory MEMBER m_showingHistory NOTIFY showingHistoryChanged)
    Q_PROPERTY(bool showsWelcome READ showsWelcome NOTIFY showsWelcomeChanged)
    Q_PROPERTY(QString headline READ headline NOTIFY textsChanged)
    Q_PROPERTY(QString workspaceDetail READ workspaceDetail NOTIFY textsChanged)

public:
    /// `model` must outlive the controller. `defaults` keeps whether the welcome has been seen.
    MainViewController(AppModel &model, std::shared_ptr<DefaultsStore> defaults, QObject *parent = nullptr);
    ~MainViewController() override;

    PhotoLandingStageController *stage() const { return m_stage.get(); }
    /// On the first launch, and while it is shown again on request.
    bool showsWelcome() const { return !m_hasSeenWelcome || m_replayingWelcome; }
    Q_INVOKABLE void finishWelcome();

    /// The room below the top bar, in points, is so low that everything stands closer together.
    Q_INVOKABLE static bool isCompact(double workspaceHeight);
    /// Height of the landing stage in points. `optionsShown` is 1 with the options panel open, 0 with it
    /// closed, and between them while it slides.
    Q_INVOKABLE static double stageHeight(double workspaceHeight, double optionsShown);

    QString headline() const;
    QString workspaceDetail() const;

    /// A drag came over the landing workspace. False when it carries no file; then nothing else happens.
    Q_INVOKABLE bool dragEntered(const QList<QUrl> &urls);
    Q_INVOKABLE void dragLeft();
    /// Hands every dropped file to the model. True when at least one of them is a HEIC or HEIF photo by name.
    Q_INVOKABLE bool drop(const QList<QUrl> &urls);

Q_SIGNALS:
    void optionsVisibleChanged();
    void showingHistoryChanged();
    void showsWelcomeChanged();
    void textsChanged();

private:
    void replayWelcome();

    AppModel &m_model;
    std::shared_ptr<DefaultsStore> m_defaults;
    std::unique_ptr<PhotoLandingStageController> m_stage;
    bool m_optionsVisible = false;
    bool m_showingHistory = false; ///< the "Recent photos" workspace is shown, else the "AirDrop" workspace
    bool m_hasSeenWelcome = false;
    bool m_replayingWelcome = false;
};
