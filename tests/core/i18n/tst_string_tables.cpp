#include "core/i18n/AppLanguage.h"
#include "core/i18n/StringCatalogue.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <QTranslator>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

struct Message {
    QString source;
    QString translation;
    QString type; // "unfinished", "vanished", "obsolete" or empty
};

struct Table {
    QString version;
    QString language;
    QStringList contexts;
    QList<Message> messages;
    QString error;
};

Table readTable(const QString &path)
{
    Table table;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        table.error = QStringLiteral("cannot open");
        return table;
    }
    QXmlStreamReader xml(&file);
    Message message;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        const auto name = xml.name();
        if (name == u"TS") {
            table.version = xml.attributes().value(QStringLiteral("version")).toString();
            table.language = xml.attributes().value(QStringLiteral("language")).toString();
        } else if (name == u"name") {
            table.contexts.append(xml.readElementText());
        } else if (name == u"message") {
            message = Message();
        } else if (name == u"source") {
            message.source = xml.readElementText();
        } else if (name == u"translation") {
            message.type = xml.attributes().value(QStringLiteral("type")).toString();
            message.translation = xml.readElementText();
            table.messages.append(message);
        }
    }
    if (xml.hasError())
        table.error = xml.errorString();
    return table;
}

QString tableDir()
{
    return QStringLiteral(I18N_TABLE_DIR);
}

QString codeOf(const QString &fileName)
{
    static const QRegularExpression pattern(QStringLiteral("^vandorel_(.+)\\.ts$"));
    return pattern.match(fileName).captured(1);
}

QStringList presentTableFiles()
{
    return QDir(tableDir()).entryList({QStringLiteral("vandorel_*.ts")}, QDir::Files, QDir::Name);
}

QStringList sorted(QStringList list)
{
    list.sort();
    return list;
}

// Positional specifiers must number the arguments 1..n, each once, and may not be mixed
// with plain ones (the plain ones would take arguments by a separate count).
QString positionalProblem(const QString &text, qsizetype argumentCount)
{
    static const QRegularExpression any(QStringLiteral("%(?:([0-9]+)\\$)?(?:@|lld|d)"));
    QList<int> positions;
    int plain = 0;
    auto it = any.globalMatch(text);
    while (it.hasNext()) {
        const auto match = it.next();
        if (match.capturedStart() > 0 && text.at(match.capturedStart() - 1) == u'%')
            continue;
        if (match.captured(1).isEmpty())
            ++plain;
        else
            positions.append(match.captured(1).toInt());
    }
    if (positions.isEmpty())
        return {};
    if (plain > 0)
        return QStringLiteral("mixes positional and plain specifiers");
    std::sort(positions.begin(), positions.end());
    for (qsizetype i = 0; i < positions.size(); ++i) {
        if (positions.at(i) != i + 1 || positions.size() != argumentCount)
            return QStringLiteral("positional specifiers must number 1..%1 once each")
                .arg(argumentCount);
    }
    return {};
}

bool isSentence(const QString &text)
{
    return text.endsWith(u'.') || text.endsWith(u'?') || text.endsWith(u'!') || text.endsWith(u':');
}

QHash<QString, QString> translationsOf(const Table &table)
{
    QHash<QString, QString> texts;
    for (const Message &message : table.messages)
        texts.insert(message.source, message.translation);
    return texts;
}

} // namespace

class StringTablesTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void catalogueIsConsistent();
    void tablesOfAllTenLanguagesExist();
    void tableCoversTheCatalogue_data();
    void tableCoversTheCatalogue();
    void embeddedTableAnswersEveryKey_data();
    void embeddedTableAnswersEveryKey();
    void controlLabelsStayShort();
};

void StringTablesTest::catalogueIsConsistent()
{
    const QList<CatalogueEntry> &entries = StringCatalogue::entries();
    QCOMPARE(entries.size(), 192);
    QSet<QString> keys;
    for (const CatalogueEntry &entry : entries) {
        QVERIFY2(!keys.contains(entry.key), qPrintable(entry.key));
        keys.insert(entry.key);
        for (const QString &specifier : entry.specifiers)
            QVERIFY2(specifier == u"%@" || specifier == u"%lld", qPrintable(entry.key));
        // A key that shows specifiers lists exactly those; only two keys hide theirs.
        const QStringList shown = StringCatalogue::specifiersIn(entry.key);
        if (entry.key == u"about_version" || entry.key == u"update_available_message")
            QCOMPARE(entry.specifiers, QStringList{QStringLiteral("%@")});
        else
            QCOMPARE(shown, entry.specifiers);
    }
    // Every browser key has its mail twin, with the one renamed pair.
    for (const QString &key : std::as_const(keys)) {
        if (!key.startsWith(u"browser_"))
            continue;
        QString twin = u"email_" + key.mid(8);
        if (key == u"browser_no_browsers")
            twin = QStringLiteral("email_no_clients");
        QVERIFY2(keys.contains(twin), qPrintable(key));
    }
    QCOMPARE(StringCatalogue::specifiersIn(QStringLiteral("%2$@ and %1$lld, 100%% %d")),
             (QStringList{"%@", "%lld", "%d"}));
}

