#include "ModelTexts.h"

#include <QCoreApplication>

namespace {

QString translated(const char *text)
{
    return QCoreApplication::translate("AppModel", text);
}

} // namespace

namespace ModelTexts {

QString waiting()
{
    return translated(QT_TRANSLATE_NOOP("AppModel", "Waiting for your next AirDrop"));
}

QString landed(const QString &fileName)
{
    return translated(QT_TRANSLATE_NOOP("AppModel", "%1 landed")).arg(fileName);
}

QString ready(const QString &fileName)
{
    return translated(QT_TRANSLATE_NOOP("AppModel", "Ready: %1")).arg(fileName);
}

QString couldNotConvert(const QString &fileName)
{
    return translated(QT_TRANSLATE_NOOP("AppModel", "Couldn’t convert %1")).arg(fileName);
}

QString dropPhotosHere()
{
    return translated(QT_TRANSLATE_NOOP("AppModel", "Drop HEIC or HEIF photos here"));
}

QString historyCleared()
{
    return translated(QT_TRANSLATE_NOOP("AppModel", "History cleared"));
}

QString couldNotWatch(const QString &folderName)
{
    return translated(QT_TRANSLATE_NOOP("AppModel", "Couldn’t watch %1")).arg(folderName);
}

QString watching(const QString &folderName)
{
    return translated(QT_TRANSLATE_NOOP("AppModel", "Watching %1")).arg(folderName);
}

QString noPhotosIn(const QString &folderName)
{
    return translated(QT_TRANSLATE_NOOP("AppModel", "No HEIC photos found in %1")).arg(folderName);
}

} // namespace ModelTexts
