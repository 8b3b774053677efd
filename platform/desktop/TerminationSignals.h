#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <memory>

/// Turns the signals by which a session ends its programs (hangup, interrupt, terminate) into a Qt signal, so
/// that the application ends as when the user quits it. Only one such object may exist.
class TerminationSignals : public QObject
{
    Q_OBJECT

public:
    explicit TerminationSignals(QObject *parent = nullptr);
    ~TerminationSignals() override;

Q_SIGNALS:
    void received();

private:
    std::unique_ptr<QSocketNotifier> m_notifier;
};
