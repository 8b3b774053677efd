#include "PhotoLandingStageController.h"

#include "AppModel.h"
#include "ConversionItemTexts.h"

namespace {

constexpr int cardCount = 3;

} // namespace

PhotoLandingStageController::PhotoLandingStageController(const AppModel &model, QObject *parent)
    : QAbstractListModel(parent)
    , m_model(model)
{
    const auto cardsChanged = [this] { Q_EMIT dataChanged(index(0), index(cardCount - 1)); };
    connect(&model, &AppModel::itemsChanged, this, cardsChanged);
    connect(&model, &AppModel::activeStatusChanged, this, cardsChanged);
    connect(&model, &AppModel::activeStatusChanged, this, &PhotoLandingStageController::changed);
    connect(&model, &AppModel::isDropTargetedChanged, this, &PhotoLandingStageController::changed);
}

void PhotoLandingStageController::setHovered(bool hovered)
{
    if (m_hovered != hovered) {
        m_hovered = hovered;
        Q_EMIT changed();
    }
}

bool PhotoLandingStageController::isExpanded() const
{
    return m_model.isDropTargeted() || m_hovered || m_model.activeStatus() == ConversionStatus::ready;
}

bool PhotoLandingStageController::showsFluid() const
{
    return m_model.activeStatus() == ConversionStatus::queued || isFluidActive();
}

bool PhotoLandingStageController::isFluidActive() const
{
    return m_model.activeStatus() == ConversionStatus::converting;
}

QString PhotoLandingStageController::badgeSymbol() const
{
    if (showsFluid()) {
        return {};
    }
    if (m_model.activeStatus() == ConversionStatus::ready) {
        return QStringLiteral("checkmark");
    }
    return m_model.activeStatus() == ConversionStatus::failed ? QStringLiteral("exclamationmark")
                                                              : QStringLiteral("arrow.down");
}

int PhotoLandingStageController::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : cardCount;
}

QVariant PhotoLandingStageController::data(const QModelIndex &index, int role) const
{
    const bool announcesReady = index.row() == 0 && m_model.activeStatus() == ConversionStatus::ready;
    switch (role) {
    case UrlRole: {
        const QList<ConversionItem> items = m_model.items();
        if (index.row() >= items.size()) {
            return QUrl();
        }
        return ConversionItemTexts::displayFile(items.at(index.row()));
    }
    case CaptionRole:
        return announcesReady ? tr("Ready") : tr("Photo");
    case SymbolRole:
        return announcesReady ? QStringLiteral("checkmark") : QStringLiteral("photo");
    default:
        return {};
    }
}

QHash<int, QByteArray> PhotoLandingStageController::roleNames() const
{
    return {{UrlRole, "url"}, {CaptionRole, "caption"}, {SymbolRole, "symbol"}};
}
