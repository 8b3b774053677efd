#include "StatusMenu.h"

#include "AppModel.h"
#include "WatchingCommand.h"

#include <QCoreApplication>

namespace {

QString text(const char *key)
{
    return QCoreApplication::translate("StatusMenu", key);
}

StatusMenuEntry command(const char *title, std::function<void()> action)
{
    return {.title = text(title), .isChecked = {}, .action = std::move(action)};
}

StatusMenuEntry separator()
{
    return {.kind = StatusMenuEntry::Kind::separator, .title = {}, .isChecked = {}, .action = {}};
}

StatusMenuEntry monitoring(AppModel &model)
{
    if (!model.monitorAvailable()) {
        return command(QT_TRANSLATE_NOOP("StatusMenu", "Retry"), [&model] { model.retryMonitoring(); });
    }
    return {.title = WatchingCommand::title(model), .isChecked = {}, .action = [&model] {
                WatchingCommand::perform(model);
            }};
}

StatusMenuEntry revealing(AppModel &model)
{
    const QList<ConversionItem> items = model.items();
    const bool isReady = !items.isEmpty() && items.constFirst().status == ConversionStatus::ready;
    StatusMenuEntry entry = command(QT_TRANSLATE_NOOP("StatusMenu", "Reveal in Finder"), [&model] {
        if (!model.items().isEmpty()) {
            model.reveal(model.items().constFirst());
        }
    });
    entry.isEnabled = isReady;
    return entry;
}

StatusMenuEntry format(AppModel &model, OutputFormat choice, const char *title)
{
    StatusMenuEntry entry = command(title, [&model, choice] {
        ConversionSettings settings = model.settings();
        settings.format = choice;
        model.setSettings(settings);
    });
    entry.isChecked = model.settings().format == choice;
    return entry;
}

} // namespace

QList<StatusMenuEntry> StatusMenu::entries(AppModel &model, const Actions &actions)
{
    StatusMenuEntry state{.title = model.monitorTitle(), .isEnabled = false, .isChecked = {}, .action = {}};
    return {
        std::move(state),
        monitoring(model),
        revealing(model),
        separator(),
        format(model, OutputFormat::png, QT_TRANSLATE_NOOP("StatusMenu", "Convert to PNG")),
        format(model, OutputFormat::jpeg, QT_TRANSLATE_NOOP("StatusMenu", "Convert to JPEG")),
        separator(),
        command(QT_TRANSLATE_NOOP("StatusMenu", "Show Quick Panel"), actions.showQuickPanel),
        command(QT_TRANSLATE_NOOP("StatusMenu", "Open Lumaport"), actions.openMain),
        command(QT_TRANSLATE_NOOP("StatusMenu", "Quit Lumaport"), actions.quit),
    };
}
