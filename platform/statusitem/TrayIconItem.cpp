#include "TrayIconItem.h"

#include <QActionGroup>
#include <QIcon>
#include <QMenu>
#include <QPixmap>
#include <QSystemTrayIcon>

TrayIconItem::TrayIconItem(QObject *parent)
    : StatusItem(parent)
    , m_menu(std::make_unique<QMenu>())
    , m_choices(std::make_unique<QActionGroup>(nullptr))
    , m_icon(std::make_unique<QSystemTrayIcon>())
{
    m_icon->setContextMenu(m_menu.get());
    connect(m_icon.get(), &QSystemTrayIcon::activated, this,
            [this](QSystemTrayIcon::ActivationReason reason) {
                // The second of two quick clicks is reported as a double click only.
                if (reason == QSystemTrayIcon::Trigger || reason == QSystemTrayIcon::DoubleClick) {
                    Q_EMIT activated();
                }
            });
}

TrayIconItem::~TrayIconItem() = default;

void TrayIconItem::setLook(const StatusItemLook &look)
{
    QIcon icon;
    for (const QImage &image : look.images) {
        icon.addPixmap(QPixmap::fromImage(image));
    }
    m_icon->setIcon(icon);
    m_icon->setToolTip(look.toolTip);
    m_icon->show(); // trays refuse an icon without a picture
}

void TrayIconItem::setMenu(const QList<StatusMenuEntry> &entries)
{
    m_entries = entries;
    // The menu may be open: its lines change in place.
    while (m_menu->actions().size() > entries.size()) {
        delete m_menu->actions().constLast();
    }
    while (m_menu->actions().size() < entries.size()) {
        addLine();
    }
    for (qsizetype line = 0; line < entries.size(); ++line) {
        show(entries.at(line), *m_menu->actions().at(line));
    }
}

void TrayIconItem::addLine()
{
    const qsizetype line = m_menu->actions().size();
    connect(m_menu->addAction(QString()), &QAction::triggered, this, [this, line] {
        if (const auto action = m_entries.at(line).action) { // a copy: it may change the entries
            action();
        }
    });
}

void TrayIconItem::show(const StatusMenuEntry &entry, QAction &line)
{
    line.setSeparator(entry.kind == StatusMenuEntry::Kind::separator);
    line.setText(entry.title);
    line.setEnabled(entry.isEnabled);
    line.setCheckable(entry.isChecked.has_value());
    const bool isChoice = entry.isChecked && entry.kind == StatusMenuEntry::Kind::command;
    line.setActionGroup(isChoice ? m_choices.get() : nullptr);
    line.setChecked(entry.isChecked.value_or(false));
}

std::optional<QRect> TrayIconItem::place() const
{
    const QRect geometry = m_icon->geometry();
    return geometry.isEmpty() ? std::nullopt : std::optional(geometry);
}

bool TrayIconItem::isShown() const
{
    return QSystemTrayIcon::isSystemTrayAvailable();
}
