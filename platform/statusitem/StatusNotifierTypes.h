#pragma once

#include <QDBusArgument>
#include <QImage>
#include <QList>

/// One picture on the bus: `(iiay)`, the bytes of each pixel being alpha, red, green, blue.
struct StatusNotifierPixmap
{
    int width = 0;
    int height = 0;
    QByteArray bytes;

    static StatusNotifierPixmap fromImage(const QImage &image);
};
using StatusNotifierPixmaps = QList<StatusNotifierPixmap>;
Q_DECLARE_METATYPE(StatusNotifierPixmap)
Q_DECLARE_METATYPE(StatusNotifierPixmaps)

/// A tooltip on the bus: `(sa(iiay)ss)`.
struct StatusNotifierToolTip
{
    QString iconName;
    StatusNotifierPixmaps pixmaps;
    QString title;
    QString text;
};
Q_DECLARE_METATYPE(StatusNotifierToolTip)

QDBusArgument &operator<<(QDBusArgument &argument, const StatusNotifierPixmap &pixmap);
const QDBusArgument &operator>>(const QDBusArgument &argument, StatusNotifierPixmap &pixmap);
QDBusArgument &operator<<(QDBusArgument &argument, const StatusNotifierToolTip &toolTip);
const QDBusArgument &operator>>(const QDBusArgument &argument, StatusNotifierToolTip &toolTip);

/// To be called before any of these goes over the bus.
void registerStatusNotifierTypes();
