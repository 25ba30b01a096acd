#pragma once

#include "core/i18n/TextLookup.h"

#include <QTranslator>

// The program's English texts, read from its embedded table without the language manager.
class EnglishTexts final : public TextLookup {
public:
    EnglishTexts()
    {
        if (!m_table.load(QStringLiteral(":/i18n/vandorel_en.qm")))
            qFatal("the English table is not embedded");
    }

    QString localizedString(const QString &key) const override
    {
        const QString text = m_table.translate("Localizable", key.toUtf8().constData());
        return text.isEmpty() ? key : text;
    }

private:
    QTranslator m_table;
};
