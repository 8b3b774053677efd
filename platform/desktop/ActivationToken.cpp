#include "ActivationToken.h"

#include <QtGlobal>

void useActivationToken(const QString &token)
{
    // Where Qt's Wayland plugin looks for one that it did not ask for itself; it takes it from there.
    if (!token.isEmpty()) {
        qputenv("XDG_ACTIVATION_TOKEN", token.toUtf8());
    }
}
