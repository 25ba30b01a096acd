#pragma once

#include "platform/HandlerDatabase.h"

#include <QHash>

// The handler database as one report sees it: each question is put to the database once and
// its answer kept for the life of the snapshot, so the two guards' detection and resolution,
// which ask about the same applications many times, read each of them once; and the database
// is held to one reading meanwhile. It only reads; a change is refused.
class HandlerSnapshot : public HandlerDatabase {
public:
    explicit HandlerSnapshot(const HandlerDatabase &handlers);

    QStringList knownIdentifiers(Kind kind) const override;
    QStringList applicationsForScheme(const QString &scheme) const override;
    std::optional<QString> defaultApplicationForScheme(const QString &scheme) const override;
    std::optional<QString> locationForIdentifier(const QString &identifier) const override;
    std::optional<Application> applicationAt(const QString &location) const override;
    QString displayNameAtPath(const QString &path) const override;
    int setDefaultHandler(const QString &scheme, const QString &identifier) override;

private:
    const HandlerDatabase &m_handlers;
    const std::shared_ptr<void> m_hold;
    mutable QHash<QString, QStringList> m_applications;
    mutable QHash<QString, std::optional<QString>> m_defaults;
    mutable QHash<QString, std::optional<QString>> m_locations;
    mutable QHash<QString, std::optional<Application>> m_applicationsAt;
};
