#include "ArrivalsListModel.h"

#include "ConversionItemTexts.h"

void ArrivalsListModel::setItems(const QList<ConversionItem> &items)
{
    removeRowsMissingIn(items);
    for (int row = 0; row < items.size(); ++row) {
        place(items.at(row), row);
    }
}

int ArrivalsListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_items.size());
}

QVariant ArrivalsListModel::data(const QModelIndex &index, int role) const
{
    const ConversionItem &item = m_items.at(index.row());
    switch (role) {
    case DisplayName:
        return ConversionItemTexts::displayName(item);
    case DisplayFile:
        return ConversionItemTexts::displayFile(item);
    case StatusSymbol:
        return ConversionItemTexts::statusSymbol(item);
    case StatusText:
        return ConversionItemTexts::statusText(item, tr("Couldn’t convert. Try choosing the photo again."));
    case IsFailed:
        return item.status == ConversionStatus::failed;
    case RowAction:
        if (item.status == ConversionStatus::ready) {
            return Reveal;
        }
        return item.status == ConversionStatus::failed ? TryAgain : NoAction;
    case RevealLabel:
        return tr("Reveal %1 in Finder").arg(ConversionItemTexts::displayName(item));
    default:
        return {};
    }
}

QHash<int, QByteArray> ArrivalsListModel::roleNames() const
{
    return {{DisplayName, "displayName"}, {DisplayFile, "displayFile"}, {StatusSymbol, "statusSymbol"},
            {StatusText, "statusText"},   {IsFailed, "isFailed"},       {RowAction, "rowAction"},
            {RevealLabel, "revealLabel"}};
}

int ArrivalsListModel::rowOf(const QUuid &id, int from) const
{
    for (int row = from; row < m_items.size(); ++row) {
        if (m_items.at(row).id == id) {
            return row;
        }
    }
    return -1;
}

void ArrivalsListModel::removeRowsMissingIn(const QList<ConversionItem> &items)
{
    for (int row = static_cast<int>(m_items.size()) - 1; row >= 0; --row) {
        const bool stays = std::any_of(items.begin(), items.end(), [&](const ConversionItem &item) {
            return item.id == m_items.at(row).id;
        });
        if (!stays) {
            beginRemoveRows({}, row, row);
            m_items.removeAt(row);
            endRemoveRows();
        }
    }
}

// The rows before `row` are in place already.
void ArrivalsListModel::place(const ConversionItem &item, int row)
{
    const int current = rowOf(item.id, row);
    if (current < 0) {
        beginInsertRows({}, row, row);
        m_items.insert(row, item);
        endInsertRows();
        return;
    }
    if (current != row) {
        beginMoveRows({}, current, current, {}, row);
        m_items.move(current, row);
        endMoveRows();
    }
    if (m_items.at(row) != item) {
        m_items[row] = item;
        Q_EMIT dataChanged(index(row), index(row));
    }
}
