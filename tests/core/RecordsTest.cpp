#include "ConversionItem.h"
#include "ConversionSettings.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <cmath>
#include <limits>

namespace {

const QJsonObject settingsRecord{{"format", "JPEG"},
                                 {"outputLocation", "Beside originals"},
                                 {"originalPolicy", "Move to Originals"},
                                 {"jpegQuality", 1.7},
                                 {"notificationsEnabled", false}};

const QJsonObject itemRecord{{"id", "0D3F2A51-9C1E-4B7A-8E21-5A6B7C8D9EAF"},
                             {"sourceName", "Ferien 1.HEIC"},
                             {"status", "queued"},
                             {"createdAt", 795225600.1234567},
                             {"sourceURL", "file:///home/a/Ferien%201.HEIC"}};

std::optional<ConversionSettings> settingsOf(const QJsonObject &record)
{
    return ConversionSettings::fromJson(QJsonDocument(record).toJson());
}

std::optional<ConversionItem> itemOf(const QJsonObject &record)
{
    const auto items = ConversionItem::listFromJson(QJsonDocument(QJsonArray{record}).toJson());
    return items ? std::optional(items->first()) : std::nullopt;
}

QJsonObject recordOf(const ConversionItem &item)
{
    return QJsonDocument::fromJson(*ConversionItem::listToJson({item})).array().first().toObject();
}

} // namespace

class RecordsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldStoreSettingsUnderFiveKeysAndReadThemBack()
    {
        const ConversionSettings settings{.format = OutputFormat::jpeg,
                                          .outputLocation = OutputLocation::alongside,
                                          .originalPolicy = OriginalPolicy::archive,
                                          .jpegQuality = 1.7,
                                          .notificationsEnabled = false};
        QCOMPARE(QJsonDocument::fromJson(*settings.toJson()).object(), settingsRecord);
        QJsonObject withAnotherKey = settingsRecord;
        withAnotherKey.insert("theme", 3);
        QCOMPARE(*settingsOf(withAnotherKey), settings);
        QCOMPARE(*ConversionSettings::fromJson(*ConversionSettings().toJson()), ConversionSettings());
        QVERIFY(!ConversionSettings{.jpegQuality = std::nan("")}.toJson());
    }

    void shouldKeepEveryFieldOfAnItem()
    {
        ConversionItem item = *itemOf(itemRecord);
        QCOMPARE(item.sourceURL.toLocalFile(), "/home/a/Ferien 1.HEIC");
        QCOMPARE(recordOf(item), itemRecord); // absent fields are not written, the identifier is in capitals

        QJsonObject withNulls = itemRecord;
        for (const QString key : {"outputName", "outputURL", "errorMessage"}) {
            withNulls.insert(key, QJsonValue());
        }
        QCOMPARE(*itemOf(withNulls), item);

        item.outputName = "100% Ö.png";
        item.outputURL = QUrl::fromLocalFile("/home/a/Lumaport/100% Ö.png");
        item.errorMessage = "Couldn’t";
        item.status = ConversionStatus::failed;
        QCOMPARE(*itemOf(recordOf(item)), item);
        QCOMPARE(recordOf(item)["outputURL"], "file:///home/a/Lumaport/100%25%20%C3%96.png");
    }

    void shouldKeepTheWholeFractionOfADate()
    {
        for (const double seconds : {0.1 + 0.2, -1234.000000001, 795225600.123456, 1e-9}) {
            QCOMPARE(itemOf(recordOf({.id = QUuid::createUuid(),
                                      .createdAt = {seconds},
                                      .sourceURL = QUrl("file:///a")}))
                         ->createdAt.seconds,
                     seconds);
        }
        using namespace std::chrono;
        QCOMPARE(ReferenceDate::fromSystemTime(sys_days{year{2001} / 1 / 2} + 500ms).seconds, 86400.5);
        const double infinity = std::numeric_limits<double>::infinity();
        QVERIFY(!ConversionItem::listToJson({ConversionItem{.createdAt = {infinity}}}));
    }

    void shouldRefuseRecordsThatAreNotExact_data()
    {
        QTest::addColumn<QJsonObject>("record");
        const auto row = [](const QString &name, QJsonObject record, const QString &key,
                            const QJsonValue &value) {
            record.insert(key, value); // an undefined value removes the key
            QTest::newRow(qPrintable(name)) << record;
        };
        for (const QJsonObject &record : {settingsRecord, itemRecord}) {
            for (const QString &key : record.keys()) {
                row("without " + key, record, key, QJsonValue::Undefined);
            }
        }
        row("format in lower case", settingsRecord, "format", "jpeg");
        row("quality as text", settingsRecord, "jpegQuality", "0.9");
        row("switch as number", settingsRecord, "notificationsEnabled", 1);
        row("location null", settingsRecord, "outputLocation", QJsonValue());
        row("status in capitals", itemRecord, "status", "READY");
        row("no identifier", itemRecord, "id", "0D3F2A51");
        row("identifier in braces", itemRecord, "id", "{0D3F2A51-9C1E-4B7A-8E21-5A6B7C8D9EAF}");
        row("date as text", itemRecord, "createdAt", "2026-01-01");
        row("no URL", itemRecord, "sourceURL", "file:///%zz");
        row("URL of another machine", itemRecord, "sourceURL", "sftp://there/a.HEIC");
        row("empty URL", itemRecord, "outputURL", "");
        row("name as number", itemRecord, "outputName", 3);
    }

    void shouldRefuseRecordsThatAreNotExact()
    {
        QFETCH(QJsonObject, record);
        QVERIFY(!settingsOf(record) && !itemOf(record));
    }

    void shouldRefuseAHistoryAsAWhole()
    {
        for (const char *json : {"[{}]", "[1]", "{}", "[", ""}) {
            QVERIFY2(!ConversionItem::listFromJson(json), json);
        }
        QCOMPARE(ConversionItem::listFromJson("[]")->size(), 0);
    }
};

QTEST_GUILESS_MAIN(RecordsTest)
#include "RecordsTest.moc"
