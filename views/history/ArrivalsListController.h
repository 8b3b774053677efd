#pragma once

#include "AppModel.h"
#include "ArrivalsListModel.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

/// What the list of recent arrivals shows, and what its buttons do.
class ArrivalsListController : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(ArrivalsListModel *arrivals READ arrivals CONSTANT)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY changed)
    Q_PROPERTY(bool canClear READ canClear NOTIFY changed)
    Q_PROPERTY(QString emptyHint READ emptyHint NOTIFY changed)

public:
    /// `model` must outlive the controller.
    explicit ArrivalsListController(AppModel &model, QObject *parent = nullptr);
    static ArrivalsListController *create(QQmlEngine *engine, QJSEngine *scriptEngine);

    ArrivalsListModel *arrivals() { return &m_arrivals; }
    bool isEmpty() const { return m_arrivals.rowCount() == 0; }
    /// There is something to clear, and no conversion is running.
    bool canClear() const;
    /// Where the next photo is to go; shown while there is none.
    QString emptyHint() const;

    /// Shows the row's converted file in the file manager.
    Q_INVOKABLE void reveal(int row);
    /// Converts the row's source again.
    Q_INVOKABLE void tryAgain(int row);

Q_SIGNALS:
    void changed();

private:
    void update();

    AppModel &m_model;
    ArrivalsListModel m_arrivals;
};
