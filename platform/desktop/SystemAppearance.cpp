#include "SystemAppearance.h"

#include <QFont>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QPalette>

namespace {

bool isDarkPalette(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

// The desktop's own palette where it is as light or dark as wanted, because it has the desktop's accent and
// contrast; else two colours from which Qt derives the rest.
void applyWidgetPalette(SystemAppearance::ColorScheme scheme)
{
    const bool wantsDark = scheme == SystemAppearance::ColorScheme::Dark;
    QGuiApplication::setPalette(QPalette());
    if (isDarkPalette(QGuiApplication::palette()) == wantsDark) {
        return;
    }
    const QColor darkButton(0x25, 0x2F, 0x49);
    const QColor darkWindow(0x17, 0x1C, 0x30);
    const QColor lightButton(0xFF, 0xFF, 0xFF);
    const QColor lightWindow(0xF5, 0xF8, 0xFF);
    QPalette palette = wantsDark ? QPalette(darkButton, darkWindow) : QPalette(lightButton, lightWindow);
    // Qt derives every colour but those of tool tips, which it leaves yellow.
    palette.setColor(QPalette::ToolTipBase, palette.color(QPalette::Window));
    palette.setColor(QPalette::ToolTipText, palette.color(QPalette::WindowText));
    QGuiApplication::setPalette(palette);
}

/// The longest start of `description` that is the name of an installed family; empty without one.
QString familyIn(const QString &description)
{
    QStringList words =
        description.section(QLatin1Char(','), 0, 0).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    while (!words.isEmpty() && !QFontDatabase::hasFamily(words.join(QLatin1Char(' ')))) {
        words.removeLast();
    }
    return words.join(QLatin1Char(' '));
}

} // namespace

SystemAppearance::SystemAppearance(QObject *parent)
    : QObject(parent)
{
    // Where the desktop names no font, Qt's font is a stand-in such as "Sans Serif", which is no family.
    setSystemFont(QGuiApplication::font().family());
}

void SystemAppearance::setSystemFont(const QString &description)
{
    const QString installed = familyIn(description);
    const QString family = installed.isEmpty() ? QStringLiteral("Inter") : installed;
    if (m_fontFamily != family) {
        m_fontFamily = family;
        QFont font = QGuiApplication::font();
        font.setFamily(family);
        QGuiApplication::setFont(font);
        Q_EMIT fontFamilyChanged();
    }
}

void SystemAppearance::setSystemScheme(ColorScheme scheme)
{
    m_system = scheme;
    update();
}

void SystemAppearance::setMotion(Motion motion)
{
    if (m_motion == motion) {
        return;
    }
    m_motion = motion;
    Q_EMIT reduceMotionChanged();
}

void SystemAppearance::force(std::optional<ColorScheme> scheme)
{
    m_forced = scheme;
    update();
}

void SystemAppearance::update()
{
    const ColorScheme effective = m_forced.value_or(m_system);
    applyWidgetPalette(effective); // even if the scheme stays: the desktop's own palette may have changed
    if (m_effective != effective) {
        m_effective = effective;
        Q_EMIT darkChanged();
    }
}
