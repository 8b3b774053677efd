#include "ConversionItem.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

using namespace Qt::StringLiterals;

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

/// Reads an optional field, which stays absent when the key is missing or null. False when the value is
/// malformed.
template<typename Value, typename Parse>
bool readOptional(const QJsonValue &value, std::optional<Value> &field, Parse parse)
{
    if (value.isUndefined() || value.isNull()) {
        return true;
    }
    field = value.isString() ? parse(value.toString()) : std::nullopt;
    return field.has_value();
}

QJsonObject toObject(const ConversionItem &item)
{
    QJsonObject object{
        {u"id"_s, canonicalText(item.id)},
        {u"sourceName"_s, item.sourceName},
        {u"status"_s, rawValue(item.status)},
        {u"createdAt"_s, item.createdAt.seconds},
        {u"sourceURL"_s, encodedText(item.sourceURL)},
    };
    if (item.outputName) {
        object.insert(u"outputName", *item.outputName);
    }
    if (item.outputURL) {
        object.insert(u"outputURL", encodedText(*item.outputURL));
    }
    if (item.errorMessage) {
        object.insert(u"errorMessage", *item.errorMessage);
    }
    return object;
}

std::optional<ConversionItem> fromObject(const QJsonObject &object)
{
    // A value of another type reads as an empty text, which is no identifier, no status and no URL.
    const auto id = uuidFromText(object[u"id"].toString());
    const auto status = optionFromRawValue<ConversionStatus>(object[u"status"].toString());
    const auto sourceURL = fileUrlFromText(object[u"sourceURL"].toString());
    const QJsonValue sourceName = object[u"sourceName"];
    const QJsonValue createdAt = object[u"createdAt"];
    if (!id || !status || !sourceURL || !sourceName.isString() || !createdAt.isDouble()) {
        return std::nullopt;
    }
    ConversionItem item{.id = *id,
                        .sourceName = sourceName.toString(),
                        .status = *status,
                        .createdAt = {createdAt.toDouble()},
                        .sourceURL = *sourceURL};
    const auto plainText = [](const QString &text) { return std::optional(text); };
    if (!readOptional(object[u"outputName"], item.outputName, plainText) ||
        !readOptional(object[u"outputURL"], item.outputURL, fileUrlFromText) ||
        !readOptional(object[u"errorMessage"], item.errorMessage, plainText)) {
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
        const auto item = fromObject(value.toObject());
        if (!item) {
            return std::nullopt;
        }
        items.append(*item);
    }
    return items;
}
