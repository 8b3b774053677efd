#include "DefaultsStore.h"
#include "ModelFixture.h"

#include <QFile>
#include <QTest>

using namespace std::chrono_literals;

namespace {

struct CountingStore : DefaultsStore
{
    explicit CountingStore(std::shared_ptr<DefaultsStore> kept)
        : m_store(std::move(kept))
    {}
    std::optional<QString> text(const QString &key) const override { return m_store->text(key); }
    std::optional<QByteArray> data(const QString &key) const override { return m_store->data(key); }
    std::optional<bool> boolean(const QString &key) const override { return m_store->boolean(key); }
    void store(const QString &key, const QString &text) override { m_store->store(key, text); }
    void store(const QString &key, bool value) override { m_store->store(key, value); }
    void store(const QString &key, const QByteArray &data) override
    {
        ++histories;
        m_store->store(key, data);
    }

    int histories = 0;

private:
    std::shared_ptr<DefaultsStore> m_store;
};

} // namespace

class ConversionQueueTest : public QObject
{
    Q_OBJECT

private:
    AppModel &model() { return m_fixture->model(); }
    void convert(const QStringList &names)
    {
        QList<QUrl> urls;
        for (const QString &name : names) {
            urls << m_fixture->write(name);
        }
        model().convertManually(urls);
    }
    QStringList statuses()
    {
        QStringList texts;
        for (const ConversionItem &item : model().items()) {
            texts << item.sourceName + QLatin1Char(' ') + rawValue(item.status);
        }
        return texts;
    }

    std::unique_ptr<ModelFixture> m_fixture;

private Q_SLOTS:
    void init()
    {
        m_fixture = std::make_unique<ModelFixture>();
        m_fixture->launch();
    }

    void shouldShowEachStepOfOnePhoto()
    {
        convert({QStringLiteral("a.HEIC")});
        QCOMPARE(model().lastEventText(), QStringLiteral("a.HEIC landed"));
        QCOMPARE(*model().activeStatus(), ConversionStatus::queued);
        QCOMPARE(model().items().first().createdAt, ReferenceDate::fromSystemTime(m_fixture->clock->time));

        ModelFixture::turn();
        QCOMPARE(*model().activeStatus(), ConversionStatus::converting);
        QVERIFY(model().isBusy());

        m_fixture->engine->succeed(QStringLiteral("a.png"));
        const ConversionItem item = model().items().first();
        QCOMPARE(item.status, ConversionStatus::ready);
        QCOMPARE(*item.outputName, QStringLiteral("a.png"));
        QCOMPARE(*item.outputURL, m_fixture->url(QStringLiteral("a.png")));
        QCOMPARE(model().lastEventText(), QStringLiteral("Ready: a.png"));
        QCOMPARE(*model().activeStatus(), ConversionStatus::ready);
        QCOMPARE(model().readyCount(), 1);
        QCOMPARE(m_fixture->center->requests.size(), 1);

        m_fixture->jobs->advance(3999ms);
        QVERIFY(model().activeStatus());
        m_fixture->jobs->advance(1ms);
        QVERIFY(!model().activeStatus());
        QCOMPARE(model().lastEventText(), QStringLiteral("Waiting for your next AirDrop"));
        QCOMPARE(m_fixture->launch().items(), QList{item});
    }

    void shouldShowAFailureForSixSecondsWithoutNotification()
    {
        convert({QStringLiteral("a.HEIC")});
        ModelFixture::turn();
        m_fixture->engine->fail(ConversionError::unreadableImage);
        QCOMPARE(model().lastEventText(), QStringLiteral("Couldn’t convert a.HEIC"));
        QCOMPARE(*model().items().first().errorMessage,
                 QStringLiteral("The image could not be opened. It may still be transferring."));
        QVERIFY(m_fixture->center->requests.isEmpty());
        m_fixture->jobs->advance(5999ms);
        QCOMPARE(*model().activeStatus(), ConversionStatus::failed);
        m_fixture->jobs->advance(1ms);
        QVERIFY(!model().activeStatus());

        model().reveal(model().items().first());
        QVERIFY(m_fixture->workspace->revealed.isEmpty());
    }

    void shouldStayBusyUntilTheLastOfABurst()
    {
        convert({QStringLiteral("a.heic"), QStringLiteral("b.heic"), QStringLiteral("c.heic")});
        QCOMPARE(model().lastEventText(), QStringLiteral("c.heic landed"));
        ModelFixture::turn();
        QCOMPARE(statuses(),
                 QStringList({QStringLiteral("c.heic converting"), QStringLiteral("b.heic converting"),
                              QStringLiteral("a.heic converting")}));
        m_fixture->engine->succeed(QStringLiteral("a.png"));
        QCOMPARE(model().lastEventText(), QStringLiteral("Ready: a.png"));
        QCOMPARE(*model().activeStatus(), ConversionStatus::converting);
        m_fixture->engine->fail(ConversionError::cannotWriteImage);
        QCOMPARE(*model().activeStatus(), ConversionStatus::converting);
        m_fixture->jobs->advance(10s);
        QCOMPARE(*model().activeStatus(), ConversionStatus::converting);
        m_fixture->engine->succeed(QStringLiteral("c.png"));
        QCOMPARE(*model().activeStatus(), ConversionStatus::ready);

        model().reveal(model().items().first());
        QCOMPARE(m_fixture->workspace->revealed, QList{m_fixture->url(QStringLiteral("c.png"))});
    }

