#include "OptionsController.h"

#include "OptionTexts.h"

#include <cmath>

namespace {

template<typename Option>
int choiceOf(Option option)
{
    const auto &cases = OptionCases<Option>::cases;
    const auto found = std::find_if(cases.begin(), cases.end(),
                                    [option](const auto &each) { return each.option == option; });
    return static_cast<int>(found - cases.begin());
}

template<typename Option>
Option optionOf(int choice)
{
    return OptionCases<Option>::cases.at(static_cast<std::size_t>(choice)).option;
}

} // namespace

void OptionsController::setModel(AppModel *model)
{
    if (m_model == model) {
        return;
    }
    if (m_model) {
        m_model->disconnect(this);
    }
    m_model = model;
    connect(model, &AppModel::watchFolderChanged, this, &OptionsController::watchFolderChanged);
    connect(model, &AppModel::itemsChanged, this, &OptionsController::busyChanged);
    connect(model, &AppModel::settingsChanged, this, &OptionsController::settingsChanged);
    connect(model, &AppModel::appearanceModeChanged, this, &OptionsController::appearanceModeChanged);
    Q_EMIT modelChanged();
    Q_EMIT watchFolderChanged();
    Q_EMIT busyChanged();
    Q_EMIT settingsChanged();
    Q_EMIT appearanceModeChanged();
}

ConversionSettings OptionsController::settings() const
{
    return m_model ? m_model->settings() : ConversionSettings();
}

template<typename Change>
void OptionsController::changeSettings(Change change)
{
    ConversionSettings settings = m_model->settings();
    change(settings);
    m_model->setSettings(settings);
}

QString OptionsController::watchFolderPath() const
{
    return m_model ? m_model->watchFolder().toLocalFile() : QString();
}

bool OptionsController::canConvertExisting() const
{
    return m_model && !m_model->isBusy();
}

int OptionsController::format() const
{
    return choiceOf(settings().format);
}

bool OptionsController::hasQuality() const
{
    return settings().format == OutputFormat::jpeg;
}

double OptionsController::jpegQuality() const
{
    return settings().jpegQuality;
}

QString OptionsController::qualityText() const
{
    return tr("%1% quality").arg(static_cast<int>(settings().jpegQuality * 100));
}

QStringList OptionsController::outputLocations()
{
    return optionTexts<OutputLocation>();
}

int OptionsController::outputLocation() const
{
    return choiceOf(settings().outputLocation);
}

QStringList OptionsController::originalPolicies()
{
    return optionTexts<OriginalPolicy>();
}

int OptionsController::originalPolicy() const
{
    return choiceOf(settings().originalPolicy);
}

bool OptionsController::notificationsEnabled() const
{
    return settings().notificationsEnabled;
}

int OptionsController::appearanceMode() const
{
    return m_model ? choiceOf(m_model->appearanceMode()) : 0;
}

void OptionsController::setFormat(int choice)
{
    changeSettings([=](ConversionSettings &settings) { settings.format = optionOf<OutputFormat>(choice); });
}

void OptionsController::setJpegQuality(double quality)
{
    changeSettings([=](ConversionSettings &settings) { settings.jpegQuality = quality; });
}

void OptionsController::moveQuality(double position)
{
    setJpegQuality(std::round(position * 100) / 100);
}

void OptionsController::setOutputLocation(int choice)
{
    changeSettings(
        [=](ConversionSettings &settings) { settings.outputLocation = optionOf<OutputLocation>(choice); });
}

void OptionsController::setOriginalPolicy(int choice)
{
    changeSettings(
        [=](ConversionSettings &settings) { settings.originalPolicy = optionOf<OriginalPolicy>(choice); });
}

void OptionsController::setNotificationsEnabled(bool enabled)
{
    changeSettings([=](ConversionSettings &settings) { settings.notificationsEnabled = enabled; });
}

void OptionsController::setAppearanceMode(int choice)
{
    m_model->setAppearanceMode(optionOf<AppearanceMode>(choice));
}
