#pragma once

#include <QFont>

/// The system's font for every text of the program: Inter, then the desktop's own family.
namespace Typeface {

/// `system` is the desktop's font; the result asks for Inter first and keeps the rest.
QFont preferred(const QFont &system);

} // namespace Typeface
