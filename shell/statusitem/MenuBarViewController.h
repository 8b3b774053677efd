#pragma once

#include <QObject>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

#include <functional>

class AppModel;

/// What the panel shows of the model's newest arrival, and what its buttons do. It holds no state.
class MenuBarViewController : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the application's delegate")
    Q_PROPERTY(bool hasArrival READ hasArrival NOTIFY arrivalChanged)
    Q_PROPERTY(QString arrivalName READ arrivalName NOTIFY arrivalChanged)
    Q_PROPERTY(QString arrivalStatus READ arrivalStatus NOTIFY arrivalChanged)
    Q_PROPERTY(QUrl arrivalFile READ arrivalFile NOTIFY arrivalChanged)
    Q_PROPERTY(bool canReveal READ canReveal NOTIFY arrivalChanged)

public:
    /// What the panel asks of the shell.
    struct Actions
    {
        std::function<void()> openMain;
        std::function<void()> quit;
    };

    /// `model` must outlive the controller.
    MenuBarViewController(AppModel &model, Actions actions, QObject *parent = nullptr);

    bool hasArrival() const;
    /// The output's name, or the source's while there is no output.
    QString arrivalName() const;
    QString arrivalStatus() const;
    /// The file whose picture is shown: the output, or the source while there is no output.
    QUrl arrivalFile() const;
    bool canReveal() const;

    Q_INVOKABLE void reveal();
    Q_INVOKABLE void openMain() const { m_actions.openMain(); }
    Q_INVOKABLE void quit() const { m_actions.quit(); }

Q_SIGNALS:
    void arrivalChanged();

private:
    AppModel &m_model;
    Actions m_actions;
};
