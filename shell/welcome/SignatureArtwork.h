#pragma once

#include <QImage>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

/// The signature artwork, scaled to fit. It is wiped in from the leading edge, and a shimmer sweeps over it
/// that is masked by the artwork.
class SignatureArtwork : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString source READ source WRITE setSource NOTIFY sourceChanged)
    Q_PROPERTY(bool available READ isAvailable NOTIFY sourceChanged)
    Q_PROPERTY(double revealProgress MEMBER m_revealProgress NOTIFY progressChanged)
    Q_PROPERTY(double shimmerProgress MEMBER m_shimmerProgress NOTIFY progressChanged)

public:
    /// Shows the artwork that is shipped with the application.
    explicit SignatureArtwork(QQuickItem *parent = nullptr);

    /// Path of the image file.
    QString source() const { return m_source; }
    void setSource(const QString &path);
    bool isAvailable() const { return !m_image.isNull(); }

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void sourceChanged();
    void progressChanged();

private:
    /// The shimmer over `artwork`, which is in the middle of a frame `frameWidth` pixels wide.
    QImage shimmer(const QImage &artwork, double frameWidth) const;

    QString m_source;
    QImage m_image;
    QImage m_scaled; ///< m_image at the screen's resolution, as last painted
    double m_revealProgress = 0.0;
    double m_shimmerProgress = 0.0;
};
