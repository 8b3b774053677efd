#include "StatusMenu.h"

#include "AppModel.h"
#include "LoginItem.h"

namespace {

const StatusMenuEntry separator{.kind = StatusMenuEntry::Kind::separator};

StatusMenuEntry command(const QString &title, std::function<void()> action)
{
    return {.title = title, .action = std::move(action)};
}

StatusMenuEntry monitoring(AppModel &model)
{
    if (!model.monitorAvailable()) {
        return command(StatusMenu::tr("Retry"), [&model] { model.retryMonitoring(); });
    }
    return command(StatusMenu::watchingTitle(model), [&model] { model.setIsWatching(!model.isWatching()); });
}

StatusMenuEntry revealing(AppModel &model)
{
    StatusMenuEntry entry =
        command(StatusMenu::tr("Reveal in Finder"), [&model] { model.reveal(model.items().value(0)); });
    entry.isEnabled = model.items().value(0).status == ConversionStatus::ready;
    return entry;
}

StatusMenuEntry format(AppModel &model, OutputFormat choice, const QString &title)
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

QList<StatusMenuEntry> StatusMenu::entries(AppModel &model, LoginItem &loginItem, const Actions &actions)
{
    return {
        {.title = model.monitorTitle(), .isEnabled = false},
        monitoring(model),
        revealing(model),
        command(tr("Convert HEIC Photos in Watched Folder"), [&model] { model.convertExistingFiles(); }),
        separator,
        format(model, OutputFormat::png, tr("Convert to PNG")),
        format(model, OutputFormat::jpeg, tr("Convert to JPEG")),
        separator,
        command(tr("Show Quick Panel"), actions.showQuickPanel),
        command(tr("Open Lumaport"), actions.openMain),
        command(tr("Replay Signature Welcome"), actions.replayWelcome),
        {.kind = StatusMenuEntry::Kind::toggle,
         .title = tr("Start at Login"),
         .isChecked = loginItem.isEnabled(),
         .action = [&loginItem] { loginItem.setEnabled(!loginItem.isEnabled()); }},
        command(tr("Quit Lumaport"), &QCoreApplication::quit),
    };
}

QString StatusMenu::watchingTitle(const AppModel &model)
{
    return model.isWatching() ? tr("Pause Watching") : tr("Resume Watching");
}
