#pragma once

#include <QKeySequence>

// The platform's own keys for opening the settings and for quitting, where it names them,
// and the usual ones where it does not.
inline QKeySequence preferencesShortcut()
{
    const QList<QKeySequence> keys = QKeySequence::keyBindings(QKeySequence::Preferences);
    return keys.isEmpty() ? QKeySequence(Qt::CTRL | Qt::Key_Comma) : keys.first();
}

inline QKeySequence quitShortcut()
{
    const QList<QKeySequence> keys = QKeySequence::keyBindings(QKeySequence::Quit);
    return keys.isEmpty() ? QKeySequence(Qt::CTRL | Qt::Key_Q) : keys.first();
}
