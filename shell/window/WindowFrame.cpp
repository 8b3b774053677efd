#include "WindowFrame.h"

#include <QStringList>

QString WindowFrame::toText() const
{
    const QString size = QStringLiteral("%1 %2").arg(contentSize.width()).arg(contentSize.height());
    return origin ? QStringLiteral("%1 %2 %3").arg(origin->x()).arg(origin->y()).arg(size) : size;
}

std::optional<WindowFrame> WindowFrame::fromText(const QString &text)
{
    QList<int> numbers;
    const QStringList words = text.split(QLatin1Char(' '));
    for (const QString &word : words) {
        bool isNumber = false;
        numbers.append(word.toInt(&isNumber));
        if (!isNumber) {
            return std::nullopt;
        }
    }
    WindowFrame frame;
    if (numbers.size() == 4) {
        frame.origin = QPoint(numbers.at(0), numbers.at(1));
        numbers.remove(0, 2);
    }
    if (numbers.size() != 2 || numbers.at(0) <= 0 || numbers.at(1) <= 0) {
        return std::nullopt;
    }
    frame.contentSize = QSize(numbers.at(0), numbers.at(1));
    return frame;
}
