#include "AccessibleItems.h"
#include "BrandAssets.h"
#include "GraphicsHardware.h"
#include "LumaportApp.h"
#include "SingleInstance.h"
#include "TerminationSignals.h"
#include "Translations.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDir>
#include <QQuickStyle>
#include <QQuickWindow>

#include <chrono>
#include <cstdio>

namespace {

/// Chooses Qt's software renderer where there is no graphics processor, unless Qt's own environment variables
/// name a renderer.
void chooseRenderer()
{
    if (!GraphicsHardware::isPresent() && !qEnvironmentVariableIsSet("QT_QUICK_BACKEND") &&
        !qEnvironmentVariableIsSet("QSG_RHI_BACKEND")) {
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    }
}

// To hand the files to the first process.
constexpr int mostAttempts = 3;
constexpr std::chrono::seconds patience{4};

} // namespace

int main(int argc, char **argv)
{
    QApplication::setApplicationName(QStringLiteral("lumaport"));
    // No display name: Qt would append it to the title of every window.
    QApplication::setDesktopFileName(QStringLiteral("io.lumaport.Lumaport"));
    QApplication::setApplicationVersion(QStringLiteral(LUMAPORT_VERSION));
    const QApplication application(argc, argv);
    const Translations translations;
    QApplication::setWindowIcon(BrandAssets::icon());
    chooseRenderer();
    AccessibleItems::install();
    QQuickStyle::setStyle(QStringLiteral("Basic"));

    QList<QUrl> files;
    const QStringList arguments = QApplication::arguments().mid(1);
    for (const QString &argument : arguments) {
        files.append(QUrl::fromUserInput(argument, QDir::currentPath(), QUrl::AssumeLocalFile));
    }
    SingleInstance instance(QDBusConnection::sessionBus());
    int attempts = 0;
    const QDeadlineTimer deadline(patience);
    while (!instance.claim()) {
        if (instance.forward(files, deadline)) {
            return 0;
        }
        // The first process is ending, so that this one or another takes its place; or it hangs.
        if (++attempts == mostAttempts || deadline.hasExpired()) {
            std::fputs(QDBusConnection::sessionBus().isConnected()
                           ? "lumaport: is running already, but does not answer\n"
                           : "lumaport: is running already, and cannot be reached without a session bus\n",
                       stderr);
            return 1;
        }
    }
    const TerminationSignals terminationSignals;
    QObject::connect(&terminationSignals, &TerminationSignals::received, &application, &QApplication::quit);
    const LumaportApp lumaport(instance);
    if (!files.isEmpty()) {
        Q_EMIT instance.opened(files);
    }
    const int status = QApplication::exec();
    AccessibleItems::fallSilent();
    return status;
}
