#pragma once

#include "OptionEnum.h"

#include <QJsonObject>
#include <QJsonValue>

/// The text under `key`, or none when it is missing or of another type.
inline std::optional<QString> textField(const QJsonObject &object, QLatin1String key)
{
    const QJsonValue value = object.value(key);
    return value.isString() ? std::optional(value.toString()) : std::nullopt;
}

/// The case whose text stands under `key`, or none.
template<typename Option>
std::optional<Option> optionField(const QJsonObject &object, QLatin1String key)
{
    const auto text = textField(object, key);
    return text ? optionFromRawValue<Option>(*text) : std::nullopt;
}
