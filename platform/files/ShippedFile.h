#pragma once

#include <QString>

/// The file of this name among those shipped with the application: in the data folder of the installation, or
/// in the build's when started from there. Empty when it is missing.
QString shippedFile(const QString &name);
