#include "DefaultsStore.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class DefaultsStoreTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;
    QString path(const QString &name = "lumaport.conf") const { return m_folder->filePath(name); }

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void shouldBeOnDiskAtOnce()
    {
        const auto written = DefaultsStore::inFile(path("new/lumaport.conf"));
        const QByteArray json = "{\"a\":[1,\"’\\\"\",null],\n\"b\":\"x=y;z,%\"}";
        const QString text = "/home/a, b/Фото \"1\" @x";
        written->store("data", json);
        written->store("text", text);
        written->store("no", false);

        // A copy is read: Qt keeps what it has read of a file in memory.
        QVERIFY(QFile::copy(path("new/lumaport.conf"), path("copy.conf")));
        const auto read = DefaultsStore::inFile(path("copy.conf"));
        QCOMPARE(read->data("data"), std::optional(json));
        QCOMPARE(read->text("text"), std::optional(text));
        QCOMPARE(read->boolean("no"), std::optional(false));
        QVERIFY(!read->text("absent") && !read->boolean("text"));
    }

    void shouldReadGarbageAsAbsentAndStillStore()
    {
        const QByteArray garbage("\xff\x00\x01[[[\n=\nisWatching=@Invalid(\ndata=@ByteArray(\n", 46);
        QFile file(path());
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(garbage) == garbage.size());
        file.close();
        const auto store = DefaultsStore::inFile(path());
        QVERIFY(!store->boolean("isWatching") && !store->text("watchFolder"));
        store->store("isWatching", true);
        QVERIFY(file.open(QIODevice::ReadOnly) && file.readAll().contains("isWatching=true"));
    }

    void shouldWriteOnlyWhatChanged()
    {
        const auto store = DefaultsStore::inFile(path());
        store->store("items", QByteArray("[]"));
        QVERIFY(QFile::remove(path()));
        store->store("items", QByteArray("[]"));
        QVERIFY(!QFile::exists(path()));
        store->store("items", QByteArray("[1]"));
        QVERIFY(QFile::exists(path()));
    }
};

QTEST_GUILESS_MAIN(DefaultsStoreTest)
#include "DefaultsStoreTest.moc"
