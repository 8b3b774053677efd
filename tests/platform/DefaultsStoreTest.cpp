#include "DefaultsStore.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

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

        const auto read = DefaultsStore::inFile(path); // while the first is still open
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
        QCOMPARE(*DefaultsStore::inFile(path)->boolean(QStringLiteral("isWatching")), true);
    }
};

QTEST_GUILESS_MAIN(DefaultsStoreTest)
#include "DefaultsStoreTest.moc"
