#pragma once

#include <QObject>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

#include <functional>

class AppModel;
struct ConversionItem;

/// What the panel shows of the model's newest arrival, and what its buttons do. It holds no state.
class MenuBarViewController : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("AppDelegate makes the only one.")
    Q_PROPERTY(bool hasArrival READ hasArrival NOTIFY arrivalChanged)
    Q_PROPERTY(QString arrivalName READ arrivalName NOTIFY arrivalChanged)
    Q_PROPERTY(QString arrivalStatus READ arrivalStatus NOTIFY arrivalChanged)
    Q_PROPERTY(QUrl arrivalFile READ arrivalFile NOTIFY arrivalChanged)
    Q_PROPERTY(bool canReveal READ canReveal NOTIFY arrivalChanged)

public:
    /// `model` must outlive the controller. `openMain` opens the main window.
    MenuBarViewController(AppModel &model, std::function<void()> openMain, QObject *parent = nullptr);

    bool hasArrival() const;
    /// The output's name, or the source's while there is no output.
    QString arrivalName() const;
    QString arrivalStatus() const;
    /// The output file, or the source while there is no output.
    QUrl arrivalFile() const;
    bool canReveal() const;

    Q_INVOKABLE void reveal();
    Q_INVOKABLE void openMain() const { m_openMain(); }
    Q_INVOKABLE static void quit();

Q_SIGNALS:
    void arrivalChanged();

private:
    /// The newest one; an empty one while there is none.
    ConversionItem arrival() const;

    AppModel &m_model;
    std::function<void()> m_openMain;
};
