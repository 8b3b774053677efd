#include "MainViewController.h"

#include "AppModel.h"
#include "DefaultsStore.h"
#include "PhotoFile.h"
#include "PhotoLandingStageController.h"

#include <algorithm>

namespace {

constexpr double compactBelow = 650.0;
constexpr double reservedHeight = 460.0; ///< of all that is above and below the stage
constexpr double reservedHeightCompact = 430.0;
constexpr double reservedForOptions = 24.0; ///< for one more line of text in the narrower column
constexpr double tallestStage = 222.0;
constexpr double lowestStage = 60.0;

constexpr QLatin1StringView hasSeenWelcomeKey("hasSeenSignatureWelcome");

} // namespace

MainViewController::MainViewController(AppModel &model, std::shared_ptr<DefaultsStore> defaults,
                                       QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_defaults(std::move(defaults))
    , m_stage(std::make_unique<PhotoLandingStageController>(model))
    , m_hasSeenWelcome(m_defaults->boolean(hasSeenWelcomeKey).value_or(false))
{
    for (const auto signal :
         {&AppModel::activeStatusChanged, &AppModel::lastEventTextChanged, &AppModel::monitorAvailableChanged,
          &AppModel::isWatchingChanged, &AppModel::isDropTargetedChanged, &AppModel::settingsChanged}) {
        connect(&model, signal, this, &MainViewController::textsChanged);
    }
    connect(&model, &AppModel::welcomeReplayTokenChanged, this, &MainViewController::replayWelcome);
}

MainViewController::~MainViewController() = default;

void MainViewController::replayWelcome()
{
    m_replayingWelcome = true;
    Q_EMIT showsWelcomeChanged();
}

void MainViewController::finishWelcome()
{
    m_hasSeenWelcome = true;
    m_defaults->store(hasSeenWelcomeKey, true);
    m_replayingWelcome = false;
    Q_EMIT showsWelcomeChanged();
}

bool MainViewController::isCompact(double workspaceHeight)
{
    return workspaceHeight < compactBelow;
}

double MainViewController::stageHeight(double workspaceHeight, double optionsShown)
{
    const double reserved = (isCompact(workspaceHeight) ? reservedHeightCompact : reservedHeight) +
                            reservedForOptions * optionsShown;
    return std::max(lowestStage, std::min(tallestStage, workspaceHeight - reserved));
}

QString MainViewController::headline() const
{
    if (m_model.isDropTargeted()) {
        return tr("Drop it. We’ve got it.");
    }
    if (const auto status = m_model.activeStatus()) {
        switch (*status) {
        case ConversionStatus::queued:
            return tr("Your photo just landed.");
        case ConversionStatus::converting:
            return tr("A little format magic.");
        case ConversionStatus::ready:
            return tr("New format. Same moment.");
        case ConversionStatus::failed:
            return tr("This photo needs attention.");
        }
    }
    if (!m_model.monitorAvailable()) {
        return tr("Let’s reconnect your folder.");
    }
    return m_model.isWatching() ? tr("AirDrop it. It’s ready.") : tr("Ready when you are.");
}

QString MainViewController::workspaceDetail() const
{
    if (m_model.activeStatus()) {
        return m_model.lastEventText();
    }
    if (!m_model.monitorAvailable()) {
        return tr("Open conversion options to choose an available folder.");
    }
    if (!m_model.isWatching()) {
        return tr("Resume automatic conversion, or choose photos manually.");
    }
    return tr("New HEIC photos in your watched folder become %1, automatically.")
        .arg(rawValue(m_model.settings().format));
}

bool MainViewController::dragEntered(const QList<QUrl> &urls)
{
    if (std::none_of(urls.begin(), urls.end(), [](const QUrl &url) { return url.isLocalFile(); })) {
        return false;
    }
    m_model.setIsDropTargeted(true);
    return true;
}

void MainViewController::dragLeft()
{
    m_model.setIsDropTargeted(false);
}

bool MainViewController::drop(const QList<QUrl> &urls)
{
    m_model.setIsDropTargeted(false);
    m_model.convertManually(urls);
    return std::any_of(urls.begin(), urls.end(), isPhotoFile);
}
