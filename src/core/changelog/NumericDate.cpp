#include "core/changelog/NumericDate.h"

#include "core/changelog/MediumDateTime.h"

#include <unicode/dtptngen.h>
#include <unicode/locid.h>
#include <unicode/smpdtfmt.h>

#include <memory>

namespace NumericDate {

QString format(double unixMSecs, const QLocale &locale)
{
    const icu::Locale icuLocale(MediumDateTime::icuLocaleName(locale).constData());
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::DateTimePatternGenerator> patterns(
        icu::DateTimePatternGenerator::createInstance(icuLocale, status));
    if (U_FAILURE(status))
        return QString();
    const icu::UnicodeString pattern = patterns->getBestPattern(u"yMd", status);
    icu::SimpleDateFormat formatter(pattern, icuLocale, status);
    if (U_FAILURE(status))
        return QString();
    icu::UnicodeString text;
    formatter.format(unixMSecs, text);
    return QString(reinterpret_cast<const QChar *>(text.getBuffer()), text.length());
}

} // namespace NumericDate
