#include "ConversionSettings.h"

#include "JsonFields.h"

#include <QJsonDocument>

#include <cmath>

std::optional<QByteArray> ConversionSettings::toJson() const
{
    if (!std::isfinite(jpegQuality)) {
        return std::nullopt; // JSON has no such number
    }
    const QJsonObject object{
        {QStringLiteral("format"), rawValue(format)},
        {QStringLiteral("outputLocation"), rawValue(outputLocation)},
        {QStringLiteral("originalPolicy"), rawValue(originalPolicy)},
        {QStringLiteral("jpegQuality"), jpegQuality},
        {QStringLiteral("notificationsEnabled"), notificationsEnabled},
    };
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

std::optional<ConversionSettings> ConversionSettings::fromJson(const QByteArray &json)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (!document.isObject()) {
        return std::nullopt;
    }
    const QJsonObject object = document.object();
    const auto format = optionField<OutputFormat>(object, QLatin1String("format"));
    const auto location = optionField<OutputLocation>(object, QLatin1String("outputLocation"));
    const auto policy = optionField<OriginalPolicy>(object, QLatin1String("originalPolicy"));
    const QJsonValue quality = object.value(QLatin1String("jpegQuality"));
    const QJsonValue notifications = object.value(QLatin1String("notificationsEnabled"));
    if (!format || !location || !policy || !quality.isDouble() || !notifications.isBool()) {
        return std::nullopt;
    }
    return ConversionSettings{.format = *format,
                              .outputLocation = *location,
                              .originalPolicy = *policy,
                              .jpegQuality = quality.toDouble(),
                              .notificationsEnabled = notifications.toBool()};
}
