#pragma once

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

class AppModel;

/// What the landing stage shows of the model. As a list it is the three photo cards, from left to right;
/// there are always three, so that a card keeps its place and its picture while what it shows changes.
class PhotoLandingStageController : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("A part of the main window's controller.")
    Q_PROPERTY(bool hovered READ isHovered WRITE setHovered NOTIFY changed)
    Q_PROPERTY(bool expanded READ isExpanded NOTIFY changed)
    Q_PROPERTY(bool showsFluid READ showsFluid NOTIFY changed)
    Q_PROPERTY(bool fluidActive READ isFluidActive NOTIFY changed)
    Q_PROPERTY(QString badgeSymbol READ badgeSymbol NOTIFY changed)

public:
    enum Role {
        UrlRole =
            Qt::UserRole, ///< the file to show: the converted one, else the source; empty without an entry
        CaptionRole,
        SymbolRole,
    };

    /// `model` must outlive the controller.
    explicit PhotoLandingStageController(const AppModel &model, QObject *parent = nullptr);

    /// The pointer is over the stage.
    bool isHovered() const { return m_hovered; }
    void setHovered(bool hovered);
    /// The cards are fanned out and the folder is open.
    bool isExpanded() const;
    /// The badge is the fluid, still while a photo waits and active while one is converted.
    bool showsFluid() const;
    bool isFluidActive() const;
    /// The badge's symbol; empty while it is the fluid.
    QString badgeSymbol() const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void changed();

private:
    const AppModel &m_model;
    bool m_hovered = false;
};
