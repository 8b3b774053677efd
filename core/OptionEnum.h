#pragma once

#include <QString>
#include <QStringView>

#include <algorithm>
#include <array>
#include <optional>

/// The texts of an enumeration's cases, in the order of the cases, which are numbered from 0. A text is what
/// is stored; where the user has the choice, it is also what the user reads. Each enumeration specialises
/// this.
template<typename Option>
inline constexpr std::array<const char *, 0> rawValues;

template<typename Option>
QString rawValue(Option option)
{
    return QString::fromLatin1(rawValues<Option>.at(static_cast<std::size_t>(option)));
}

/// The case whose text is exactly `text` (letter case counts), or none.
template<typename Option>
std::optional<Option> optionFromRawValue(QStringView text)
{
    const auto &texts = rawValues<Option>;
    const auto found = std::find_if(texts.begin(), texts.end(),
                                    [text](const char *each) { return text == QLatin1String(each); });
    return found != texts.end() ? std::optional(static_cast<Option>(found - texts.begin())) : std::nullopt;
}
