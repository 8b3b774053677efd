#include "LumaportPalette.h"

#include "SystemAppearanceSingleton.h"

LumaportPalette::LumaportPalette(const SystemAppearance &appearance, QObject *parent)
    : QObject(parent)
    , m_appearance(appearance)
{
    connect(&appearance, &SystemAppearance::darkChanged, this, &LumaportPalette::appearanceChanged);
}

LumaportPalette *LumaportPalette::create(QQmlEngine *engine, QJSEngine *scriptEngine)
{
    return new LumaportPalette(*SystemAppearanceSingleton::create(engine, scriptEngine));
}

QColor LumaportPalette::adaptive(QRgb light, QRgb dark) const
{
    return QColor(m_appearance.isDark() ? dark : light);
}
