#include "LoginItem.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QSettings>
#include <QStandardPaths>

namespace {

// The bus starts the program by its name and activates nothing, so that no window opens.
constexpr const char *entry = "[Desktop Entry]\n"
                              "Type=Application\n"
                              "Name=Lumaport\n"
                              "Icon=io.lumaport.Lumaport\n"
                              "Exec=dbus-send --session --type=method_call --dest=org.freedesktop.DBus "
                              "/org/freedesktop/DBus org.freedesktop.DBus.StartServiceByName "
                              "string:io.lumaport.Lumaport uint32:0\n";

/// What "Hidden" and desktops' own keys make of an entry that exists.
bool isInForce(const QString &file)
{
    const QSettings settings(file, QSettings::IniFormat);
    const auto value = [&](const QString &key) {
        return settings.value(QStringLiteral("Desktop Entry/") + key).toString();
    };
    return value(QStringLiteral("Hidden")) != QLatin1String("true") &&
           value(QStringLiteral("X-GNOME-Autostart-enabled")) != QLatin1String("false");
}

} // namespace

LoginItem::LoginItem(const QString &folder, QObject *parent)
    : QObject(parent)
    , m_file(folder + QStringLiteral("/io.lumaport.Lumaport.desktop"))
{
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &LoginItem::look);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &LoginItem::look);
    look();
}

QString LoginItem::userFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/autostart");
}

void LoginItem::setEnabled(bool enabled)
{
    if (enabled) {
        QDir().mkpath(QFileInfo(m_file).path());
        QSaveFile file(m_file);
        if (file.open(QIODevice::WriteOnly)) {
            file.write(entry);
            file.commit();
        }
    } else {
        QFile::remove(m_file);
    }
    look();
}

void LoginItem::look()
{
    // Each is watched once it exists; the folder above tells when the folder comes.
    const QString folder = QFileInfo(m_file).path();
    for (const QString &path : {QFileInfo(folder).path(), folder, m_file}) {
        if (QFile::exists(path)) {
            m_watcher.addPath(path);
        }
    }
    const bool isEnabled = QFile::exists(m_file) && isInForce(m_file);
    if (isEnabled != m_isEnabled) {
        m_isEnabled = isEnabled;
        Q_EMIT enabledChanged();
    }
}
