#pragma once

#include <memory>

/// The application's own choice between light and dark, over the desktop's.
class Appearance
{
public:
    enum class Choice { followSystem, light, dark };

    virtual ~Appearance() = default;

    /// Takes effect in every window at once, open panels included.
    virtual void apply(Choice choice) = 0;
};
