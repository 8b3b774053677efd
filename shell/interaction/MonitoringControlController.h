#pragma once

#include "AppModel.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

/// What the card of the watching state shows beyond the model's own texts, and what its button does.
class MonitoringControlController : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppModel *model READ model WRITE setModel NOTIFY modelChanged REQUIRED)
    Q_PROPERTY(bool automatic READ isAutomatic NOTIFY stateChanged)
    Q_PROPERTY(QString buttonTitle READ buttonTitle NOTIFY stateChanged)

public:
    using QObject::QObject;

    AppModel *model() const { return m_model; }
    void setModel(AppModel *model);

    /// New arrivals are converted by themselves: the folder can be watched, and is.
    bool isAutomatic() const;
    /// "Pause", "Resume" or "Retry", in the user's language.
    QString buttonTitle() const;

    /// What the button says.
    Q_INVOKABLE void act();

Q_SIGNALS:
    void modelChanged();
    void stateChanged();

private:
    AppModel *m_model = nullptr;
};