void StringTablesTest::tablesOfAllTenLanguagesExist()
{
    QStringList missing;
    for (const AppLanguage language : AppLanguage::allCases()) {
        const QString code = language.code();
        if (!QFile::exists(tableDir() + u"/vandorel_" + code + u".ts"))
            missing.append(code + u" (source table)");
        else if (!QFile::exists(u":/i18n/vandorel_" + code + u".qm"))
            missing.append(code + u" (not embedded: configure again)");
    }
    QVERIFY2(missing.isEmpty(), qPrintable(u"missing tables: " + missing.join(u", ")));

    // A table under another name would never be looked up.
    for (const QString &file : presentTableFiles())
        QVERIFY2(AppLanguage::fromRawValue(codeOf(file)).has_value(), qPrintable(file));
}

void StringTablesTest::tableCoversTheCatalogue_data()
{
    QTest::addColumn<QString>("fileName");
    for (const QString &file : presentTableFiles())
        QTest::newRow(qPrintable(file)) << file;
}

void StringTablesTest::tableCoversTheCatalogue()
{
    QFETCH(QString, fileName);
    const Table table = readTable(tableDir() + u'/' + fileName);
    QVERIFY2(table.error.isEmpty(), qPrintable(table.error));
    QCOMPARE(table.version, QStringLiteral("2.1"));
    QCOMPARE(table.language, codeOf(fileName));
    QCOMPARE(table.contexts, QStringList{QStringLiteral("Localizable")});

    QStringList problems;
    QHash<QString, qsizetype> seen;
    for (const Message &message : table.messages) {
        ++seen[message.source];
        if (!StringCatalogue::contains(message.source))
            problems.append(u"not a key: " + message.source);
        // lrelease leaves these out of the compiled table.
        if (message.type == u"vanished" || message.type == u"obsolete")
            problems.append(u"marked " + message.type + u": " + message.source);
    }
    const QHash<QString, QString> texts = translationsOf(table);
    for (const CatalogueEntry &entry : StringCatalogue::entries()) {
        const qsizetype count = seen.value(entry.key);
        if (count == 0) {
            problems.append(u"missing: " + entry.key);
            continue;
        }
        if (count > 1)
            problems.append(u"twice: " + entry.key);
        const QString text = texts.value(entry.key);
        if (text.trimmed().isEmpty()) {
            problems.append(u"empty: " + entry.key);
            continue;
        }
        if (text == entry.key)
            problems.append(u"text is the key: " + entry.key);
        const QStringList specifiers = StringCatalogue::specifiersIn(text);
        if (sorted(specifiers) != sorted(entry.specifiers)) {
            const auto shown = [](const QStringList &list) {
                return list.isEmpty() ? QStringLiteral("none") : list.join(u' ');
            };
            problems.append(QStringLiteral("specifiers %1 instead of %2: %3")
                                .arg(shown(specifiers), shown(entry.specifiers), entry.key));
        }
        if (const QString problem = positionalProblem(text, entry.specifiers.size());
            !problem.isEmpty())
            problems.append(problem + u": " + entry.key);
        if (text.count(QStringLiteral("**")) % 2 != 0)
            problems.append(u"unbalanced **: " + entry.key);
    }
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join(u"\n")));
}

void StringTablesTest::embeddedTableAnswersEveryKey_data()
{
    QTest::addColumn<QString>("code");
    for (const QString &file : presentTableFiles())
        QTest::newRow(qPrintable(codeOf(file))) << codeOf(file);
}

void StringTablesTest::embeddedTableAnswersEveryKey()
{
    QFETCH(QString, code);
    QTranslator translator;
    QVERIFY2(translator.load(u":/i18n/vandorel_" + code + u".qm"),
             "table not embedded: configure the build again");
    QStringList unanswered;
    for (const CatalogueEntry &entry : StringCatalogue::entries()) {
        if (translator.translate("Localizable", entry.key.toUtf8().constData()).isEmpty())
            unanswered.append(entry.key);
    }
    QVERIFY2(unanswered.isEmpty(), qPrintable(unanswered.join(u", ")));
}

// Labels of controls (short English texts that are not sentences) should not grow much in
// translation, or they crowd the fixed-width pages. Up to 1.6 times the English is fine;
// longer ones are reported; only a label far beyond that fails.
void StringTablesTest::controlLabelsStayShort()
{
    const QHash<QString, QString> english =
        translationsOf(readTable(tableDir() + QStringLiteral("/vandorel_en.ts")));
    QStringList failures;
    for (const QString &file : presentTableFiles()) {
        if (file == u"vandorel_en.ts")
            continue;
        const QHash<QString, QString> texts = translationsOf(readTable(tableDir() + u'/' + file));
        QStringList reported;
        for (const CatalogueEntry &entry : StringCatalogue::entries()) {
            const QString source = english.value(entry.key);
            const QString text = texts.value(entry.key);
            if (source.size() > 25 || isSentence(source) || text.isEmpty())
                continue;
            const double ratio = double(text.size()) / double(source.size());
            const QString line = QStringLiteral("%1: %2 -> %3 (%4x)")
                                     .arg(entry.key, source, text, QString::number(ratio, 'f', 1));
            if (ratio > 2.5 && text.size() > source.size() + 12)
                failures.append(codeOf(file) + u' ' + line);
            else if (ratio > 1.6 && text.size() > source.size() + 4)
                reported.append(line);
        }
        if (!reported.isEmpty())
            qInfo().noquote() << "Long labels in" << file << "\n  " + reported.join(u"\n  ");
    }
    QVERIFY2(failures.isEmpty(), qPrintable(failures.join(u"\n")));
}

QTEST_GUILESS_MAIN(StringTablesTest)
#include "tst_string_tables.moc"
