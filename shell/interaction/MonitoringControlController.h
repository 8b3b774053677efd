#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

class AppModel;
class QJSEngine;
class QQmlEngine;

/// What the monitoring control shows beyond the model's own texts, and what its button does.
class MonitoringControlController : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool automatic READ isAutomatic NOTIFY changed)
    Q_PROPERTY(QString buttonTitle READ buttonTitle NOTIFY changed)

public:
    /// `model` must outlive the controller.
    explicit MonitoringControlController(AppModel &model, QObject *parent = nullptr);
    static MonitoringControlController *create(QQmlEngine *engine, QJSEngine *scriptEngine);

    /// New arrivals are converted: the folder can be watched, and watching is on.
    bool isAutomatic() const;
    /// "Pause", "Resume" or "Retry", in the user's language.
    QString buttonTitle() const;

    /// Does what the button's title says.
    Q_INVOKABLE void act();

Q_SIGNALS:
    void changed();

private:
    AppModel &m_model;
};
