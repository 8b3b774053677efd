#pragma once

#include "OptionEnum.h"

#include <QCoreApplication>
#include <QStringList>

/// What the user reads of an option: its stored English text, in the user's language.
template<typename Option>
QString optionText(Option option)
{
    return QCoreApplication::translate("Options", rawValue(option).toLatin1().constData());
}

/// The texts of all cases, in the order of the choices.
template<typename Option>
QStringList optionTexts()
{
    QStringList texts;
    for (const auto &each : OptionCases<Option>::cases) {
        texts.append(optionText(each.option));
    }
    return texts;
}
