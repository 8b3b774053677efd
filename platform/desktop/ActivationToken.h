#pragma once

#include <QString>

/// Hands the window that is activated next the token by which a Wayland desktop lets it come to the front
/// (XDG Activation Protocol). Harmless elsewhere.
void useActivationToken(const QString &token);
