#include "DefaultsStore.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

namespace {

ino_t fileNumber(const QString &path)
{
    struct stat status = {};
    return ::stat(qPrintable(path), &status) == 0 ? status.st_ino : 0;
}

} // namespace

class DefaultsStoreTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldBeOnDiskAtOnce()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("new/lumaport.conf"));
        const auto written = DefaultsStore::inFile(path);
        const QByteArray json = "{\"a\":[1,\"’\\\"\",null],\n\"b\":\"x=y;z,%\"}";
        written->store(QStringLiteral("data"), json);
        written->store(QStringLiteral("text"), QStringLiteral("/home/a, b/Фото \"1\" @x"));
        written->store(QStringLiteral("no"), false);

        const QTemporaryDir later; // what a program that starts now would find, whatever this one remembers
        const QString copy = later.filePath(QStringLiteral("copy.conf"));
        QVERIFY(QFile::copy(path, copy));
        const auto read = DefaultsStore::inFile(copy);
        QCOMPARE(*read->data(QStringLiteral("data")), json);
        QCOMPARE(*read->text(QStringLiteral("text")), QStringLiteral("/home/a, b/Фото \"1\" @x"));
        QCOMPARE(*read->boolean(QStringLiteral("no")), false);
        QVERIFY(!read->text(QStringLiteral("absent")) && !read->boolean(QStringLiteral("text")));
    }

    void shouldReadGarbageAsAbsentAndStillStore()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("lumaport.conf"));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) &&
                file.write("\xff\x00\x01[[[\n=\nisWatching=@Invalid(\ndata=@ByteArray(\n", 46) > 0);
        file.close();
        const auto store = DefaultsStore::inFile(path);
        QVERIFY(!store->boolean(QStringLiteral("isWatching")));
        QVERIFY(!store->text(QStringLiteral("watchFolder")));
        store->store(QStringLiteral("isWatching"), true);
        QVERIFY(file.open(QIODevice::ReadOnly) && file.readAll().contains("isWatching=true"));
    }

    void shouldWriteOnlyWhatChanged()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("lumaport.conf"));
        const auto store = DefaultsStore::inFile(path);
        store->store(QStringLiteral("items"), QByteArray("[]"));
        const ino_t first = fileNumber(path);
        store->store(QStringLiteral("items"), QByteArray("[]"));
        QCOMPARE(fileNumber(path), first); // each write replaces the file
        store->store(QStringLiteral("items"), QByteArray("[1]"));
        QVERIFY(fileNumber(path) != first);
    }
};

QTEST_GUILESS_MAIN(DefaultsStoreTest)
#include "DefaultsStoreTest.moc"
