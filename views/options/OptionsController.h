#pragma once

#include "AppModel.h"
#include "ConversionSettings.h"

#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

/// The settings as the options panel and the segmented controls show them: each choice is its number in the
/// order of the cases. Every change goes to the model at once; nothing is checked or clamped here.
class OptionsController : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QString watchFolderName READ watchFolderName NOTIFY watchFolderChanged)
    Q_PROPERTY(QString watchFolderPath READ watchFolderPath NOTIFY watchFolderChanged)
    Q_PROPERTY(int format READ format WRITE setFormat NOTIFY settingsChanged)
    Q_PROPERTY(bool hasQuality READ hasQuality NOTIFY settingsChanged)
    Q_PROPERTY(double jpegQuality READ jpegQuality WRITE setJpegQuality NOTIFY settingsChanged)
    Q_PROPERTY(QString qualityText READ qualityText NOTIFY settingsChanged)
    Q_PROPERTY(QStringList outputLocations READ outputLocations CONSTANT)
    Q_PROPERTY(int outputLocation READ outputLocation WRITE setOutputLocation NOTIFY settingsChanged)
    Q_PROPERTY(QStringList originalPolicies READ originalPolicies CONSTANT)
    Q_PROPERTY(int originalPolicy READ originalPolicy WRITE setOriginalPolicy NOTIFY settingsChanged)
    Q_PROPERTY(bool notificationsEnabled READ notificationsEnabled WRITE setNotificationsEnabled NOTIFY
                   settingsChanged)
    Q_PROPERTY(int appearanceMode READ appearanceMode WRITE setAppearanceMode NOTIFY appearanceModeChanged)

public:
    /// `model` must outlive the controller.
    explicit OptionsController(AppModel &model, QObject *parent = nullptr);
    static OptionsController *create(QQmlEngine *engine, QJSEngine *scriptEngine);

    QString watchFolderName() const;
    QString watchFolderPath() const;
    int format() const;
    /// Only JPEG has a quality.
    bool hasQuality() const;
    double jpegQuality() const;
    /// In whole percent, truncated.
    QString qualityText() const;
    static QStringList outputLocations();
    int outputLocation() const;
    static QStringList originalPolicies();
    int originalPolicy() const;
    bool notificationsEnabled() const;
    int appearanceMode() const;

    void setFormat(int choice);
    /// `position` is the slider's. It is rounded to whole percent: the slider's sums of steps are not exact
    /// (three steps down from 1 are 0.8499999999999999).
    void setJpegQuality(double position);
    void setOutputLocation(int choice);
    void setOriginalPolicy(int choice);
    void setNotificationsEnabled(bool enabled);
    void setAppearanceMode(int choice);

Q_SIGNALS:
    void watchFolderChanged();
    void settingsChanged();
    void appearanceModeChanged();

private:
    template<typename Change>
    void changeSettings(Change change);

    AppModel &m_model;
};
