#include "aptabase/EnvironmentInfo.h"

#include <QLocale>

QString EnvironmentInfo::systemLanguage()
{
    const QLocale::Language language = QLocale::system().language();
    if (language == QLocale::C || language == QLocale::AnyLanguage)
        return {};
    return QLocale::languageToCode(language);
}
