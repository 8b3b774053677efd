#pragma once

#include "OptionEnum.h"
#include "ReferenceDate.h"

#include <QByteArray>
#include <QList>
#include <QUrl>
#include <QUuid>

/// The state of one history entry; it only moves forward.
enum class ConversionStatus {
    queued,
    converting,
    ready,  ///< `outputURL` and `outputName` are set
    failed, ///< `errorMessage` is set
};

template<>
inline constexpr std::array rawValues<ConversionStatus>{"queued", "converting", "ready", "failed"};

/// One entry of the history and of the queue.
struct ConversionItem
{
    QUuid id;
    QString sourceName;
    std::optional<QString> outputName;
    ConversionStatus status = ConversionStatus::queued;
    ReferenceDate createdAt;
    QUrl sourceURL;
    std::optional<QUrl> outputURL;
    std::optional<QString> errorMessage;

    bool operator==(const ConversionItem &) const = default;

    /// A fresh entry for a source file, waiting for its turn.
    static ConversionItem queuedFor(const QUrl &sourceURL, ReferenceDate createdAt);

    /// A JSON array, in the given order. Absent fields are not written. None when a date is no finite number.
    static std::optional<QByteArray> listToJson(const QList<ConversionItem> &items);
    /// None when any entry lacks a required key or has a value of the wrong type or form.
    static std::optional<QList<ConversionItem>> listFromJson(const QByteArray &json);
};
