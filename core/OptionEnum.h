#pragma once

#include <QString>
#include <QStringView>

#include <array>
#include <optional>
#include <utility>

/// One case of a closed set and its text, which is what is stored; where the user has the choice, it is also
/// what the user reads.
template<typename Option>
struct OptionCase
{
    Option option;
    const char *rawValue;
};

/// The cases of an enumeration, in the order of the choices in its control if it has one. Each enumeration
/// specialises this.
template<typename Option>
struct OptionCases;

template<typename Option>
QString rawValue(Option option)
{
    for (const auto &each : OptionCases<Option>::cases) {
        if (each.option == option) {
            return QString::fromLatin1(each.rawValue);
        }
    }
    Q_UNREACHABLE();
}

/// The case whose text is exactly `text` (letter case counts), or none.
template<typename Option>
std::optional<Option> optionFromRawValue(QStringView text)
{
    for (const auto &each : OptionCases<Option>::cases) {
        if (text == QLatin1String(each.rawValue)) {
            return each.option;
        }
    }
    return std::nullopt;
}
