#include "ModelFixture.h"

#include <QTest>

using namespace std::chrono_literals;

class ConversionQueueTest : public QObject
{
    Q_OBJECT

    std::optional<ModelFixture> m_fixture;

    AppModel &model() { return m_fixture->model(); }
    void convert(const QStringList &names)
    {
        QList<QUrl> urls;
        for (const QString &name : names) {
            urls << m_fixture->write(name);
        }
        model().convertManually(urls);
    }
    void convertTurned(const QStringList &names)
    {
        convert(names);
        ModelFixture::turn();
    }
    QStringList statuses()
    {
        QStringList texts;
        for (const ConversionItem &item : model().items()) {
            texts << item.sourceName + ' ' + rawValue(item.status);
        }
        return texts;
    }

private Q_SLOTS:
    void init()
    {
        m_fixture.emplace();
        m_fixture->launch();
    }

    void shouldShowEachStepOfOnePhoto()
    {
        convert({"a.HEIC"});
        QCOMPARE(model().lastEventText(), "a.HEIC landed");
        QCOMPARE(*model().activeStatus(), ConversionStatus::queued);
        QCOMPARE(model().items().first().createdAt, ReferenceDate::fromSystemTime(m_fixture->clock->time));

        ModelFixture::turn();
        QCOMPARE(*model().activeStatus(), ConversionStatus::converting);
        QVERIFY(model().isBusy());

        m_fixture->engine->succeed("a.png");
        const ConversionItem item = model().items().first();
        QCOMPARE(item.status, ConversionStatus::ready);
        QCOMPARE(*item.outputName, "a.png");
        QCOMPARE(*item.outputURL, m_fixture->url("a.png"));
        QCOMPARE(model().lastEventText(), "Ready: a.png");
        QCOMPARE(*model().activeStatus(), ConversionStatus::ready);
        QCOMPARE(m_fixture->center->requests.size(), 1);

        m_fixture->pass(3999ms);
        QVERIFY(model().activeStatus());
        m_fixture->pass(1ms);
        QVERIFY(!model().activeStatus());
        QCOMPARE(model().lastEventText(), "Waiting for your next AirDrop");
        QCOMPARE(m_fixture->launch().items(), QList{item});
    }

    void shouldShowAFailureForSixSecondsWithoutNotification()
    {
        convertTurned({"a.HEIC"});
        m_fixture->engine->fail(ConversionError::unreadableImage);
        QCOMPARE(model().lastEventText(), "Couldn’t convert a.HEIC");
        QCOMPARE(*model().items().first().errorMessage, description(ConversionError::unreadableImage));
        QVERIFY(m_fixture->center->requests.isEmpty());
        m_fixture->pass(5999ms);
        QCOMPARE(*model().activeStatus(), ConversionStatus::failed);
        m_fixture->pass(1ms);
        QVERIFY(!model().activeStatus());

        model().reveal(model().items().first());
        QVERIFY(m_fixture->workspace->revealed.isEmpty());
        QCOMPARE(m_fixture->launch().items().first().status, ConversionStatus::failed);
    }

    void shouldStayBusyUntilTheLastOfABurst()
    {
        convert({"a.heic", "b.heic", "c.heic"});
        QCOMPARE(model().lastEventText(), "c.heic landed");
        ModelFixture::turn();
        QCOMPARE(statuses(), (QStringList{"c.heic converting", "b.heic converting", "a.heic converting"}));
        m_fixture->engine->succeed("a.png");
        QCOMPARE(model().lastEventText(), "Ready: a.png");
        QCOMPARE(*model().activeStatus(), ConversionStatus::converting);
        m_fixture->engine->fail(ConversionError::cannotWriteImage);
        m_fixture->pass(10s);
        QCOMPARE(*model().activeStatus(), ConversionStatus::converting);
        m_fixture->engine->succeed("c.png");
        QCOMPARE(*model().activeStatus(), ConversionStatus::ready);

        model().reveal(model().items().first());
        QCOMPARE(m_fixture->workspace->revealed, QList{m_fixture->url("c.png")});
    }

