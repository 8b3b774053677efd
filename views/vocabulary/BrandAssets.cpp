#include "BrandAssets.h"

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QSvgRenderer>

namespace {

/// An icon from an SVG file that needs no plugin for the format.
class DrawnIcon : public QIconEngine
{
public:
    explicit DrawnIcon(const QString &file)
        : m_file(file)
        , m_drawing(file)
    {}

    bool isValid() const { return m_drawing.isValid(); }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode, QIcon::State) override
    {
        m_drawing.render(painter, rect);
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, picture.rect(), mode, state);
        return picture;
    }
    QIconEngine *clone() const override { return new DrawnIcon(m_file); }

private:
    QString m_file;
    QSvgRenderer m_drawing;
};

} // namespace

QIcon BrandAssets::loadIcon(const QString &resource, const QString &themeName)
{
    if (QFile::exists(resource)) {
        auto drawn = std::make_unique<DrawnIcon>(resource);
        if (drawn->isValid()) {
            return QIcon(drawn.release());
        }
    }
    return QIcon::fromTheme(themeName);
}

const QIcon &BrandAssets::icon()
{
    static const QIcon shared =
        loadIcon(QStringLiteral(":/icon/AppIcon.svg"), QStringLiteral("io.lumaport.Lumaport"));
    return shared;
}