    void shouldNotClearTheStatusOfANewerPhoto()
    {
        convert({QStringLiteral("a.heic")});
        ModelFixture::turn();
        m_fixture->engine->succeed(QStringLiteral("a.png"));
        m_fixture->jobs->advance(3900ms);
        convert({QStringLiteral("b.heic")});
        m_fixture->jobs->advance(10s);
        QCOMPARE(*model().activeStatus(), ConversionStatus::queued);
        QCOMPARE(model().lastEventText(), QStringLiteral("b.heic landed"));
    }

    void shouldReplaceWhateverTheStatusLineSaysWhenTheClearFires()
    {
        convert({QStringLiteral("a.heic")});
        ModelFixture::turn();
        m_fixture->engine->succeed(QStringLiteral("a.png"));
        model().clearHistory();
        m_fixture->jobs->advance(4s);
        QCOMPARE(model().lastEventText(), QStringLiteral("Waiting for your next AirDrop"));
    }

    void shouldTakePhotosOnlyAndEachOnce()
    {
        model().convertManually({m_fixture->url(QStringLiteral("a.png"))});
        QCOMPARE(model().lastEventText(), QStringLiteral("Drop HEIC or HEIF photos here"));
        QVERIFY(model().items().isEmpty() && !model().activeStatus());

        convert({QStringLiteral("a.HEIC"), QStringLiteral("b.txt"), QStringLiteral("a.HEIC")});
        convert({QStringLiteral("a.HEIC")});
        ModelFixture::turn();
        QCOMPARE(statuses(), QStringList{QStringLiteral("a.HEIC converting")});
        m_fixture->engine->succeed(QStringLiteral("a.png"));
        convert({QStringLiteral("a.HEIC")});
        QCOMPARE(model().items().size(), 2);
    }

    void shouldLeaveOutWhatIsOnAnotherMachine()
    {
        const QUrl remote(QStringLiteral("gphoto2://camera/DCIM/IMG_1.HEIC"));
        model().convertManually({remote});
        QCOMPARE(model().lastEventText(), QStringLiteral("Drop HEIC or HEIF photos here"));
        model().convertManually({remote, m_fixture->write(QStringLiteral("a.heic"))});
        ModelFixture::turn();
        QCOMPARE(statuses(), QStringList{QStringLiteral("a.heic converting")});
        QCOMPARE(m_fixture->launch().items().size(), 1); // what was stored can be read back
    }

    void shouldStoreABurstTwice()
    {
        const auto counting = std::make_shared<CountingStore>(m_fixture->defaults);
        m_fixture->defaults = counting;
        m_fixture->launch();
        QStringList names;
        for (int index = 0; index < 30; ++index) {
            names << QStringLiteral("%1.heic").arg(index);
        }
        convert(names);
        QCOMPARE(counting->histories, 1);
        ModelFixture::turn();
        QCOMPARE(counting->histories, 2); // queued, then converting
        QCOMPARE(m_fixture->engine->running.size(), std::size_t{30});

        for (int index = 30; index < 60; ++index) { // the same of those that the scan finds
            m_fixture->write(QStringLiteral("%1.heic").arg(index));
        }
        m_fixture->settle();
        QCOMPARE(counting->histories, 4);
        QCOMPARE(m_fixture->engine->running.size(), std::size_t{60});
    }

    void shouldUseTheSettingsOfTheMomentOfArrival()
    {
        convert({QStringLiteral("a.heic")});
        model().setSettings({.format = OutputFormat::jpeg, .notificationsEnabled = false});
        convert({QStringLiteral("b.heic")});
        ModelFixture::turn();
        QCOMPARE(m_fixture->engine->running[0].settings, ConversionSettings());
        QCOMPARE(m_fixture->engine->running[1].settings.format, OutputFormat::jpeg);
        m_fixture->engine->succeed(QStringLiteral("a.png"));
        m_fixture->engine->succeed(QStringLiteral("b.jpg"));
        QCOMPARE(m_fixture->center->requests.size(), 1);
        QCOMPARE(m_fixture->center->requests.first().subtitle, QStringLiteral("a.png"));
    }

    void shouldKeepTwentyEntriesAndStoreTwelve()
    {
        for (int index = 0; index < 25; ++index) {
            convert({QStringLiteral("%1.heic").arg(index)});
        }
        QCOMPARE(model().items().size(), 20);
        ModelFixture::turn();
        for (int index = 0; index < 25; ++index) {
            m_fixture->engine->succeed(QStringLiteral("%1.png").arg(index));
        }
        QCOMPARE(model().readyCount(), 20);
        QCOMPARE(m_fixture->center->requests.size(), 25); // trimmed entries are announced too
        const AppModel &next = m_fixture->launch();
        QCOMPARE(next.items().size(), 12);
        QCOMPARE(next.items().first().sourceName, QStringLiteral("24.heic"));
    }

    void shouldConvertWhatTheUserChooses()
    {
        model().choosePhotos();
        QVERIFY(model().items().isEmpty());
        m_fixture->panel->answer = {m_fixture->write(QStringLiteral("a.heif"))};
        model().choosePhotos();
        QCOMPARE(model().items().size(), 1);
        QCOMPARE(m_fixture->panel->requests.last().prompt, QStringLiteral("Convert photos"));
    }
};

QTEST_MAIN(ConversionQueueTest)
#include "ConversionQueueTest.moc"
