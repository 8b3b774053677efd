#include "OpenPanel.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QGuiApplication>
#include <QPointer>
#include <QWindow>

#include <algorithm>

namespace {

/// The shown window that is no dialog, tool or pop-up; null without one.
QWindow *mainWindow()
{
    const QWindowList windows = QGuiApplication::topLevelWindows();
    const auto found = std::ranges::find_if(
        windows, [](const QWindow *window) { return window->isVisible() && window->type() == Qt::Window; });
    return found == windows.end() ? nullptr : *found;
}

/// The desktop's own file dialog where it gives one, else Qt's.
class DialogOpenPanel : public OpenPanel
{
public:
    DialogOpenPanel() = default;
    ~DialogOpenPanel() override { delete m_dialog; }
    Q_DISABLE_COPY_MOVE(DialogOpenPanel)

    void show(const OpenPanelRequest &request, std::function<void(const QList<QUrl> &)> chosen) override
    {
        if (m_dialog) {
            m_dialog->raise();
            m_dialog->activateWindow();
            return;
        }
        m_dialog = new QFileDialog(nullptr, request.title);
        m_dialog->setAttribute(Qt::WA_DeleteOnClose);
        m_dialog->winId(); // makes the native window
        m_dialog->windowHandle()->setTransientParent(mainWindow());
        m_dialog->setSupportedSchemes({QStringLiteral("file")});
        m_dialog->setLabelText(QFileDialog::Accept, request.prompt);
        if (request.choice == OpenPanelRequest::Choice::oneFolder) {
            m_dialog->setFileMode(QFileDialog::Directory);
            m_dialog->setOption(QFileDialog::ShowDirsOnly);
        } else {
            m_dialog->setFileMode(QFileDialog::ExistingFiles);
            // Both letter cases by name: the filters of some dialogs tell them apart.
            m_dialog->setNameFilter(QCoreApplication::translate("OpenPanel", "HEIC and HEIF photos") +
                                    QStringLiteral(" (*.heic *.heif *.HEIC *.HEIF)"));
        }
        if (!request.folder.isEmpty()) {
            m_dialog->setDirectoryUrl(request.folder);
        }
        QObject::connect(m_dialog, &QDialog::accepted, m_dialog,
                         [dialog = m_dialog.data(), chosen = std::move(chosen)] {
                             const QList<QUrl> urls = dialog->selectedUrls();
                             if (!urls.isEmpty()) {
                                 chosen(urls);
                             }
                         });
        m_dialog->open();
    }

private:
    QPointer<QFileDialog> m_dialog;
};

} // namespace

std::unique_ptr<OpenPanel> OpenPanel::create()
{
    return std::make_unique<DialogOpenPanel>();
}
