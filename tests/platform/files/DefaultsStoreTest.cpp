#include "DefaultsStore.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class DefaultsStoreTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;
    QString path(const char *name = "lumaport.conf") const { return m_folder->filePath(QLatin1String(name)); }

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void shouldBeOnDiskAtOnce()
    {
        const auto written = DefaultsStore::inFile(path("new/lumaport.conf"));
        const QByteArray json = "{\"a\":[1,\"’\\\"\",null],\n\"b\":\"x=y;z,%\"}";
        const QString text = QStringLiteral("/home/a, b/Фото \"1\" @x");
        written->store(QStringLiteral("data"), json);
        written->store(QStringLiteral("text"), text);
        written->store(QStringLiteral("no"), false);

        // A copy is read: Qt keeps what it has read of a file in memory.
        QVERIFY(QFile::copy(path("new/lumaport.conf"), path("copy.conf")));
        const auto read = DefaultsStore::inFile(path("copy.conf"));
        QCOMPARE(read->data(QStringLiteral("data")), std::optional(json));
        QCOMPARE(read->text(QStringLiteral("text")), std::optional(text));
        QCOMPARE(read->boolean(QStringLiteral("no")), std::optional(false));
        QVERIFY(!read->text(QStringLiteral("absent")) && !read->boolean(QStringLiteral("text")));
    }

    void shouldReadGarbageAsAbsentAndStillStore()
    {
        const QByteArray garbage("\xff\x00\x01[[[\n=\nisWatching=@Invalid(\ndata=@ByteArray(\n", 46);
        QFile file(path());
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(garbage) == garbage.size());
        file.close();
        const auto store = DefaultsStore::inFile(path());
        QVERIFY(!store->boolean(QStringLiteral("isWatching")) && !store->text(QStringLiteral("watchFolder")));
        store->store(QStringLiteral("isWatching"), true);
        QVERIFY(file.open(QIODevice::ReadOnly) && file.readAll().contains("isWatching=true"));
    }

    void shouldWriteOnlyWhatChanged()
    {
        const auto store = DefaultsStore::inFile(path());
        store->store(QStringLiteral("items"), QByteArray("[]"));
        QVERIFY(QFile::remove(path()));
        store->store(QStringLiteral("items"), QByteArray("[]"));
        QVERIFY(!QFile::exists(path()));
        store->store(QStringLiteral("items"), QByteArray("[1]"));
        QVERIFY(QFile::exists(path()));
    }
};

QTEST_GUILESS_MAIN(DefaultsStoreTest)
#include "DefaultsStoreTest.moc"
