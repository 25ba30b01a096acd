#pragma once

#include "core/i18n/AppLanguage.h"
#include "core/i18n/LanguageManager.h"
#include "ui/Appearance.h"

#include "Settle.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCoreApplication>
#include <QFontMetrics>
#include <QLabel>
#include <QStringList>
#include <QTest>
#include <QTranslator>
#include <QWidget>

#include <functional>

// Checks that the settings pages' tests share: texts that do not fit, the language with the
// longest texts, screenshots next to the test binary.
namespace PageChecks {

// The texts of shown labels and buttons that their widget cuts: a wrapping label shorter than
// its text needs at its width, any other one narrower than its text.
inline QStringList clippedTexts(const QWidget &root)
{
    ::settle();
    QStringList clipped;
    for (const QLabel *label : root.findChildren<QLabel *>()) {
        if (!label->isVisibleTo(&root) || label->text().isEmpty())
            continue;
        const bool fits = label->wordWrap()
                              ? label->heightForWidth(label->width()) <= label->height()
                              : label->sizeHint().width() <= label->width();
        if (!fits)
            clipped.append(label->text());
    }
    for (const QAbstractButton *button : root.findChildren<QAbstractButton *>()) {
        if (button->isVisibleTo(&root) && !button->text().isEmpty()
            && button->sizeHint().width() > button->width())
            clipped.append(button->text());
    }
    return clipped;
}

// Without fonts every letter is the same box: "iiii" is then as wide as "WWWW".
inline bool hasRealFont()
{
    const QFontMetrics metrics(QApplication::font());
    return metrics.horizontalAdvance(QStringLiteral("iiii"))
           < metrics.horizontalAdvance(QStringLiteral("WWWW"));
}

// The language whose texts for `keys` are longest in all, as drawn in the application font.
inline AppLanguage longestLanguage(const QStringList &keys)
{
    const QFontMetrics metrics(QApplication::font());
    AppLanguage longest = AppLanguage::english;
    int widest = -1;
    for (const AppLanguage candidate : AppLanguage::allCases()) {
        const QTranslator *table = LanguageManager::bundleForLanguage(candidate.code());
        int width = 0;
        for (const QString &key : keys)
            width += metrics.horizontalAdvance(table->translate("Localizable", key.toUtf8()));
        if (width > widest) {
            widest = width;
            longest = candidate;
        }
    }
    return longest;
}

// Saves the widget's picture, once pending changes have reached it, next to the test binary
// as <name>.png; false if it failed.
inline bool saveScreenshot(QWidget &widget, const QString &name)
{
    ::settle();
    return widget.grab().save(QCoreApplication::applicationDirPath() + u'/' + name + u".png");
}

// Shows `page` in every language in turn (`switchTo` makes the change take effect): no text
// may be cut, and `check` adds the page's own checks. English, Japanese (for the CJK fonts)
// and the language with the longest texts of `keys` are pictured in light and dark by
// `shoot`, which is given "<light|dark>_<code>" to name its pictures after.
inline void forEveryLanguage(QWidget &page, const std::function<void(AppLanguage)> &switchTo,
                             const QStringList &keys, const std::function<void()> &check,
                             const std::function<void(const QString &suffix)> &shoot)
{
    const AppLanguage longest = longestLanguage(keys);
    for (const AppLanguage language : AppLanguage::allCases()) {
        switchTo(language);
        const QStringList clipped = clippedTexts(page);
        QVERIFY2(clipped.isEmpty(), qPrintable(language.code() + u": " + clipped.join(u" | ")));
        if (check)
            check();
        if (language != AppLanguage::english && language != AppLanguage::japanese
            && language != longest)
            continue;
        for (const AppearanceMode mode : {AppearanceMode::light, AppearanceMode::dark}) {
            Appearance::apply(mode);
            ::settle();
            shoot(mode.rawValue() + u'_' + language.code());
        }
        Appearance::apply(AppearanceMode::system);
    }
}

} // namespace PageChecks
