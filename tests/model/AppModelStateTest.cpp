#include "ModelFixture.h"

#include <QStandardPaths>
#include <QTest>

namespace {

QList<ConversionItem> readyItems(int count)
{
    QList<ConversionItem> items;
    for (int index = 0; index < count; ++index) {
        items << ConversionItem::queuedFor(QUrl(QString("file:///a/%1.heic").arg(index)), {});
        items.last().status = ConversionStatus::ready;
    }
    return items;
}

} // namespace

class AppModelStateTest : public QObject
{
    Q_OBJECT

    std::optional<ModelFixture> m_fixture;

private Q_SLOTS:
    void init() { m_fixture.emplace(); }

    void shouldStartFromDefaultsWithAnEmptyStore()
    {
        m_fixture->defaults->store("watchFolder", QString());
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

        AppModel &second = m_fixture->launch();
        QCOMPARE(second.settings(), settings);
        QCOMPARE(second.appearanceMode(), AppearanceMode::dark);
        QVERIFY(!second.isWatching() && second.monitorAvailable());
        QVERIFY(m_fixture->appearance->isDark());
        second.setAppearanceMode(AppearanceMode::system);
        QVERIFY(!m_fixture->appearance->isDark());
    }

    void shouldStoreTwelveEntriesAndTakeTwelveOfMore()
    {
        QList<ConversionItem> items = readyItems(15);
        items[0].status = ConversionStatus::converting; // when the program ended
        AppModel &first = m_fixture->launch();
        first.setItems(items);
        first.saveItems();
        QCOMPARE(*ConversionItem::listFromJson(*m_fixture->defaults->data("recentItems")), items.mid(0, 12));

        m_fixture->defaults->store("recentItems", *ConversionItem::listToJson(items));
        AppModel &second = m_fixture->launch();
        QCOMPARE(second.items(), items.mid(0, 12));
        QCOMPARE(second.readyCount(), 11);
        QVERIFY(second.isBusy() && m_fixture->engine->running.empty());
    }
};

QTEST_MAIN(AppModelStateTest)
#include "AppModelStateTest.moc"
