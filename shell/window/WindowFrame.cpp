#include "WindowFrame.h"

#include <QRegularExpression>

QString WindowFrame::toText() const
{
    const QString place = origin ? QStringLiteral("%1 %2 ").arg(origin->x()).arg(origin->y()) : QString();
    const QString size = QStringLiteral("%1 %2").arg(contentSize.width()).arg(contentSize.height());
    return place + size + (isMaximised ? QStringLiteral(" maximised") : QString());
}

std::optional<WindowFrame> WindowFrame::fromText(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral(R"(^(?:(-?\d{1,6}) (-?\d{1,6}) )?([1-9]\d{0,5}) ([1-9]\d{0,5})( maximised)?$)"));
    const auto match = form.match(text);
    if (!match.hasMatch()) {
        return std::nullopt;
    }
    const auto number = [&match](int group) { return match.capturedView(group).toInt(); };
    WindowFrame frame{.contentSize = QSize(number(3), number(4)), .isMaximised = match.hasCaptured(5)};
    if (match.hasCaptured(1)) {
        frame.origin = QPoint(number(1), number(2));
    }
    return frame;
}
