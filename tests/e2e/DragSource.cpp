#include <QApplication>
#include <QDrag>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>

// A file manager of one file: a small window in the corner of the screen, from which the file of the command
// line can be dragged. It stays until it is ended: on X11 the other side reads the data after the drop.
class DragSource : public QLabel
{
protected:
    void mouseMoveEvent(QMouseEvent *event) override
    {
        if (event->buttons() == Qt::LeftButton) {
            auto *file = new QMimeData;
            file->setUrls({QUrl::fromLocalFile(QApplication::arguments().at(1))});
            auto *drag = new QDrag(this);
            drag->setMimeData(file);
            drag->exec(Qt::CopyAction);
        }
    }
};

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    DragSource source;
    source.setWindowFlags(Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                          Qt::X11BypassWindowManagerHint);
    source.setWindowTitle(QStringLiteral("Drag source"));
    source.setGeometry(0, 0, 80, 60);
    source.show();
    return QApplication::exec();
}
