#pragma once

#include <QDir>
#include <QFile>
#include <QThread>

#include <unistd.h>

/// The child processes of @p process.
inline QList<int> childrenOf(int process)
{
    QList<int> children;
    const QDir tasks(QStringLiteral("/proc/%1/task").arg(process));
    const QStringList threads = tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &thread : threads) {
        QFile file(tasks.filePath(thread + QStringLiteral("/children")));
        file.open(QFile::ReadOnly);
        for (const QByteArray &child : file.readAll().simplified().split(' ')) {
            if (!child.isEmpty()) {
                children.append(child.toInt());
            }
        }
    }
    return children;
}

/// The number of worker processes at this moment.
inline qsizetype workerCount()
{
    qsizetype count = 0;
    for (const int program : childrenOf(::getpid())) {
        count += childrenOf(program).size();
    }
    return count;
}

/// Waits until each exited worker was reaped, so that its processor time counts as this process's.
inline void awaitBookingOfWorkers()
{
    const auto isUnbooked = [](int worker) {
        QFile file(QStringLiteral("/proc/%1/stat").arg(worker));
        return file.open(QFile::ReadOnly) && file.readAll().contains(") Z ");
    };
    for (const int program : childrenOf(::getpid())) {
        for (const int worker : childrenOf(program)) {
            while (isUnbooked(worker)) {
                QThread::msleep(1);
            }
        }
    }
}
