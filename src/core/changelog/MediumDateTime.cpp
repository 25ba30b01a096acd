#include "core/changelog/MediumDateTime.h"

#include <unicode/datefmt.h>
#include <unicode/locid.h>
#include <unicode/unistr.h>

#include <memory>

namespace MediumDateTime {

QByteArray icuLocaleName(const QLocale &locale)
{
    if (locale.language() == QLocale::C)
        return "en_US_POSIX";
    // Qt's name() drops the script; ICU needs it where it picks the alphabet.
    QByteArray name = QLocale::languageToCode(locale.language()).toLatin1();
    const QLocale plain(locale.language(), locale.territory());
    if (locale.script() != QLocale::AnyScript && locale.script() != plain.script())
        name += '_' + QLocale::scriptToCode(locale.script()).toLatin1();
    if (locale.territory() != QLocale::AnyTerritory)
        name += '_' + QLocale::territoryToCode(locale.territory()).toLatin1();
    return name;
}

QString format(double unixMSecs, const QLocale &locale)
{
    const icu::Locale icuLocale(icuLocaleName(locale).constData());
    const std::unique_ptr<icu::DateFormat> formatter(icu::DateFormat::createDateTimeInstance(
        icu::DateFormat::kMedium, icu::DateFormat::kMedium, icuLocale));
    if (!formatter)
        return QString();
    icu::UnicodeString text;
    formatter->format(unixMSecs, text);
    return QString(reinterpret_cast<const QChar *>(text.getBuffer()), text.length());
}

} // namespace MediumDateTime
