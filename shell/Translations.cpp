#include "Translations.h"

#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>

Translations::Translations()
{
    if (!m_texts.load(QLocale::system(), QStringLiteral("lumaport"), QStringLiteral("_"),
                      QStringLiteral(":/translations"))) {
        return;
    }
    const QLocale language(m_texts.language());
    if (m_toolkitTexts.load(language, QStringLiteral("qtbase"), QStringLiteral("_"),
                            QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&m_toolkitTexts);
    }
    QCoreApplication::installTranslator(&m_texts);
    QGuiApplication::setLayoutDirection(language.textDirection());
}
