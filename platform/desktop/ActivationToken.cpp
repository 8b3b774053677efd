#include "ActivationToken.h"

#include <QtGlobal>

void useActivationToken(const QString &token)
{
    // Qt's Wayland plugin takes the token from here for the next window.
    if (!token.isEmpty()) {
        qputenv("XDG_ACTIVATION_TOKEN", token.toUtf8());
    }
}
