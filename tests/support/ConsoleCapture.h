#pragma once

#include "foundation/Console.h"

#include <QStringList>

// Collects console lines while it lives.
class ConsoleCapture {
public:
    ConsoleCapture()
    {
        Console::setSink([this](const QString &line) { m_lines.append(line); });
    }
    ~ConsoleCapture() { Console::setSink({}); }
    ConsoleCapture(const ConsoleCapture &) = delete;
    ConsoleCapture &operator=(const ConsoleCapture &) = delete;

    const QStringList &lines() const { return m_lines; }
    QStringList take()
    {
        QStringList taken = m_lines;
        m_lines.clear();
        return taken;
    }
    bool contains(const QString &line) const { return m_lines.contains(line); }
    qsizetype count(const QString &line) const { return m_lines.count(line); }
    QStringList startingWith(const QString &prefix) const
    {
        QStringList result;
        for (const QString &line : m_lines) {
            if (line.startsWith(prefix))
                result.append(line);
        }
        return result;
    }

private:
    QStringList m_lines;
};
