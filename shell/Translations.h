#pragma once

#include <QTranslator>

/// The program's texts in the first of the user's languages for which there are any, with Qt's own texts
/// (those of file dialogs) and the layout direction of that language. Needs the application, and must not
/// outlive it.
class Translations
{
public:
    Translations();

private:
    QTranslator m_texts;
    QTranslator m_toolkitTexts;
};
