#include "OptionsController.h"

#include "AppModelSingleton.h"
#include "PhotoFileName.h"

#include <QCoreApplication>

#include <cmath>

namespace {

// The options' stored texts are named here for the translators.
[[maybe_unused]] constexpr const char *translatable[] = {
    QT_TRANSLATE_NOOP("Options", "Beside originals"),
    QT_TRANSLATE_NOOP("Options", "Lumaport folder"),
    QT_TRANSLATE_NOOP("Options", "Keep originals"),
    QT_TRANSLATE_NOOP("Options", "Move to Originals"),
};

/// What the user reads of an option: its stored English text, in the user's language.
template<typename Option>
QString optionText(Option option)
{
    return QCoreApplication::translate("Options", rawValue(option).toLatin1().constData());
}

/// The texts of all cases, in the order of the choices.
template<typename Option>
QStringList optionTexts()
{
    QStringList texts;
    for (const char *text : rawValues<Option>) {
        texts.append(QCoreApplication::translate("Options", text));
    }
    return texts;
}

} // namespace

OptionsController::OptionsController(AppModel &model, QObject *parent)
    : QObject(parent)
    , m_model(model)
{
    connect(&model, &AppModel::watchFolderChanged, this, &OptionsController::watchFolderChanged);
    connect(&model, &AppModel::settingsChanged, this, &OptionsController::settingsChanged);
    connect(&model, &AppModel::appearanceModeChanged, this, &OptionsController::appearanceModeChanged);
}

OptionsController *OptionsController::create(QQmlEngine *engine, QJSEngine *scriptEngine)
{
    return new OptionsController(*AppModelSingleton::create(engine, scriptEngine));
}

template<typename Change>
void OptionsController::changeSettings(Change change)
{
    ConversionSettings settings = m_model.settings();
    change(settings);
    m_model.setSettings(settings);
}

QString OptionsController::watchFolderName() const
{
    return PhotoFileName::shown(m_model.watchFolder().fileName());
}

QString OptionsController::watchFolderPath() const
{
    return m_model.watchFolder().toLocalFile();
}

int OptionsController::format() const
{
    return static_cast<int>(m_model.settings().format);
}

bool OptionsController::hasQuality() const
{
    return m_model.settings().format == OutputFormat::jpeg;
}

double OptionsController::jpegQuality() const
{
    return m_model.settings().jpegQuality;
}

QString OptionsController::qualityText() const
{
    return tr("%1% quality").arg(static_cast<int>(m_model.settings().jpegQuality * 100));
}

QStringList OptionsController::outputLocations()
{
    return optionTexts<OutputLocation>();
}

int OptionsController::outputLocation() const
{
    return static_cast<int>(m_model.settings().outputLocation);
}

QStringList OptionsController::originalPolicies()
{
    return optionTexts<OriginalPolicy>();
}

int OptionsController::originalPolicy() const
{
    return static_cast<int>(m_model.settings().originalPolicy);
}

bool OptionsController::notificationsEnabled() const
{
    return m_model.settings().notificationsEnabled;
}

int OptionsController::appearanceMode() const
{
    return static_cast<int>(m_model.appearanceMode());
}

void OptionsController::setFormat(int choice)
{
    changeSettings(
        [=](ConversionSettings &settings) { settings.format = static_cast<OutputFormat>(choice); });
}

void OptionsController::setJpegQuality(double position)
{
    changeSettings(
        [=](ConversionSettings &settings) { settings.jpegQuality = std::round(position * 100) / 100; });
}

void OptionsController::setOutputLocation(int choice)
{
    changeSettings(
        [=](ConversionSettings &settings) { settings.outputLocation = static_cast<OutputLocation>(choice); });
}

void OptionsController::setOriginalPolicy(int choice)
{
    changeSettings(
        [=](ConversionSettings &settings) { settings.originalPolicy = static_cast<OriginalPolicy>(choice); });
}

void OptionsController::setNotificationsEnabled(bool enabled)
{
    changeSettings([=](ConversionSettings &settings) { settings.notificationsEnabled = enabled; });
}

void OptionsController::setAppearanceMode(int choice)
{
    m_model.setAppearanceMode(static_cast<AppearanceMode>(choice));
}
