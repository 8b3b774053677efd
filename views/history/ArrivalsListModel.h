#pragma once

#include "ConversionItem.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

/// The history as rows for a view. A new history keeps the rows that stay, by identity, so that a change of
/// status touches one row and reloads nothing.
class ArrivalsListModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by its controller")

public:
    enum Role {
        DisplayName = Qt::UserRole, ///< the converted file's name, else the source's
        DisplayFile,                ///< the converted file, else the source
        StatusSymbol,
        StatusText,
        IsFailed,
        RowAction,
        RevealLabel, ///< what the reveal button says to a screen reader
    };

    /// What the user can do with a row.
    enum Action { NoAction, Reveal, TryAgain };
    Q_ENUM(Action)

    using QAbstractListModel::QAbstractListModel;

    void setItems(const QList<ConversionItem> &items);
    const ConversionItem &item(int row) const { return m_items.at(row); }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    int rowOf(const QUuid &id, int from) const;
    void removeRowsMissingIn(const QList<ConversionItem> &items);
    void place(const ConversionItem &item, int row);

    QList<ConversionItem> m_items;
};
