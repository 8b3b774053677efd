#pragma once

#include <QIcon>

/// The program's own pictures, loaded once.
namespace BrandAssets {

/// The application icon: the one linked into the program, else the desktop's icon of the program's name, else
/// an empty icon. Sharp at any size. Needs a QGuiApplication.
const QIcon &icon();

/// The same search among other places: what icon() does on its first call.
QIcon loadIcon(const QString &resource, const QString &themeName);

} // namespace BrandAssets
