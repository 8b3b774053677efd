#include "Typeface.h"

#include <QStringList>

QFont Typeface::preferred(const QFont &system)
{
    QFont font(system);
    QStringList families = system.families();
    families.removeAll(QStringLiteral("Inter"));
    families.prepend(QStringLiteral("Inter"));
    font.setFamilies(families);
    return font;
}
