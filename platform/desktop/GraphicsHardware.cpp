#include "GraphicsHardware.h"

#include <QDir>
#include <QFile>

#include <algorithm>

bool GraphicsHardware::isPresent()
{
    // Drivers with an interface of their own: NVIDIA, Mali, Adreno, and the Linux subsystem of Windows.
    const QStringList devices = {QStringLiteral("/dev/nvidiactl"), QStringLiteral("/dev/mali0"),
                                 QStringLiteral("/dev/kgsl-3d0"), QStringLiteral("/dev/dxg")};
    return !QDir(QStringLiteral("/dev/dri")).isEmpty(QDir::System | QDir::NoDotAndDotDot) ||
           std::any_of(devices.begin(), devices.end(),
                       [](const QString &path) { return QFile::exists(path); });
}
