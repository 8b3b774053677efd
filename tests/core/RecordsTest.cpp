#include "AppearanceMode.h"
#include "ConversionItem.h"
#include "ConversionSettings.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <cmath>
#include <limits>

namespace {

QJsonObject settingsObject()
{
    return {{QStringLiteral("format"), QStringLiteral("JPEG")},
            {QStringLiteral("outputLocation"), QStringLiteral("Beside originals")},
            {QStringLiteral("originalPolicy"), QStringLiteral("Move to Originals")},
            {QStringLiteral("jpegQuality"), 1.7},
            {QStringLiteral("notificationsEnabled"), false}};
}

QJsonObject itemObject()
{
    return {{QStringLiteral("id"), QStringLiteral("0D3F2A51-9C1E-4B7A-8E21-5A6B7C8D9EAF")},
            {QStringLiteral("sourceName"), QStringLiteral("Ferien 1.HEIC")},
            {QStringLiteral("status"), QStringLiteral("queued")},
            {QStringLiteral("createdAt"), 795225600.1234567},
            {QStringLiteral("sourceURL"), QStringLiteral("file:///home/a/Ferien%201.HEIC")}};
}

QByteArray json(const QJsonObject &object)
{
    return QJsonDocument(object).toJson();
}

std::optional<ConversionItem> decode(const QJsonObject &object)
{
    const auto items = ConversionItem::listFromJson(QJsonDocument(QJsonArray{object}).toJson());
    return items ? std::optional(items->first()) : std::nullopt;
}

QJsonObject encode(const ConversionItem &item)
{
    return QJsonDocument::fromJson(*ConversionItem::listToJson({item})).array().first().toObject();
}

template<typename Option>
QStringList choices()
{
    QStringList texts;
    for (const auto &each : OptionCases<Option>::cases) {
        texts << rawValue(each.option);
    }
    return texts;
}

} // namespace

class RecordsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldListChoicesInTheOrderOfTheirControls()
    {
        QCOMPARE(choices<OutputFormat>(), QStringList({QStringLiteral("PNG"), QStringLiteral("JPEG")}));
        QCOMPARE(choices<OutputLocation>(),
                 QStringList({QStringLiteral("Beside originals"), QStringLiteral("Lumaport folder")}));
        QCOMPARE(choices<OriginalPolicy>(),
                 QStringList({QStringLiteral("Keep originals"), QStringLiteral("Move to Originals")}));
        QCOMPARE(choices<AppearanceMode>(),
                 QStringList({QStringLiteral("System"), QStringLiteral("Light"), QStringLiteral("Dark")}));
        QVERIFY(!optionFromRawValue<AppearanceMode>(u"dark"));
    }

    void shouldStoreSettingsUnderFiveKeysAndReadThemBack()
    {
        const ConversionSettings settings{.format = OutputFormat::jpeg,
                                          .outputLocation = OutputLocation::alongside,
                                          .originalPolicy = OriginalPolicy::archive,
                                          .jpegQuality = 1.7,
                                          .notificationsEnabled = false};
        QCOMPARE(QJsonDocument::fromJson(*settings.toJson()).object(), settingsObject());
        QCOMPARE(*ConversionSettings::fromJson(json(settingsObject())), settings);
        QCOMPARE(*ConversionSettings::fromJson(*ConversionSettings().toJson()), ConversionSettings());
        QVERIFY(!ConversionSettings{.jpegQuality = std::nan("")}.toJson());
    }

    void shouldIgnoreUnknownSettingsKeys()
    {
        QJsonObject object = settingsObject();
        object.insert(QStringLiteral("theme"), 3);
        QVERIFY(ConversionSettings::fromJson(json(object)).has_value());
    }

    void shouldRefuseSettingsThatAreNotExact_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QJsonValue>("value");
        for (const QString &key : settingsObject().keys()) {
            QTest::addRow("without %s", qPrintable(key)) << key << QJsonValue(QJsonValue::Undefined);
        }
        QTest::newRow("lower case") << QStringLiteral("format") << QJsonValue(QStringLiteral("jpeg"));
        QTest::newRow("number as text") << QStringLiteral("jpegQuality") << QJsonValue(QStringLiteral("0.9"));
        QTest::newRow("switch as number") << QStringLiteral("notificationsEnabled") << QJsonValue(1);
        QTest::newRow("null") << QStringLiteral("outputLocation") << QJsonValue();
    }

    void shouldRefuseSettingsThatAreNotExact()
    {
        QFETCH(QString, key);
        QFETCH(QJsonValue, value);
        QJsonObject object = settingsObject();
        object.insert(key, value); // an undefined value removes the key
        QVERIFY(!ConversionSettings::fromJson(json(object)));
    }

    void shouldKeepEveryFieldOfAnItem()
    {
        ConversionItem item = *decode(itemObject());
        QCOMPARE(item.sourceURL.toLocalFile(), QStringLiteral("/home/a/Ferien 1.HEIC"));
        QCOMPARE(encode(item), itemObject()); // absent fields are not written, the identifier is in capitals

        item.outputName = QStringLiteral("100% Ö.png");
        item.outputURL = QUrl::fromLocalFile(QStringLiteral("/home/a/Lumaport/100% Ö.png"));
        item.errorMessage = QStringLiteral("Couldn’t");
        item.status = ConversionStatus::failed;
        QCOMPARE(*decode(encode(item)), item);
        QCOMPARE(encode(item).value(QLatin1String("outputURL")).toString(),
                 QStringLiteral("file:///home/a/Lumaport/100%25%20%C3%96.png"));
    }

    void shouldKeepTheWholeFractionOfADate()
    {
        for (const double seconds : {0.1 + 0.2, -1234.000000001, 795225600.123456, 1e-9}) {
            QJsonObject object = itemObject();
            object.insert(QStringLiteral("createdAt"), seconds);
            QCOMPARE(decode(encode(*decode(object)))->createdAt.seconds, seconds);
        }
        using namespace std::chrono;
        QCOMPARE(ReferenceDate::fromSystemTime(sys_days{year{2001} / 1 / 2} + 500ms).seconds, 86400.5);
        QVERIFY(!ConversionItem::listToJson(
            {ConversionItem{.createdAt = {std::numeric_limits<double>::infinity()}}}));
    }

    void shouldTakeNullForAnAbsentField()
    {
        QJsonObject object = itemObject();
        for (const char *key : {"outputName", "outputURL", "errorMessage"}) {
            object.insert(QLatin1String(key), QJsonValue());
        }
        QCOMPARE(*decode(object), *decode(itemObject()));
    }

    void shouldRefuseItemsThatAreNotExact_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QJsonValue>("value");
        for (const QString &key : itemObject().keys()) {
            QTest::addRow("without %s", qPrintable(key)) << key << QJsonValue(QJsonValue::Undefined);
        }
        QTest::newRow("status in capitals")
            << QStringLiteral("status") << QJsonValue(QStringLiteral("READY"));
        QTest::newRow("no identifier") << QStringLiteral("id") << QJsonValue(QStringLiteral("0D3F2A51"));
        QTest::newRow("identifier in braces")
            << QStringLiteral("id") << QJsonValue(QStringLiteral("{0D3F2A51-9C1E-4B7A-8E21-5A6B7C8D9EAF}"));
        QTest::newRow("date as text")
            << QStringLiteral("createdAt") << QJsonValue(QStringLiteral("2026-01-01"));
        QTest::newRow("no URL") << QStringLiteral("sourceURL") << QJsonValue(QStringLiteral("file:///%zz"));
        QTest::newRow("empty URL") << QStringLiteral("outputURL") << QJsonValue(QString());
        QTest::newRow("name as number") << QStringLiteral("outputName") << QJsonValue(3);
    }

    void shouldRefuseItemsThatAreNotExact()
    {
        QFETCH(QString, key);
        QFETCH(QJsonValue, value);
        QJsonObject object = itemObject();
        object.insert(key, value);
        QVERIFY(!decode(object));
    }

    void shouldRefuseAHistoryAsAWhole()
    {
        QVERIFY(!ConversionItem::listFromJson("[{}]"));
        QVERIFY(!ConversionItem::listFromJson("[1]"));
        QVERIFY(!ConversionItem::listFromJson("{}"));
        QVERIFY(!ConversionItem::listFromJson("[") && !ConversionItem::listFromJson(""));
        QCOMPARE(ConversionItem::listFromJson("[]")->size(), 0);
    }
};

QTEST_GUILESS_MAIN(RecordsTest)
#include "RecordsTest.moc"
