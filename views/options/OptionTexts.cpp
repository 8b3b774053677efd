#include "OptionTexts.h"

// The stored texts of the options stand where the records are; here they are named for the translators.
[[maybe_unused]] static constexpr const char *translatable[] = {
    QT_TRANSLATE_NOOP("Options", "Beside originals"),
    QT_TRANSLATE_NOOP("Options", "Lumaport folder"),
    QT_TRANSLATE_NOOP("Options", "Keep originals"),
    QT_TRANSLATE_NOOP("Options", "Move to Originals"),
};
