#pragma once

#include "PaintedImage.h"

#include <QImage>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

#include <memory>

class ThumbnailRequest;

/// A small picture of a photo file, filling its frame; while there is none, mountains on a gradient.
///
/// The picture comes from the thumbnail store whenever `url` changes; an empty url shows the mountains.
/// Hidden from accessibility.
class PhotoThumbnail : public PaintedImage
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QUrl url READ url WRITE setUrl NOTIFY urlChanged)
    Q_PROPERTY(int variant MEMBER m_variant NOTIFY frameChanged)
    Q_PROPERTY(double cornerRadius MEMBER m_cornerRadius NOTIFY frameChanged)
    Q_PROPERTY(bool loaded READ isLoaded NOTIFY loadedChanged)

public:
    explicit PhotoThumbnail(QQuickItem *parent = nullptr);
    ~PhotoThumbnail() override;

    QUrl url() const { return m_url; }
    bool isLoaded() const { return !m_image.isNull(); }

    void setUrl(const QUrl &url);

Q_SIGNALS:
    void urlChanged();
    void frameChanged();
    void loadedChanged();

protected:
    void paint(QPainter *painter) override;

private:
    void setImage(const QImage &image);

    QUrl m_url;
    int m_variant = 0;           ///< of the gradient: an odd number is warm, an even one blue
    double m_cornerRadius = 0.0; ///< of the frame, in points
    QImage m_image;
    std::unique_ptr<ThumbnailRequest> m_request;
};
