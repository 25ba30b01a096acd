#include "core/guard/StatusReport.h"

#include "core/guard/DefaultResolver.h"
#include "core/guard/GuardProfile.h"
#include "core/guard/GuardSettings.h"
#include "core/guard/HandlerDetector.h"
#include "core/guard/HandlerSnapshot.h"
#include "core/guard/ProtectionStatus.h"

namespace {

// The record's own stored form, so the report shows exactly what the store holds.
QByteArray recordJson(const std::optional<HandlerRecord> &record)
{
    return record ? record->toJson() : QByteArray("null");
}

QByteArray side(const GuardProfile &profile, SettingsStore &settings,
                const HandlerDatabase &handlers)
{
    // Only getters are called: nothing is written.
    const GuardSettings guardSettings(profile, settings);
    const DefaultResolver resolver(profile, handlers);
    // As a guard does at construction: detect, then resolve (which may add the default).
    QList<HandlerRecord> installed = HandlerDetector(profile, handlers).detect();
    const auto current = resolver.resolve(installed);
    const auto target = guardSettings.target();
    const bool isProtected = guardSettings.isProtected();
    const QString status = Protection::name(Protection::statusOf(current, target, isProtected));

    QByteArray out = "{\"current\":" + recordJson(current);
    out += ",\"target\":" + recordJson(target);
    out += ",\"isProtected\":" + QByteArray(isProtected ? "true" : "false");
    out += ",\"status\":\"" + status.toUtf8() + "\"";
    out += ",\"installed\":[";
    for (qsizetype i = 0; i < installed.size(); ++i)
        out += (i ? "," : "") + installed.at(i).toJson();
    out += "]}";
    return out;
}

} // namespace

QByteArray StatusReport::build(SettingsStore &settings, const HandlerDatabase &handlers)
{
    // Browser first, so the console lines come in the guards' order.
    const HandlerSnapshot snapshot(handlers);
    const QByteArray browser = side(GuardProfile::browser(), settings, snapshot);
    const QByteArray email = side(GuardProfile::email(), settings, snapshot);
    return "{\"browser\":" + browser + ",\"email\":" + email + "}\n";
}
