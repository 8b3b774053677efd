#pragma once

#include <QDir>
#include <QFile>
#include <QThread>

#include <unistd.h>

/// Children of process @p process, by all its threads.
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

/// Workers that are there at this moment, whoever raised them.
inline qsizetype workerCount()
{
    qsizetype count = 0;
    for (const int program : childrenOf(::getpid())) {
        count += childrenOf(program).size();
    }
    return count;
}

/// Waits until the time of each worker that has ended is booked to this process.
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
