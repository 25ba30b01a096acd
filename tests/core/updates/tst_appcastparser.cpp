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
    const QString link = result->releaseNotesURL ? u'[' + *result->releaseNotesURL + u']'
                                                 : QStringLiteral("none");
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
    void rules_data();
    void rules();
    void malformedGivesNone_data();
    void malformedGivesNone();
    void fixtures_data();
    void fixtures();
    void everyTruncationGivesNone();
    void encodings_data();
    void encodings();
    void hostileInputIsBounded_data();
    void hostileInputIsBounded();
    void limitsLeaveRealisticFeedsAlone();
};

void TestAppcastParser::rules_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<QString>("expected");

    QTest::newRow("last item wins") << feed("<item><enclosure sparkle:version=\"2.0\"/></item>\n"
                                            "<item><enclosure sparkle:version=\"1.0\"/></item>")
                                    << found("1.0");
    QTest::newRow("attribute after element")
        << feed("<item><sparkle:shortVersionString>1.2</sparkle:shortVersionString>"
                "<enclosure sparkle:version=\"7\"/></item>")
        << found("7");
    QTest::newRow("attribute before element")
        << feed("<item><enclosure sparkle:version=\"7\"/>"
                "<sparkle:shortVersionString>1.2</sparkle:shortVersionString></item>")
        << found("7");
    QTest::newRow("element alone, trimmed")
        << feed("<item><sparkle:shortVersionString>\n\t 1.2 \u00a0\n</sparkle:shortVersionString>"
                "</item>")
        << found("1.2");
    QTest::newRow("attribute untrimmed") << feed("<item><enclosure sparkle:version=\" 7 \"/></item>")
                                         << found(" 7 ");
    QTest::newRow("empty attribute still overwrites")
        << feed("<item><sparkle:shortVersionString>1.2</sparkle:shortVersionString>"
                "<enclosure sparkle:version=\"\"/></item>")
        << found("");
    QTest::newRow("enclosure outside item, no item after")
        << feed("<item><enclosure sparkle:version=\"1\"/></item><enclosure sparkle:version=\"5\"/>")
        << found("5");
    QTest::newRow("enclosure outside item, wiped by next item")
        << feed("<enclosure sparkle:version=\"5\"/><item><title>x</title></item>") << found("");
    QTest::newRow("text outside item ignored")
        << feed("<sparkle:shortVersionString>9</sparkle:shortVersionString>") << found("");
    QTest::newRow("link followed by newline is emptied")
        << feed("<item><sparkle:releaseNotesLink>http://h/n</sparkle:releaseNotesLink>\n</item>")
        << found("", QString());
    QTest::newRow("link directly followed by tag survives")
        << feed("<item><sparkle:releaseNotesLink> http://h/n </sparkle:releaseNotesLink></item>")
        << found("", QStringLiteral("http://h/n"));
    QTest::newRow("item without link has none")
        << feed("<item><enclosure sparkle:version=\"1\"/></item>") << found("1");
    QTest::newRow("new item clears the link")
        << feed("<item><sparkle:releaseNotesLink>a</sparkle:releaseNotesLink></item><item/>")
        << found("");
    QTest::newRow("references stay in one chunk")
        << feed("<item><sparkle:releaseNotesLink>http://h/?a=1&amp;b=&#50;</sparkle:releaseNotesLink>"
                "</item>")
        << found("", QStringLiteral("http://h/?a=1&b=2"));
    QTest::newRow("split version: first non-empty chunk stays")
        << feed("<item><sparkle:shortVersionString> <!--c--> 1.0<?pi?>2.0</sparkle:shortVersionString>"
                "</item>")
        << found("1.0");
    QTest::newRow("split link: last chunk stays")
        << feed("<item><sparkle:releaseNotesLink>http://a<!--c-->http://b</sparkle:releaseNotesLink>"
                "</item>")
        << found("", QStringLiteral("http://b"));
    QTest::newRow("CDATA never reaches the reader's events")
        << feed("<item><sparkle:shortVersionString><![CDATA[3.0]]></sparkle:shortVersionString>"
                "<sparkle:releaseNotesLink><![CDATA[http://c]]></sparkle:releaseNotesLink></item>")
        << found("");
    QTest::newRow("text after an empty version element counts")
        << feed("<item><sparkle:shortVersionString/>4.5<title>t</title></item>") << found("4.5");
    QTest::newRow("inner item closes the outer one")
        << feed("<item><item/><sparkle:shortVersionString>1</sparkle:shortVersionString></item>")
        << found("");
    QTest::newRow("other prefix not understood")
        << feed("<item xmlns:sp=\"urn:s\"><enclosure sp:version=\"3\"/>"
                "<sp:shortVersionString>3</sp:shortVersionString></item>")
        << found("");
    QTest::newRow("version element is not the attribute")
        << feed("<item><sparkle:version>140</sparkle:version></item>") << found("");
    QTest::newRow("no channel needed") << QByteArray("<item><enclosure sparkle:version='1'/></item>")
                                       << found("1");
}

