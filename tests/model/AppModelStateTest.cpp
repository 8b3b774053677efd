#include "DefaultsStore.h"
#include "ModelFixture.h"

#include <QFile>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

namespace {

QList<ConversionItem> readyItems(int count)
{
    QList<ConversionItem> items;
    for (int index = 0; index < count; ++index) {
        auto item = ConversionItem::queuedFor(QUrl(QStringLiteral("file:///a/%1.heic").arg(index)), {});
        item.status = ConversionStatus::ready;
        items << item;
    }
    return items;
}

} // namespace

class AppModelStateTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<ModelFixture> m_fixture;

private Q_SLOTS:
    void init() { m_fixture = std::make_unique<ModelFixture>(); }

    void shouldStartFromDefaultsWithAnEmptyStore()
    {
        m_fixture->defaults->store(QStringLiteral("watchFolder"), QString());
        AppModel &model = m_fixture->launch();
        QCOMPARE(model.watchFolder().toLocalFile(),
                 QStandardPaths::writableLocation(QStandardPaths::DownloadLocation));
        QCOMPARE(model.appearanceMode(), AppearanceMode::system);
        QCOMPARE(model.settings(), ConversionSettings());
        QVERIFY(model.isWatching() && model.items().isEmpty() && !model.activeStatus() && !model.isBusy());
        QCOMPARE(m_fixture->jobs->waitingJobs(), 0);
    }

    void shouldKeepWhatTheUserSetAcrossALaunch()
    {
        AppModel &first = m_fixture->launch();
        const ConversionSettings settings{
            .format = OutputFormat::jpeg, .jpegQuality = 0.85, .notificationsEnabled = false};
        first.setSettings(settings);
        first.setAppearanceMode(AppearanceMode::dark);
        first.setIsWatching(false);
        first.setItems(readyItems(15));
        first.saveItems();

        AppModel &second = m_fixture->launch();
        QCOMPARE(second.settings(), settings);
        QCOMPARE(second.appearanceMode(), AppearanceMode::dark);
        QVERIFY(!second.isWatching() && second.monitorAvailable());
        QCOMPARE(second.items().size(), 12);
        QCOMPARE(second.items().last().sourceName, QStringLiteral("11.heic"));
        QCOMPARE(second.readyCount(), 12);
        QVERIFY(m_fixture->appearance->isDark());
        second.setAppearanceMode(AppearanceMode::system);
        QVERIFY(!m_fixture->appearance->isDark());
    }

    void shouldFallBackWhereStoredValuesCannotBeRead()
    {
        const auto &defaults = m_fixture->defaults;
        defaults->store(QStringLiteral("appearanceMode"), QStringLiteral("dark"));
        defaults->store(QStringLiteral("conversionSettings"), QByteArray("not a record"));
        defaults->store(QStringLiteral("recentItems"), QByteArray("[{}]"));
        AppModel &model = m_fixture->launch();
        QCOMPARE(model.appearanceMode(), AppearanceMode::system);
        QCOMPARE(model.settings(), ConversionSettings());
        QVERIFY(model.items().isEmpty());
        QCOMPARE(*defaults->data(QStringLiteral("conversionSettings")), "not a record");
    }

    void shouldStoreTheHistoryAsItWasReadIncludingUnfinishedEntries()
    {
        AppModel &first = m_fixture->launch();
        QList<ConversionItem> items = readyItems(2);
        items[0].status = ConversionStatus::converting;
        first.setItems(items);
        first.saveItems();
        AppModel &second = m_fixture->launch();
        QCOMPARE(second.items(), items);
        QVERIFY(second.isBusy());
        QVERIFY(m_fixture->engine->running.empty());
    }

    void shouldAnnounceEachChange()
    {
        AppModel &model = m_fixture->launch();
        QSignalSpy texts(&model, &AppModel::monitorTextsChanged);
        QSignalSpy watching(&model, &AppModel::isWatchingChanged);
        model.setIsWatching(false);
        QCOMPARE(texts.size(), 1);
        QCOMPARE(watching.size(), 1);
        QCOMPARE(model.monitorTitle(), QStringLiteral("Auto-convert: Paused"));
    }

    void shouldClearTheHistoryInTheStoreToo()
    {
        AppModel &model = m_fixture->launch();
        model.setItems(readyItems(3));
        model.saveItems();
        model.clearHistory();
        QCOMPARE(model.lastEventText(), QStringLiteral("History cleared"));
        QVERIFY(m_fixture->launch().items().isEmpty());
    }
};

QTEST_MAIN(AppModelStateTest)
#include "AppModelStateTest.moc"
