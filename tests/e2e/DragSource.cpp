#include <QApplication>
#include <QDrag>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>

// A file manager of one file: a small window in the corner of the screen, from which the files of the command
// line can be dragged. It stays until it is ended: on X11 the other side reads the data after the drop.
class DragSource : public QLabel
{
public:
    explicit DragSource(const QStringList &files)
        : QLabel(QStringLiteral("drag me"))
    {
        for (const QString &file : files) {
            m_urls.append(QUrl::fromLocalFile(file));
        }
        setWindowFlags(Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::X11BypassWindowManagerHint);
        setWindowTitle(QStringLiteral("Drag source"));
        setGeometry(0, 0, 80, 60);
    }

protected:
    void mouseMoveEvent(QMouseEvent *event) override
    {
        if (event->buttons() != Qt::LeftButton) {
            return;
        }
        auto *files = new QMimeData;
        files->setUrls(m_urls);
        auto *drag = new QDrag(this);
        drag->setMimeData(files);
        drag->exec(Qt::CopyAction);
    }

private:
    QList<QUrl> m_urls;
};

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    DragSource source(QApplication::arguments().mid(1));
    source.show();
    return QApplication::exec();
}