void TestAppcastParser::rules()
{
    QFETCH(QByteArray, xml);
    QFETCH(QString, expected);
    QCOMPARE(describe(AppcastParser::parseAppcast(xml)), expected);
}

void TestAppcastParser::malformedGivesNone_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("declaration only") << QByteArray("<?xml version=\"1.0\"?>");
    QTest::newRow("filled, then truncated") << QByteArray("<rss><item><enclosure sparkle:version='3'/>");
    QTest::newRow("mismatched tags") << QByteArray("<rss><item></rss></item>");
    QTest::newRow("two roots") << QByteArray("<rss/><rss/>");
    QTest::newRow("undeclared entity") << QByteArray("<rss><item>&nbsp;</item></rss>");
    QTest::newRow("duplicate attribute")
        << QByteArray("<rss><enclosure sparkle:version='1' sparkle:version='2'/></rss>");
    QTest::newRow("NUL character") << QByteArray("<rss>\0</rss>", 13);
    QTest::newRow("not XML") << QByteArray("{\"version\": \"2.0\"}");
}

void TestAppcastParser::malformedGivesNone()
{
    QFETCH(QByteArray, xml);
    QCOMPARE(describe(AppcastParser::parseAppcast(xml)), QStringLiteral("none"));
}

void TestAppcastParser::fixtures_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("expected");
    // The last item is the oldest release; its delta enclosure has the final word.
    QTest::newRow("history") << "history-newest-first.xml"
                             << found("139.0.1", QStringLiteral("http://127.0.0.1:8765/app/"
                                                                "Vandorel/notes/1.3.9.html"));
    QTest::newRow("single") << "single-release.xml"
                            << found("2.1", QStringLiteral("http://127.0.0.1:8765/notes?v=2.1&lang=en"));
    QTest::newRow("link then newline") << "notes-link-then-newline.xml" << found("1.2", QString());
    QTest::newRow("no items") << "no-items.xml" << found("");
    QTest::newRow("server error body") << "server-error.xml" << found("");
    QTest::newRow("404 page") << "not-found.html" << QStringLiteral("none");
    QTest::newRow("404 page without doctype") << "not-found-no-doctype.html" << QStringLiteral("none");
}

void TestAppcastParser::fixtures()
{
    QFETCH(QString, file);
    QFETCH(QString, expected);
    QCOMPARE(describe(AppcastParser::parseAppcast(fixture(file))), expected);
}

void TestAppcastParser::everyTruncationGivesNone()
{
    const QByteArray xml = fixture(QStringLiteral("history-newest-first.xml"));
    const qsizetype wellFormedFrom = xml.lastIndexOf("</rss>") + 6;
    for (qsizetype length = 0; length < xml.size(); ++length) {
        const bool complete = length >= wellFormedFrom;
        if (AppcastParser::parseAppcast(xml.left(length)).has_value() != complete)
            QFAIL(qPrintable(QStringLiteral("wrong answer for the first %1 bytes").arg(length)));
    }
}

void TestAppcastParser::encodings_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<QString>("expected");
    const QString text = QStringLiteral(
        "<rss><item><sparkle:releaseNotesLink>http://h/n\u00e9\u20ac</sparkle:releaseNotesLink>"
        "<enclosure sparkle:version='1.0'/></item></rss>");
    const QString expected = found(QStringLiteral("1.0"), QStringLiteral("http://h/n\u00e9\u20ac"));
    const auto encode = [&](QStringConverter::Encoding encoding, bool bom) {
        QStringEncoder encoder(encoding, bom ? QStringConverter::Flag::WriteBom
                                             : QStringConverter::Flag::Default);
        return QByteArray(encoder(text));
    };
    QTest::newRow("UTF-8") << encode(QStringConverter::Utf8, false) << expected;
    QTest::newRow("UTF-8, BOM") << encode(QStringConverter::Utf8, true) << expected;
    QTest::newRow("UTF-16LE, BOM") << encode(QStringConverter::Utf16LE, true) << expected;
    QTest::newRow("UTF-16BE") << encode(QStringConverter::Utf16BE, false) << expected;
    QTest::newRow("UTF-32LE") << encode(QStringConverter::Utf32LE, false) << expected;
    QTest::newRow("declared windows-1252")
        << QByteArray("<?xml version='1.0' encoding='windows-1252'?>"
                      "<rss><item><sparkle:releaseNotesLink>http://h/n\xe9\x80</sparkle:releaseNotesLink>"
                      "<enclosure sparkle:version='1.0'/></item></rss>")
        << expected;
    QTest::newRow("invalid UTF-8") << QByteArray("<rss><item>\xff\xfe</item></rss>") << "none";
    QTest::newRow("unknown encoding")
        << QByteArray("<?xml version='1.0' encoding='x-none'?><rss/>") << "none";
}

