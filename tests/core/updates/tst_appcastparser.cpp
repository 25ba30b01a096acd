#include "core/updates/AppcastInput.h"
#include "core/updates/AppcastParser.h"

#include <QFile>
#include <QStringEncoder>
#include <QTest>

namespace {

using Result = std::optional<AppcastResult>;

QString describe(const Result &result)
{
    if (!result)
        return QStringLiteral("none");
    const QString link =
        result->releaseNotesURL ? u'[' + *result->releaseNotesURL + u']' : QStringLiteral("none");
    return u"version [" + result->version + u"] link " + link;
}

QString found(const QString &version, const std::optional<QString> &link = std::nullopt)
{
    return describe(AppcastResult{version, link});
}

QByteArray feed(const QByteArray &items)
{
    return "<?xml version=\"1.0\"?>\n<rss xmlns:sparkle=\"urn:s\"><channel>\n" + items
           + "\n</channel></rss>\n";
}

QByteArray item(const QByteArray &inner)
{
    return feed("<item>" + inner + "</item>");
}

QByteArray enclosure(const QByteArray &version)
{
    return "<enclosure sparkle:version=\"" + version + "\"/>";
}

QByteArray version(const QByteArray &text)
{
    return "<sparkle:shortVersionString>" + text + "</sparkle:shortVersionString>";
}

QByteArray link(const QByteArray &text)
{
    return "<sparkle:releaseNotesLink>" + text + "</sparkle:releaseNotesLink>";
}

QByteArray fixture(const QString &name)
{
    QFile file(QStringLiteral(APPCAST_FIXTURES_DIR "/") + name);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("missing fixture %s", qPrintable(name));
    return file.readAll();
}

QByteArray nested(int depth, const QByteArray &inner)
{
    return QByteArray("<a>").repeated(depth) + inner + QByteArray("</a>").repeated(depth);
}

QByteArray manyAttributes(int count)
{
    QByteArray tag = "<item><enclosure sparkle:version='3'";
    for (int i = 0; i < count; ++i)
        tag += " a" + QByteArray::number(i) + "=''";
    return tag + "/></item>";
}

} // namespace

