#include "aptabase/AnyCodableValue.h"

#include <QByteArray>

#include <charconv>
#include <cmath>

namespace {

template <class>
inline constexpr bool alwaysFalse = false;

} // namespace

std::optional<QJsonValue> AnyCodableValue::toJson() const
{
    return std::visit(
        [](const auto &value) -> std::optional<QJsonValue> {
            using T = std::decay_t<decltype(value)>;
            if constexpr (std::is_same_v<
                              T, qint64> || std::is_same_v<T, QString> || std::is_same_v<T, bool>) {
                return QJsonValue(value);
            } else if constexpr (std::is_same_v<T, double>) {
                if (!std::isfinite(value))
                    return std::nullopt;
                return QJsonValue(value);
            } else if constexpr (std::is_same_v<T, float>) {
                if (!std::isfinite(value))
                    return std::nullopt;
                // Through its shortest text, so 1.1f goes out as 1.1 and not 1.100000023841858.
                char text[32];
                const auto end = std::to_chars(text, text + sizeof text, value).ptr;
                return QJsonValue(QByteArray(text, end - text).toDouble());
            } else if constexpr (std::is_same_v<T, std::monostate>) {
                return QJsonValue(QJsonValue::Null);
            } else {
                static_assert(alwaysFalse<T>);
            }
        },
        m_value);
}
