#pragma once

#include <QLatin1StringView>
#include <QtGlobal>

#include <optional>

// The kinds of value the settings store keeps, and one key type for each: a key knows its
// name in the store, the value it reads as when nothing (or nothing of its type) is stored,
// and, where the program writes one on its first launch, that value.
enum class SettingType { boolean, integer, real, text, data, date };

struct BoolKey {
    static constexpr SettingType type = SettingType::boolean;
    const char *name;
    bool readDefault = false;
    std::optional<bool> firstLaunch = std::nullopt;
    QLatin1StringView key() const { return QLatin1StringView(name); }
};

struct IntegerKey {
    static constexpr SettingType type = SettingType::integer;
    const char *name;
    qint64 readDefault = 0;
    QLatin1StringView key() const { return QLatin1StringView(name); }
};

struct RealKey {
    static constexpr SettingType type = SettingType::real;
    const char *name;
    double readDefault = 0;
    QLatin1StringView key() const { return QLatin1StringView(name); }
};

// Text; an enumeration is stored by its raw value, and its defaults are raw values too.
struct TextKey {
    static constexpr SettingType type = SettingType::text;
    const char *name;
    const char *readDefault = nullptr; // none: an absent key reads as nothing
    const char *firstLaunch = nullptr;
    QLatin1StringView key() const { return QLatin1StringView(name); }
};

struct DataKey {
    static constexpr SettingType type = SettingType::data;
    const char *name;
    QLatin1StringView key() const { return QLatin1StringView(name); }
};

struct DateKey {
    static constexpr SettingType type = SettingType::date;
    const char *name;
    QLatin1StringView key() const { return QLatin1StringView(name); }
};

// Any key, by its name and type alone: the form in which the table lists them all.
struct DeclaredKey {
    const char *name = nullptr;
    SettingType type = SettingType::boolean;

    constexpr DeclaredKey() = default;
    template <typename Key>
    constexpr DeclaredKey(const Key &key) : name(key.name), type(Key::type)
    {
    }
};