class TestAppcastParser : public QObject {
    Q_OBJECT
private slots:
    void readsFeeds_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const QByteArray &xml, const QString &expected) {
            QTest::newRow(name) << xml << expected;
        };
        row("last item wins",
            feed("<item>" + enclosure("2.0") + "</item>\n<item>" + enclosure("1.0") + "</item>"),
            found("1.0"));
        row("attribute after element", item(version("1.2") + enclosure("7")), found("7"));
        row("element alone, trimmed", item(version("\n\t 1.2 \u00a0\n")), found("1.2"));
        row("attribute untrimmed", item(enclosure(" 7 ")), found(" 7 "));
        row("empty attribute still overwrites", item(version("1.2") + enclosure("")), found(""));
        row("enclosure outside item counts",
            feed("<item>" + enclosure("1") + "</item>" + enclosure("5")), found("5"));
        row("enclosure outside item, wiped by next item",
            feed(enclosure("5") + "<item><title>x</title></item>"), found(""));
        row("link followed by newline is emptied", item(link("http://h/n") + "\n"),
            found("", QString()));
        row("new item clears the link", feed("<item>" + link("a") + "</item><item/>"), found(""));
        row("references stay in one chunk", item(link(" http://h/?a=1&amp;b=&#50;")),
            found("", "http://h/?a=1&b=2"));
        row("split version: first non-empty chunk stays", item(version(" <!--c--> 1.0<?pi?>2.0")),
            found("1.0"));
        row("split link: last chunk stays", item(link("http://a<!--c-->http://b")),
            found("", "http://b"));
        row("CDATA never reaches the reader's events",
            item(version("<![CDATA[3.0]]>") + link("<![CDATA[http://c]]>")), found(""));
        row("text after an empty version element counts",
            item("<sparkle:shortVersionString/>4.5<title>t</title>"), found("4.5"));
        row("inner item closes the outer one", item("<item/>" + version("1")), found(""));
        row("other prefix not understood",
            feed("<item xmlns:sp=\"urn:s\"><enclosure sp:version=\"3\"/>"
                 "<sp:shortVersionString>3</sp:shortVersionString></item>"),
            found(""));

        // The last item is the oldest release; its delta enclosure has the final word.
        row("history", fixture("history-newest-first.xml"),
            found("139.0.1", "http://127.0.0.1:8765/app/Vandorel/notes/1.3.9.html"));
        row("single", fixture("single-release.xml"),
            found("2.1", "http://127.0.0.1:8765/notes?v=2.1&lang=en"));
        row("link then newline", fixture("notes-link-then-newline.xml"), found("1.2", QString()));
        row("no items", fixture("no-items.xml"), found(""));
        row("server error body", fixture("server-error.xml"), found(""));

        const QString text = QStringLiteral(
            "<rss><item><sparkle:releaseNotesLink>http://h/n\u00e9\u20ac</sparkle:releaseNotesLink>"
            "<enclosure sparkle:version='1.0'/></item></rss>");
        const QString expected = found("1.0", QStringLiteral("http://h/n\u00e9\u20ac"));
        const auto encode = [&](QStringConverter::Encoding encoding, bool bom) {
            QStringEncoder encoder(encoding, bom ? QStringConverter::Flag::WriteBom
                                                 : QStringConverter::Flag::Default);
            return QByteArray(encoder(text));
        };
        row("UTF-16LE, BOM", encode(QStringConverter::Utf16LE, true), expected);
        row("UTF-32LE", encode(QStringConverter::Utf32LE, false), expected);
        row("declared windows-1252",
            QByteArray("<?xml version='1.0' encoding='windows-1252'?>"
                       "<rss><item>"
                       + link("http://h/n\xe9\x80") + enclosure("1.0") + "</item></rss>"),
            expected);

        // The input limits never touch a realistic feed.
        row("depth within the limit",
            nested(AppcastParser::kMaxDepth - 2, "<item><enclosure sparkle:version='4'/></item>"),
            found("4"));
        row("attributes within the limit", manyAttributes(AppcastInput::kMaxAttributesPerTag - 1),
            found("3"));
        const auto withDoctype = [](const QByteArray &doctype, const QByteArray &xml) {
            return QByteArray(xml).replace("\n<rss", QByteArray("\n" + doctype + "\n<rss"));
        };
        row("document type with a bracket in its system id",
            withDoctype("<!DOCTYPE rss SYSTEM 'http://h/[x].dtd'>", item(enclosure("6"))),
            found("6"));
        row("doctype-like text in comment, PI and CDATA",
            item("<!-- <!DOCTYPE x> --><?pi <!DOCTYPE x>?><![CDATA[<!DOCTYPE x>]]>"
                 "<enclosure sparkle:version='5'/>"),
            found("5"));
    }

    void readsFeeds()
    {
        QFETCH(QByteArray, xml);
        QFETCH(QString, expected);
        QCOMPARE(describe(AppcastParser::parseAppcast(xml)), expected);
    }

    void refusesMalformedAndHostileInput_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::newRow("mismatched tags") << QByteArray("<rss><item></rss></item>");
        QTest::newRow("undeclared entity") << QByteArray("<rss><item>&nbsp;</item></rss>");
        QTest::newRow("NUL character") << QByteArray("<rss>\0</rss>", 13);
        QTest::newRow("404 page without doctype") << fixture("not-found-no-doctype.html");
        QTest::newRow("invalid UTF-8") << QByteArray("<rss><item>\xff\xfe</item></rss>");
        QTest::newRow("unknown encoding")
            << QByteArray("<?xml version='1.0' encoding='x-none'?><rss/>");

        // Each of these would cost seconds to hours or gigabytes if it reached the reader.
        QByteArray laughs = "<!DOCTYPE rss [<!ENTITY a0 'ha'>";
        for (int i = 1; i <= 12; ++i)
            laughs += "<!ENTITY a" + QByteArray::number(i) + " '"
                      + QByteArray("&a" + QByteArray::number(i - 1) + ";").repeated(10) + "'>";
        QTest::newRow("nested entities") << laughs + "]><rss><item>&a12;</item></rss>";
        QTest::newRow("internal subset after a system id")
            << QByteArray("<!DOCTYPE rss SYSTEM \"r.dtd\" [<!ATTLIST item a CDATA 'x'>]><rss/>");
        QTest::newRow("doctype behind UTF-7") << QByteArray("<?xml version='1.0' encoding='UTF-7'?>"
                                                            "+ADw-!DOCTYPE r +AFs-+AF0-+AD4-<r/>");
        QTest::newRow("attributes of one tag") << "<rss>" + manyAttributes(400000) + "</rss>";
        QTest::newRow("one level too deep") << nested(AppcastParser::kMaxDepth, "<item/>");
        QTest::newRow("too large") << "<rss>" + QByteArray(AppcastInput::kMaxBytes, ' ') + "</rss>";
    }

    void refusesMalformedAndHostileInput()
    {
        QFETCH(QByteArray, xml);
        QCOMPARE(describe(AppcastParser::parseAppcast(xml)), QStringLiteral("none"));
    }

    void everyTruncationGivesNone()
    {
        const QByteArray xml = fixture(QStringLiteral("history-newest-first.xml"));
        const qsizetype wellFormedFrom = xml.lastIndexOf("</rss>") + 6;
        for (qsizetype length = 0; length < xml.size(); ++length) {
            const bool complete = length >= wellFormedFrom;
            if (AppcastParser::parseAppcast(xml.left(length)).has_value() != complete)
                QFAIL(qPrintable(QString("wrong answer for the first %1 bytes").arg(length)));
        }
    }

    void hugeTextIsRead()
    {
        const QByteArray text = QByteArray("9.").repeated(AppcastInput::kMaxBytes / 2 - 100);
        const Result huge = AppcastParser::parseAppcast("<item>" + version(text) + "</item>");
        QVERIFY(huge);
        QCOMPARE(huge->version.size(), text.size());
    }
};

QTEST_GUILESS_MAIN(TestAppcastParser)
#include "tst_appcastparser.moc"
