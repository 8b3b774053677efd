#pragma once

#include <QFile>
#include <QUrl>

/// Writes a whole file and gives its URL. Ends the test when it cannot.
inline QUrl writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("cannot write %s", qPrintable(path));
    }
    return QUrl::fromLocalFile(path);
}
