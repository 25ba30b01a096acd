// Feeds arbitrary bytes to the appcast reader and the version order. The first line of the
// input also serves as two versions to compare, split at its first space.
#include "core/updates/AppcastParser.h"
#include "core/updates/VersionOrder.h"

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes =
        QByteArray::fromRawData(reinterpret_cast<const char *>(data), qsizetype(size));

    const std::optional<AppcastResult> result = AppcastParser::parseAppcast(bytes);
    if (result)
        (void)VersionOrder::isVersion(result->version, QStringLiteral("1.0"));

    const QString firstLine = QString::fromUtf8(bytes.left(bytes.indexOf('\n')));
    const qsizetype space = firstLine.indexOf(u' ');
    const QStringView a = QStringView(firstLine).left(space < 0 ? firstLine.size() : space);
    const QStringView b = space < 0 ? QStringView() : QStringView(firstLine).sliced(space + 1);
    if (VersionOrder::isVersion(a, b) && VersionOrder::isVersion(b, a))
        __builtin_trap(); // the order is strict: never both ways
    if (!VersionOrder::isVersion(a, b) && !VersionOrder::isVersion(b, a)
        && VersionOrder::numbers(a).size() == VersionOrder::numbers(b).size()
        && VersionOrder::numbers(a) != VersionOrder::numbers(b))
        __builtin_trap(); // lists of equal length compare equal only when they are equal
    return 0;
}
