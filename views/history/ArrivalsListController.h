#pragma once

#include "AppModel.h"
#include "ArrivalsListModel.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// What the list of recent arrivals shows, and what its buttons do.
class ArrivalsListController : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppModel *model READ model WRITE setModel NOTIFY modelChanged REQUIRED)
    Q_PROPERTY(ArrivalsListModel *arrivals READ arrivals CONSTANT)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY changed)
    Q_PROPERTY(bool canClear READ canClear NOTIFY changed)
    Q_PROPERTY(QString readyText READ readyText NOTIFY changed)
    Q_PROPERTY(QString emptyHint READ emptyHint NOTIFY changed)

public:
    using QObject::QObject;

    AppModel *model() const { return m_model; }
    void setModel(AppModel *model);

    ArrivalsListModel *arrivals() { return &m_arrivals; }
    bool isEmpty() const { return m_arrivals.rowCount() == 0; }
    /// There is something to clear, and no conversion is running.
    bool canClear() const;
    QString readyText() const;
    /// Where the next photo is to go, while there is none.
    QString emptyHint() const;

    /// Shows the row's converted file in the file manager.
    Q_INVOKABLE void reveal(int row);
    /// Converts the row's source again.
    Q_INVOKABLE void tryAgain(int row);

Q_SIGNALS:
    void modelChanged();
    void changed();

private:
    void update();

    AppModel *m_model = nullptr;
    ArrivalsListModel m_arrivals;
};
