#pragma once

#include <QColor>
#include <QList>
#include <QPixmap>
#include <QString>

#include <optional>

class BrowserManager;
class EmailClientManager;
class HandlerGuard;
class LanguageManager;

// What one status row of the panel says about a guard: the row's title, the current
// default's name, the target's name, whether the guard works and whether the current
// default is away from the target. The panel shows a finer picture than the tray icon: a
// working guard in mismatch keeps its check-mark shield, in orange.
struct StatusRowState {
    // One text of the status line; no colour means the secondary text colour.
    struct Part {
        QString text;
        std::optional<QColor> colour;
        bool operator==(const Part &) const = default;
    };

    QString title;
    QString name;
    std::optional<QString> targetName;
    bool isProtected = false;
    bool isMismatch = false;

    // The state of `guard`, with the texts of `titleKey` and "status_none" for a guard
    // that knows no current default.
    static StatusRowState of(const HandlerGuard &guard, const QString &titleKey,
                             const LanguageManager &language);
    // The browser row ("status_default_browser") and the mail row ("status_default_email").
    static StatusRowState browser(const BrowserManager &guard, const LanguageManager &language);
    static StatusRowState email(const EmailClientManager &guard, const LanguageManager &language);

    static QString getIconName(bool isProtected, bool isMismatch);
    static QColor getIconColor(bool isProtected, bool isMismatch);
    static QList<Part> statusLine(bool isMismatch, bool isProtected,
                                  const LanguageManager &language);

    // The row's shield, `pixels` wide and high.
    QPixmap shield(int pixels) const;
    // "Should be <target>" on a mismatch with a target, else nothing.
    std::optional<QString> shouldBe(const LanguageManager &language) const;
    // Every text of the row on one line, for a menu entry or a screen reader.
    QString summary(const LanguageManager &language) const;
};