void TestAppcastParser::encodings()
{
    QFETCH(QByteArray, xml);
    QFETCH(QString, expected);
    QCOMPARE(describe(AppcastParser::parseAppcast(xml)), expected);
}

void TestAppcastParser::hostileInputIsBounded_data()
{
    // Each of these would cost seconds to hours or gigabytes if it reached the reader.
    QTest::addColumn<QByteArray>("xml");
    QByteArray laughs = "<!DOCTYPE rss [<!ENTITY a0 'ha'>";
    for (int i = 1; i <= 12; ++i)
        laughs += "<!ENTITY a" + QByteArray::number(i) + " '"
                  + QByteArray("&a" + QByteArray::number(i - 1) + ";").repeated(10) + "'>";
    QTest::newRow("nested entities") << laughs + "]><rss><item>&a12;</item></rss>";
    const QByteArray wide = "<!DOCTYPE rss [<!ENTITY e '" + QByteArray("<x/>").repeated(900) + "'>]>";
    QTest::newRow("entity of elements, many references")
        << wide + "<rss>" + QByteArray("&e;").repeated(200000) + "</rss>";
    QTest::newRow("external entity")
        << QByteArray("<!DOCTYPE r [<!ENTITY x SYSTEM 'file:///etc/passwd'>]><r>&x;</r>");
    QByteArray defaults = "<!DOCTYPE rss [<!ATTLIST item";
    for (int i = 0; i < 100000; ++i)
        defaults += " a" + QByteArray::number(i) + " CDATA 'x'";
    QTest::newRow("attribute defaults") << defaults + ">]><rss><item/></rss>";
    QTest::newRow("attributes of one tag") << "<rss>" + manyAttributes(400000) + "</rss>";
    QTest::newRow("doctype behind UTF-7")
        << QByteArray("<?xml version='1.0' encoding='UTF-7'?>+ADw-!DOCTYPE r +AFs-+AF0-+AD4-<r/>");
    QTest::newRow("deep nesting") << nested(1000000, "<item/>");
    QTest::newRow("one level too deep") << nested(AppcastParser::kMaxDepth, "<item/>");
    QTest::newRow("too large") << "<rss>" + QByteArray(AppcastInput::kMaxBytes, ' ') + "</rss>";
}

void TestAppcastParser::hostileInputIsBounded()
{
    QFETCH(QByteArray, xml);
    QCOMPARE(describe(AppcastParser::parseAppcast(xml)), QStringLiteral("none"));
}

void TestAppcastParser::limitsLeaveRealisticFeedsAlone()
{
    QCOMPARE(describe(AppcastParser::parseAppcast(
                 nested(AppcastParser::kMaxDepth - 2, "<item><enclosure sparkle:version='4'/></item>"))),
             found("4"));
    QCOMPARE(describe(AppcastParser::parseAppcast(manyAttributes(AppcastInput::kMaxAttributesPerTag - 1))),
             found("3"));
    QCOMPARE(describe(AppcastParser::parseAppcast(feed("<!-- <!DOCTYPE x> --><?pi <!DOCTYPE x>?>"
                                                       "<item><![CDATA[<!DOCTYPE x>]]>"
                                                       "<enclosure sparkle:version='5'/></item>"))),
             found("5"));
    const QByteArray hugeVersion = QByteArray("9.").repeated(AppcastInput::kMaxBytes / 2 - 100);
    const Result huge = AppcastParser::parseAppcast(
        "<item><sparkle:shortVersionString>" + hugeVersion + "</sparkle:shortVersionString></item>");
    QVERIFY(huge);
    QCOMPARE(huge->version.size(), hugeVersion.size());
    QByteArray manyItems;
    for (int i = 0; i < 20000; ++i)
        manyItems += "<item><enclosure sparkle:version='" + QByteArray::number(i) + "'/></item>";
    QCOMPARE(describe(AppcastParser::parseAppcast(feed(manyItems))), found("19999"));
}

QTEST_GUILESS_MAIN(TestAppcastParser)
#include "tst_appcastparser.moc"
