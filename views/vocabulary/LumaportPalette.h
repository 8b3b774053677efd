#pragma once

#include <QColor>
#include <QObject>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;
class SystemAppearance;

/// The eleven colours of the program, by role. Nine follow the effective appearance: they change, with one
/// signal, when it does, and whatever is bound to them is drawn again. All are opaque sRGB.
class LumaportPalette : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QColor night READ night NOTIFY appearanceChanged)
    Q_PROPERTY(QColor deck READ deck NOTIFY appearanceChanged)
    Q_PROPERTY(QColor panel READ panel NOTIFY appearanceChanged)
    Q_PROPERTY(QColor ink READ ink NOTIFY appearanceChanged)
    Q_PROPERTY(QColor muted READ muted NOTIFY appearanceChanged)
    Q_PROPERTY(QColor iris READ iris NOTIFY appearanceChanged)
    Q_PROPERTY(QColor photon READ photon NOTIFY appearanceChanged)
    Q_PROPERTY(QColor mint READ mint NOTIFY appearanceChanged)
    Q_PROPERTY(QColor softLine READ softLine NOTIFY appearanceChanged)
    Q_PROPERTY(QColor cobalt READ cobalt CONSTANT)
    Q_PROPERTY(QColor coral READ coral CONSTANT)

public:
    /// `appearance` must outlive the palette.
    explicit LumaportPalette(const SystemAppearance &appearance, QObject *parent = nullptr);
    static LumaportPalette *create(QQmlEngine *engine, QJSEngine *scriptEngine);

    QColor night() const { return adaptive(0xF5F8FF, 0x171C30); }    ///< Window background.
    QColor deck() const { return adaptive(0xE7EEFC, 0x202942); }     ///< Track of the segmented controls.
    QColor panel() const { return adaptive(0xFFFFFF, 0x252F49); }    ///< Bars, cards, quiet buttons.
    QColor ink() const { return adaptive(0x17233F, 0xF5F8FF); }      ///< Primary text.
    QColor muted() const { return adaptive(0x556582, 0xB2C0D9); }    ///< Secondary text and symbols.
    QColor iris() const { return adaptive(0x245BDB, 0x99BCFF); }     ///< Accent.
    QColor photon() const { return adaptive(0xAD3E20, 0xFFAA91); }   ///< Attention.
    QColor mint() const { return adaptive(0x176A52, 0x82E0BE); }     ///< Success.
    QColor softLine() const { return adaptive(0xDDE6F6, 0x394763); } ///< Hairlines.
    static QColor cobalt() { return {0x39, 0x78, 0xFF}; }            ///< Selected segments, the stage.
    static QColor coral() { return {0xFF, 0x80, 0x5F}; }             ///< The fluid, thumbnail gradients.

Q_SIGNALS:
    void appearanceChanged();

private:
    /// Each triple is 0xRRGGBB.
    QColor adaptive(QRgb light, QRgb dark) const;

    const SystemAppearance &m_appearance;
};
