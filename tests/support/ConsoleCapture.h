#pragma once

#include "foundation/Console.h"

#include <QMutex>
#include <QStringList>

#include <utility>

// Collects console lines while it lives. Lines may come from a worker thread (a default
// change's system calls), so every reading takes a copy under the lock.
class ConsoleCapture {
public:
    ConsoleCapture()
    {
        Console::setSink([this](const QString &line) {
            QMutexLocker lock(&m_mutex);
            m_lines.append(line);
        });
    }
    ~ConsoleCapture() { Console::setSink({}); }
    ConsoleCapture(const ConsoleCapture &) = delete;
    ConsoleCapture &operator=(const ConsoleCapture &) = delete;

    QStringList lines() const
    {
        QMutexLocker lock(&m_mutex);
        return m_lines;
    }
    QStringList take()
    {
        QMutexLocker lock(&m_mutex);
        return std::exchange(m_lines, {});
    }
    bool contains(const QString &line) const { return lines().contains(line); }
    qsizetype count(const QString &line) const { return lines().count(line); }
    QStringList startingWith(const QString &prefix) const
    {
        QStringList result;
        for (const QString &line : lines()) {
            if (line.startsWith(prefix))
                result.append(line);
        }
        return result;
    }

private:
    mutable QMutex m_mutex;
    QStringList m_lines;
};
