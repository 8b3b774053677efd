#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>

/// Tells of every press of a pointer button on the X server, also outside of the application's windows, for
/// as long as it lives. On other platforms nothing tells.
class PointerPresses : public QObject, private QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    PointerPresses();
    ~PointerPresses() override;

Q_SIGNALS:
    void pressed();

private:
    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;
};
