#include "PhotoFileName.h"

#include <QFile>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <climits>

namespace {

bool endsLine(QChar character)
{
    return character.category() == QChar::Separator_Line ||
           character.category() == QChar::Separator_Paragraph ||
           (character >= QLatin1Char('\n') && character <= QLatin1Char('\r')) || character == QChar(0x85);
}

bool isRightToLeft(QChar character)
{
    return character.direction() == QChar::DirR || character.direction() == QChar::DirAL;
}

} // namespace

namespace PhotoFileName {

QString extension(const QString &fileName)
{
    const qsizetype point = fileName.lastIndexOf(QLatin1Char('.'));
    return point > 0 ? fileName.mid(point + 1) : QString();
}

QString base(const QString &fileName)
{
    const qsizetype point = fileName.lastIndexOf(QLatin1Char('.'));
    return point > 0 ? fileName.left(point) : fileName;
}

bool isHeic(const QString &fileName)
{
    const QString lower = extension(fileName).toLower();
    return lower == QLatin1String("heic") || lower == QLatin1String("heif");
}

QString shown(const QString &fileName)
{
    QString line = fileName;
    std::replace_if(line.begin(), line.end(), endsLine, QChar(QLatin1Char(' ')));
    const bool isMixed = std::any_of(line.cbegin(), line.cend(), isRightToLeft);
    return isMixed ? QChar(0x2068) + line + QChar(0x2069) : line; // first strong isolate, and its end
}

QString numbered(const QString &base, const QString &extension, int number)
{
    QString rest = number > 1 ? QLatin1Char(' ') + QString::number(number) : QString();
    if (!extension.isEmpty()) {
        rest += QLatin1Char('.') + extension;
    }
    QTextBoundaryFinder end(QTextBoundaryFinder::Grapheme, base);
    end.toEnd();
    while (QFile::encodeName(base.left(end.position()) + rest).size() > NAME_MAX &&
           end.toPreviousBoundary() > 0) {
    }
    return base.left(end.position()) + rest;
}

} // namespace PhotoFileName
