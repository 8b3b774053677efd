#include "ConversionItem.h"

#include "JsonFields.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <cmath>

namespace {

QString canonicalText(const QUuid &id)
{
    return id.toString(QUuid::WithoutBraces).toUpper();
}

std::optional<QUuid> uuidFromText(const QString &text)
{
    // QUuid also reads forms with braces, and answers a null identifier for what it cannot read.
    const QUuid id = QUuid::fromString(text);
    return canonicalText(id) == text.toUpper() ? std::optional(id) : std::nullopt;
}

QString encodedText(const QUrl &url)
{
    return QString::fromLatin1(url.toEncoded());
}

std::optional<QUrl> fileUrlFromText(const QString &text)
{
    const QUrl url(text, QUrl::StrictMode);
    return url.isValid() && url.isLocalFile() ? std::optional(url) : std::nullopt;
}

/// An optional field: `field` stays absent when the key is missing or null. False when the value is
/// malformed.
template<typename Value, typename Parse>
bool readOptional(const QJsonObject &object, QLatin1String key, std::optional<Value> &field, Parse parse)
{
    const QJsonValue value = object.value(key);
    if (value.isUndefined() || value.isNull()) {
        return true;
    }
    field = value.isString() ? parse(value.toString()) : std::nullopt;
    return field.has_value();
}

QJsonObject toObject(const ConversionItem &item)
{
    QJsonObject object{
        {QStringLiteral("id"), canonicalText(item.id)},
        {QStringLiteral("sourceName"), item.sourceName},
        {QStringLiteral("status"), rawValue(item.status)},
        {QStringLiteral("createdAt"), item.createdAt.seconds},
        {QStringLiteral("sourceURL"), encodedText(item.sourceURL)},
    };
    if (item.outputName) {
        object.insert(QStringLiteral("outputName"), *item.outputName);
    }
    if (item.outputURL) {
        object.insert(QStringLiteral("outputURL"), encodedText(*item.outputURL));
    }
    if (item.errorMessage) {
        object.insert(QStringLiteral("errorMessage"), *item.errorMessage);
    }
    return object;
}

std::optional<ConversionItem> fromObject(const QJsonObject &object)
{
    const auto identifier = textField(object, QLatin1String("id"));
    const auto sourceName = textField(object, QLatin1String("sourceName"));
    const auto status = optionField<ConversionStatus>(object, QLatin1String("status"));
    const QJsonValue createdAt = object.value(QLatin1String("createdAt"));
    const auto sourceText = textField(object, QLatin1String("sourceURL"));
    if (!identifier || !sourceName || !status || !createdAt.isDouble() || !sourceText) {
        return std::nullopt;
    }
    const auto id = uuidFromText(*identifier);
    const auto sourceURL = fileUrlFromText(*sourceText);
    if (!id || !sourceURL) {
        return std::nullopt;
    }
    ConversionItem item{.id = *id,
                        .sourceName = *sourceName,
                        .status = *status,
                        .createdAt = {createdAt.toDouble()},
                        .sourceURL = *sourceURL};
    const auto plainText = [](const QString &text) { return std::optional(text); };
    if (!readOptional(object, QLatin1String("outputName"), item.outputName, plainText) ||
        !readOptional(object, QLatin1String("outputURL"), item.outputURL, fileUrlFromText) ||
        !readOptional(object, QLatin1String("errorMessage"), item.errorMessage, plainText)) {
        return std::nullopt;
    }
    return item;
}

} // namespace

ConversionItem ConversionItem::queuedFor(const QUrl &sourceURL, ReferenceDate createdAt)
{
    return {.id = QUuid::createUuid(),
            .sourceName = sourceURL.fileName(),
            .status = ConversionStatus::queued,
            .createdAt = createdAt,
            .sourceURL = sourceURL};
}

std::optional<QByteArray> ConversionItem::listToJson(const QList<ConversionItem> &items)
{
    QJsonArray array;
    for (const ConversionItem &item : items) {
        if (!std::isfinite(item.createdAt.seconds)) {
            return std::nullopt; // JSON has no such number
        }
        array.append(toObject(item));
    }
    return QJsonDocument(array).toJson(QJsonDocument::Compact);
}

std::optional<QList<ConversionItem>> ConversionItem::listFromJson(const QByteArray &json)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (!document.isArray()) {
        return std::nullopt;
    }
    QList<ConversionItem> items;
    const QJsonArray array = document.array();
    for (const auto &value : array) {
        const auto item = value.isObject() ? fromObject(value.toObject()) : std::nullopt;
        if (!item) {
            return std::nullopt;
        }
        items.append(*item);
    }
    return items;
}
