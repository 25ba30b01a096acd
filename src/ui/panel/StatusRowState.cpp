#include "ui/panel/StatusRowState.h"

#include "core/guard/BrowserManager.h"
#include "core/guard/EmailClientManager.h"
#include "core/i18n/LanguageManager.h"
#include "ui/Colours.h"
#include "ui/SymbolTable.h"

StatusRowState StatusRowState::of(const HandlerGuard &guard, const QString &titleKey,
                                  const LanguageManager &language)
{
    const std::optional<HandlerRecord> &current = guard.currentDefault();
    const std::optional<HandlerRecord> target = guard.target();
    StatusRowState state;
    state.title = language.localizedString(titleKey);
    state.name = current ? current->name : language.localizedString(QStringLiteral("status_none"));
    if (target)
        state.targetName = target->name;
    state.isProtected = guard.isProtected();
    state.isMismatch = current && target && current->bundleIdentifier != target->bundleIdentifier;
    return state;
}

StatusRowState StatusRowState::browser(const BrowserManager &guard, const LanguageManager &language)
{
    return of(guard, QStringLiteral("status_default_browser"), language);
}

StatusRowState StatusRowState::email(const EmailClientManager &guard,
                                     const LanguageManager &language)
{
    return of(guard, QStringLiteral("status_default_email"), language);
}

QString StatusRowState::getIconName(bool isProtected, bool)
{
    return isProtected ? QStringLiteral("checkmark.shield.fill")
                       : QStringLiteral("xmark.shield.fill");
}

QColor StatusRowState::getIconColor(bool isProtected, bool isMismatch)
{
    if (!isProtected)
        return StateColour::red;
    return isMismatch ? StateColour::orange : StateColour::green;
}

QList<StatusRowState::Part> StatusRowState::statusLine(bool isMismatch, bool isProtected,
                                                       const LanguageManager &language)
{
    const Part protectedPart{language.localizedString(QStringLiteral("status_protected")),
                             StateColour::green};
    const Part notProtectedPart{language.localizedString(QStringLiteral("status_not_protected")),
                                StateColour::red};
    const Part mismatchPart{language.localizedString(QStringLiteral("status_mismatch")),
                            StateColour::orange};
    const Part separator{QStringLiteral(" ・ "), std::nullopt};
    if (isMismatch)
        return isProtected ? QList<Part>{mismatchPart, separator, protectedPart}
                           : QList<Part>{notProtectedPart, separator, mismatchPart};
    return {isProtected ? protectedPart : notProtectedPart};
}

QPixmap StatusRowState::shield(int pixels) const
{
    return SymbolTable::tinted(getIconName(isProtected, isMismatch),
                               getIconColor(isProtected, isMismatch), pixels);
}

std::optional<QString> StatusRowState::shouldBe(const LanguageManager &language) const
{
    if (!isMismatch || !targetName)
        return std::nullopt;
    return language.localizedFormat(QStringLiteral("status_should_be %@"), {*targetName});
}

QString StatusRowState::summary(const LanguageManager &language) const
{
    QString line;
    for (const Part &part : statusLine(isMismatch, isProtected, language))
        line += part.text;
    QString text = title + u": " + name;
    if (const auto should = shouldBe(language))
        text += u", " + *should;
    return text + u" — " + line;
}