    void shouldNotClearTheStatusOfANewerPhoto()
    {
        convertTurned({"a.heic"});
        m_fixture->engine->succeed("a.png");
        m_fixture->pass(3900ms);
        convert({"b.heic"});
        m_fixture->jobs->advance(10s);
        QCOMPARE(*model().activeStatus(), ConversionStatus::queued);
        QCOMPARE(model().lastEventText(), "b.heic landed");
    }

    void shouldReplaceWhateverTheStatusLineSaysWhenTheClearFires()
    {
        convertTurned({"a.heic"});
        m_fixture->engine->succeed("a.png");
        model().clearHistory();
        QCOMPARE(model().lastEventText(), "History cleared");
        m_fixture->pass(4s);
        QCOMPARE(model().lastEventText(), "Waiting for your next AirDrop");
        QVERIFY(m_fixture->launch().items().isEmpty());
    }

    void shouldTakePhotosOfThisMachineOnlyAndEachOnce()
    {
        const QUrl remote("gphoto2://camera/DCIM/IMG_1.HEIC");
        model().convertManually({m_fixture->url("a.png"), remote});
        QCOMPARE(model().lastEventText(), "Drop HEIC or HEIF photos here");
        QVERIFY(model().items().isEmpty() && !model().activeStatus());

        m_fixture->panel->answer = {remote, m_fixture->write("a.HEIC"), m_fixture->write("b.txt"),
                                    m_fixture->url("a.HEIC"),
                                    QUrl("file://localhost" + m_fixture->path("a.HEIC"))};
        model().choosePhotos();
        QCOMPARE(m_fixture->panel->requests.last().prompt, "Convert photos");
        QCOMPARE(m_fixture->panel->requests.last().folder, model().watchFolder());
        convertTurned({"a.HEIC"});
        QCOMPARE(statuses(), QStringList{"a.HEIC converting"});
        m_fixture->engine->succeed("a.png");
        convert({"a.HEIC"});
        QCOMPARE(model().items().size(), 2);
    }

    void shouldStoreTheHistoryTwiceForABurstAndOnceForEachEnding()
    {
        const auto stores = [this] { return m_fixture->defaults->stored["recentItems"].size(); };
        QStringList names;
        for (int index = 0; index < 10; ++index) {
            names << QString("%1.heic").arg(index);
        }
        convert(names);
        QCOMPARE(stores(), 1);
        ModelFixture::turn();
        QCOMPARE(stores(), 2); // queued, then converting
        m_fixture->engine->succeed("0.png");
        m_fixture->engine->fail(ConversionError::unreadableImage);
        QCOMPARE(stores(), 4);

        for (int index = 10; index < 20; ++index) { // the same of those that the scan finds
            m_fixture->write(QString("%1.heic").arg(index));
        }
        m_fixture->settle();
        QCOMPARE(stores(), 6);
        QCOMPARE(m_fixture->engine->running.size(), std::size_t{18});
    }

    void shouldUseTheSettingsOfTheMomentOfArrival()
    {
        convert({"a.heic"});
        model().setSettings({.format = OutputFormat::jpeg, .notificationsEnabled = false});
        convertTurned({"b.heic"});
        QCOMPARE(m_fixture->engine->running[0].settings, ConversionSettings());
        QCOMPARE(m_fixture->engine->running[1].settings.format, OutputFormat::jpeg);
        m_fixture->engine->succeed("a.png");
        m_fixture->engine->succeed("b.jpg");
        QCOMPARE(m_fixture->center->requests.size(), 1);
        QCOMPARE(m_fixture->center->requests.first().subtitle, "a.png");
    }

    void shouldKeepTwentyEntriesAndEndTheConversionsOfThoseThatLeft()
    {
        for (int index = 0; index < 25; ++index) {
            convert({QString("%1.heic").arg(index)});
        }
        QCOMPARE(model().items().size(), 20);
        QCOMPARE(model().items().first().sourceName, "24.heic");
        ModelFixture::turn();
        for (int index = 0; index < 25; ++index) {
            m_fixture->engine->succeed(QString("%1.png").arg(index));
        }
        QCOMPARE(model().readyCount(), 20);
        QCOMPARE(m_fixture->center->requests.size(), 25);
    }
};

QTEST_MAIN(ConversionQueueTest)
#include "ConversionQueueTest.moc"
