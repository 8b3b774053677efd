#include "ConversionSettings.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

using namespace Qt::StringLiterals;

std::optional<QByteArray> ConversionSettings::toJson() const
{
    if (!std::isfinite(jpegQuality)) {
        return std::nullopt; // JSON has no such number
    }
    const QJsonObject object{
        {u"format"_s, rawValue(format)},
        {u"outputLocation"_s, rawValue(outputLocation)},
        {u"originalPolicy"_s, rawValue(originalPolicy)},
        {u"jpegQuality"_s, jpegQuality},
        {u"notificationsEnabled"_s, notificationsEnabled},
    };
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

std::optional<ConversionSettings> ConversionSettings::fromJson(const QByteArray &json)
{
    // A value of another type reads as an empty text, which stands for no option.
    const QJsonObject object = QJsonDocument::fromJson(json).object();
    const auto format = optionFromRawValue<OutputFormat>(object[u"format"].toString());
    const auto location = optionFromRawValue<OutputLocation>(object[u"outputLocation"].toString());
    const auto policy = optionFromRawValue<OriginalPolicy>(object[u"originalPolicy"].toString());
    const QJsonValue quality = object[u"jpegQuality"];
    const QJsonValue notifications = object[u"notificationsEnabled"];
    if (!format || !location || !policy || !quality.isDouble() || !notifications.isBool()) {
        return std::nullopt;
    }
    return ConversionSettings{.format = *format,
                              .outputLocation = *location,
                              .originalPolicy = *policy,
                              .jpegQuality = quality.toDouble(),
                              .notificationsEnabled = notifications.toBool()};
}
