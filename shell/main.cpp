#include "AccessibleItems.h"
#include "BrandAssets.h"
#include "GraphicsHardware.h"
#include "LumaportApp.h"
#include "SingleInstance.h"
#include "TerminationSignals.h"
#include "Typeface.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDir>
#include <QQuickStyle>
#include <QQuickWindow>

namespace {

/// Qt's software renderer where there is no graphics processor, unless whoever starts the program says
/// otherwise by Qt's own means.
void chooseRenderer()
{
    if (!GraphicsHardware::isPresent() && !qEnvironmentVariableIsSet("QT_QUICK_BACKEND") &&
        !qEnvironmentVariableIsSet("QSG_RHI_BACKEND")) {
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    }
}

constexpr int mostUnanswered = 3;

} // namespace

int main(int argc, char **argv)
{
    QApplication::setApplicationName(QStringLiteral("lumaport"));
    // No display name: Qt would append it to the title of every window.
    QApplication::setDesktopFileName(QStringLiteral("io.lumaport.Lumaport"));
    QApplication::setApplicationVersion(QStringLiteral(LUMAPORT_VERSION));
    const QApplication application(argc, argv);
    QApplication::setWindowIcon(BrandAssets::icon());
    QApplication::setFont(Typeface::preferred(QApplication::font()));
    chooseRenderer();
    AccessibleItems::install();
    QQuickStyle::setStyle(QStringLiteral("Basic"));

    QList<QUrl> files;
    const QStringList arguments = QApplication::arguments().mid(1);
    for (const QString &argument : arguments) {
        files.append(QUrl::fromUserInput(argument, QDir::currentPath(), QUrl::AssumeLocalFile));
    }
    SingleInstance instance(QDBusConnection::sessionBus());
    int unanswered = 0;
    while (!instance.claim()) {
        if (instance.forward(files)) {
            return 0;
        }
        // The first process was on its way out, and this one takes its place unless another does; or it
        // hangs.
        if (++unanswered == mostUnanswered) {
            return 1;
        }
    }
    const TerminationSignals terminationSignals;
    QObject::connect(&terminationSignals, &TerminationSignals::received, &application, &QApplication::quit);
    const LumaportApp lumaport(instance);
    if (!files.isEmpty()) {
        Q_EMIT instance.opened(files);
    }
    return QApplication::exec();
}
