#pragma once

#include "core/settings/SettingsStore.h"

#include <QFile>
#include <QTemporaryDir>

#include <memory>

// A settings store on a throw-away file; reopen() reads the same file afresh, as a
// restart would.
class TempSettings {
public:
    TempSettings() : m_store(std::make_unique<SettingsStore>(path())) {}

    SettingsStore &store() { return *m_store; }
    QString path() const { return m_dir.path() + u"/settings.ini"; }
    SettingsStore &reopen()
    {
        m_store.reset();
        m_store = std::make_unique<SettingsStore>(path());
        return *m_store;
    }
    QByteArray fileBytes() const
    {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    QTemporaryDir m_dir;
    std::unique_ptr<SettingsStore> m_store;
};
