#include "StringCatalogue.h"
#include "core/i18n/AppLanguage.h"
#include "core/support/TextFormat.h"

#include <QDir>
#include <QHash>
#include <QRegularExpression>
#include <QTest>
#include <QTranslator>

#include <algorithm>

namespace {

// The texts of a language's table as built into the program, by key; empty if there is none.
QHash<QString, QString> compiledTexts(const QString &code)
{
    QTranslator table;
    QHash<QString, QString> texts;
    if (table.load(u":/i18n/vandorel_" + code + u".qm"))
        for (const CatalogueEntry &entry : StringCatalogue::entries())
            texts.insert(entry.key, table.translate("Localizable", entry.key.toUtf8().constData()));
    return texts;
}

QStringList sorted(QStringList list)
{
    list.sort();
    return list;
}

// Formats the text with distinct numbers: a positional specifier numbered wrong, or mixed
// with plain ones, shows some argument twice or not at all.
bool showsEachArgumentOnce(const QString &text, qsizetype argumentCount)
{
    QVariantList values;
    for (qsizetype i = 1; i <= argumentCount; ++i)
        values.append(qint64(970000 + i));
    const QString formatted = TextFormat::format(text, values);
    return std::all_of(values.cbegin(), values.cend(), [&](const QVariant &value) {
        return formatted.count(value.toString()) == 1;
    });
}

} // namespace

class StringTablesTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void catalogueIsConsistent()
    {
        QCOMPARE(StringCatalogue::entries().size(), 192);
        QCOMPARE(StringCatalogue::specifiersIn(QStringLiteral("%2$@ and %1$lld, 100%% %d")),
                 (QStringList{"%@", "%lld", "%d"}));
    }

    void tablesOfAllTenLanguagesExist()
    {
        const QDir sources(QStringLiteral(I18N_TABLE_DIR));
        QStringList missing;
        for (const AppLanguage language : AppLanguage::allCases()) {
            const QString file = u"vandorel_" + language.code() + u".ts";
            if (!sources.exists(file))
                missing.append(file);
            else if (!QFile::exists(u":/i18n/vandorel_" + language.code() + u".qm"))
                missing.append(file + u" (not built in: configure again)");
        }
        QVERIFY2(missing.isEmpty(), qPrintable(u"missing tables: " + missing.join(u", ")));
        // A table under another name would never be looked up.
        static const QRegularExpression name(QStringLiteral("^vandorel_(.+)\\.ts$"));
        for (const QString &file : sources.entryList({QStringLiteral("vandorel_*.ts")}))
            QVERIFY2(AppLanguage::fromRawValue(name.match(file).captured(1)), qPrintable(file));
    }

    void tableCoversTheCatalogue_data()
    {
        QTest::addColumn<QString>("code");
        for (const AppLanguage language : AppLanguage::allCases())
            QTest::newRow(qPrintable(language.code())) << language.code();
    }
    void tableCoversTheCatalogue()
    {
        QFETCH(QString, code);
        const QHash<QString, QString> texts = compiledTexts(code);
        QVERIFY2(!texts.isEmpty(), "no table built in");
        QStringList problems;
        for (const CatalogueEntry &entry : StringCatalogue::entries()) {
            const QString text = texts.value(entry.key);
            if (text.trimmed().isEmpty() || text == entry.key) {
                problems.append(u"missing, empty or the key: " + entry.key);
                continue;
            }
            const QStringList specifiers = StringCatalogue::specifiersIn(text);
            if (sorted(specifiers) != sorted(entry.specifiers))
                problems.append(
                    QStringLiteral("specifiers '%1' instead of '%2': %3")
                        .arg(specifiers.join(u' '), entry.specifiers.join(u' '), entry.key));
            if (!showsEachArgumentOnce(text, entry.specifiers.size()))
                problems.append(u"an argument shows not exactly once: " + entry.key);
            if (text.count(QStringLiteral("**")) % 2 != 0)
                problems.append(u"unbalanced **: " + entry.key);
        }
        QVERIFY2(problems.isEmpty(), qPrintable(problems.join(u"\n")));
    }

    // Texts a native speaker corrected: one telling row per language, and the French
    // word for snooze ("pause", never "sourdine") in every key that names it.
    void reviewedTextsAreBuiltIn()
    {
        static const char *const rows[][3] = {
            {"de", "status_not_protected", "Ungeschützt"},
            {"es", "status_mismatch", "No coincide"},
            {"fr", "log_empty_title", "Aucune modification pour l'instant"},
            {"nl", "general_check_at_startup", "Controleren bij het starten"},
            {"zh", "status_protected", "受保护"},
            {"ja", "about_rights", "All rights reserved."},
            {"it", "browser_stop", "Interrompi"},
            {"pl", "alert_button_keep %@", "Na razie zachowaj %@"},
            {"pt", "feedback_tag_other", "Outros"},
        };
        for (const auto &row : rows)
            QCOMPARE(compiledTexts(QString::fromUtf8(row[0])).value(QString::fromUtf8(row[1])),
                     QString::fromUtf8(row[2]));
        const QHash<QString, QString> french = compiledTexts(QStringLiteral("fr"));
        for (auto it = french.cbegin(); it != french.cend(); ++it) {
            QVERIFY2(!it.value().contains(u"sourdine", Qt::CaseInsensitive), qPrintable(it.key()));
            if (it.key().endsWith(u"_snooze_title") || it.key().endsWith(u"_currently_snoozed"))
                QVERIFY2(it.value().contains(u"pause", Qt::CaseInsensitive), qPrintable(it.key()));
        }
    }

    // Labels of controls (short English texts that are not sentences) should not grow much in
    // translation, or they crowd the fixed-width pages. Up to 1.6 times the English is fine;
    // longer ones are reported; only a label far beyond that fails.
    void controlLabelsStayShort()
    {
        const QHash<QString, QString> english = compiledTexts(QStringLiteral("en"));
        static const QRegularExpression sentenceEnd(QStringLiteral("[.?!:]$"));
        QStringList failures;
        for (const AppLanguage language : AppLanguage::allCases()) {
            const QHash<QString, QString> texts = compiledTexts(language.code());
            QStringList reported;
            for (const CatalogueEntry &entry : StringCatalogue::entries()) {
                const QString source = english.value(entry.key);
                const QString text = texts.value(entry.key);
                if (source.isEmpty() || source.size() > 25 || source.contains(sentenceEnd)
                    || text.isEmpty())
                    continue;
                const double ratio = double(text.size()) / double(source.size());
                const QString line =
                    QStringLiteral("%1: %2 -> %3 (%4x)")
                        .arg(entry.key, source, text, QString::number(ratio, 'f', 1));
                if (ratio > 2.5 && text.size() > source.size() + 12)
                    failures.append(language.code() + u' ' + line);
                else if (ratio > 1.6 && text.size() > source.size() + 4)
                    reported.append(line);
            }
            if (!reported.isEmpty())
                qInfo().noquote() << "Long labels in" << language.code()
                                  << "\n  " + reported.join(u"\n  ");
        }
        QVERIFY2(failures.isEmpty(), qPrintable(failures.join(u"\n")));
    }
};

QTEST_GUILESS_MAIN(StringTablesTest)
#include "tst_string_tables.moc"
