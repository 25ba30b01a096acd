#include "platform/freedesktop/KeyFileScanner.h"

#include <QStringDecoder>

namespace {

// GLib's g_ascii_isspace.
bool isSpace(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\v' || c == '\f' || c == '\r';
}

QByteArrayView trimmedEnd(QByteArrayView text)
{
    while (!text.isEmpty() && isSpace(text.back()))
        text.chop(1);
    return text;
}

bool isAscii(QByteArrayView text)
{
    for (const char c : text) {
        if (static_cast<unsigned char>(c) >= 0x80)
            return false;
    }
    return true;
}

bool isUtf8(QByteArrayView text)
{
    if (isAscii(text))
        return true;
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString decoded = decoder(text);
    return !decoder.hasError();
}

// A "[name]" line, with only blanks after the ']'; the name is not checked yet.
bool groupLine(QByteArrayView line, QByteArrayView *name)
{
    if (line.isEmpty() || line.front() != '[')
        return false;
    const qsizetype close = line.indexOf(']');
    if (close < 0)
        return false;
    for (const char c : line.sliced(close + 1)) {
        if (c != ' ' && c != '\t')
            return false;
    }
    *name = line.sliced(1, close - 1);
    return true;
}

bool isGroupName(QByteArrayView name)
{
    if (name.isEmpty())
        return false;
    for (const char c : name) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '[' || c == ']' || byte < 0x20 || byte == 0x7f)
            return false;
    }
    return true;
}

// A locale suffix's characters: letters and digits of any script, '-', '_', '.', '@'.
bool isLocale(QByteArrayView locale)
{
    const auto isSign = [](auto c) { return c == '-' || c == '_' || c == '.' || c == '@'; };
    if (isAscii(locale)) {
        for (const char c : locale) {
            const char lower = char(c | 0x20);
            if (!(c >= '0' && c <= '9') && !(lower >= 'a' && lower <= 'z') && !isSign(c))
                return false;
        }
        return true;
    }
    const QString text = QString::fromUtf8(locale);
    for (const char32_t c : text.toUcs4()) {
        if (!QChar::isLetterOrNumber(c) && !isSign(c))
            return false;
    }
    return true;
}

// GLib's key names: no '=', '[' or ']' except one trailing "[locale]", no blank at either end
// of the name, valid UTF-8.
bool isKeyName(QByteArrayView key)
{
    if (!isUtf8(key))
        return false;
    qsizetype end = 0;
    while (end < key.size() && key[end] != '=' && key[end] != '[' && key[end] != ']')
        ++end;
    if (end == 0 || key.front() == ' ' || key[end - 1] == ' ')
        return false;
    if (end == key.size())
        return true;
    return key[end] == '[' && key.back() == ']' && end + 1 < key.size()
           && isLocale(key.sliced(end + 1, key.size() - end - 2));
}

// One escape after a backslash; '\0' when GLib refuses it.
char unescaped(char c)
{
    switch (c) {
    case 's':
        return ' ';
    case 'n':
        return '\n';
    case 't':
        return '\t';
    case 'r':
        return '\r';
    case '\\':
        return '\\';
    default:
        return '\0';
    }
}

} // namespace

KeyFileScanner::KeyFileScanner(QByteArrayView content) : m_content(content) {}

bool KeyFileScanner::next()
{
    while (m_valid && m_pos < m_content.size()) {
        qsizetype end = m_content.indexOf('\n', m_pos);
        QByteArrayView line;
        if (end < 0) {
            // GLib drops a '\r' only before a '\n'.
            line = m_content.sliced(m_pos);
            m_pos = m_content.size();
        } else {
            line = m_content.sliced(m_pos, end - m_pos);
            m_pos = end + 1;
            if (line.endsWith('\r'))
                line.chop(1);
        }
        if (feed(line) == LineKind::key)
            return true;
    }
    return false;
}

KeyFileScanner::LineKind KeyFileScanner::feed(QByteArrayView line)
{
    // GLib reads each line as a C string.
    const qsizetype nul = line.indexOf('\0');
    if (nul >= 0)
        line.truncate(nul);
    line = trimmedStart(line);
    const auto refuse = [this] {
        m_valid = false;
        return LineKind::refused;
    };
    if (line.isEmpty() || line.front() == '#')
        return LineKind::blank;
    QByteArrayView name;
    if (groupLine(line, &name)) {
        if (!isGroupName(name))
            return refuse();
        m_group = name.toByteArray();
        if (m_firstGroup.isEmpty())
            m_firstGroup = m_group;
        return LineKind::group;
    }
    const qsizetype equals = line.indexOf('=');
    if (equals <= 0 || m_group.isEmpty())
        return refuse();
    const QByteArrayView key = trimmedEnd(line.first(equals));
    const QByteArrayView value = trimmedStart(line.sliced(equals + 1));
    if (!isKeyName(key))
        return refuse();
    if (m_group == m_firstGroup && key == "Encoding"
        && !(value.size() == 5 && qstrnicmp(value.data(), "UTF-8", 5) == 0))
        return refuse();
    m_key = key;
    m_value = value;
    return LineKind::key;
}

QByteArrayView KeyFileScanner::trimmedStart(QByteArrayView text)
{
    while (!text.isEmpty() && isSpace(text.front()))
        text = text.sliced(1);
    return text;
}

std::optional<QString> KeyFileScanner::unescape(QByteArrayView raw)
{
    if (!isUtf8(raw))
        return std::nullopt;
    if (!raw.contains('\\'))
        return QString::fromUtf8(raw);
    QByteArray out;
    out.reserve(raw.size());
    for (qsizetype i = 0; i < raw.size(); ++i) {
        if (raw[i] != '\\') {
            out.append(raw[i]);
            continue;
        }
        const char c = ++i < raw.size() ? unescaped(raw[i]) : '\0';
        if (c == '\0')
            return std::nullopt;
        out.append(c);
    }
    return QString::fromUtf8(out);
}

std::optional<QStringList> KeyFileScanner::splitList(QByteArrayView raw)
{
    if (!isUtf8(raw))
        return std::nullopt;
    QStringList items;
    for (QByteArrayView item : rawListItems(raw)) {
        QByteArray out;
        for (qsizetype i = 0; i < item.size(); ++i) {
            if (item[i] != '\\') {
                out.append(item[i]);
                continue;
            }
            const char c = ++i < item.size() ? (item[i] == ';' ? ';' : unescaped(item[i])) : '\0';
            if (c == '\0')
                return std::nullopt;
            out.append(c);
        }
        items.append(QString::fromUtf8(out));
    }
    return items;
}

QList<QByteArrayView> KeyFileScanner::rawListItems(QByteArrayView raw)
{
    QList<QByteArrayView> items;
    qsizetype start = 0;
    for (qsizetype i = 0; i < raw.size(); ++i) {
        if (raw[i] == '\\') {
            ++i;
        } else if (raw[i] == ';') {
            items.append(raw.sliced(start, i - start));
            start = i + 1;
        }
    }
    if (start < raw.size())
        items.append(raw.sliced(start));
    return items;
}

QByteArray KeyFileScanner::escapeListItem(const QString &item)
{
    QByteArray out;
    bool leading = true;
    for (const char c : item.toUtf8()) {
        if (leading && (c == ' ' || c == '\t'))
            out += c == ' ' ? "\\s" : "\\t";
        else if (c == '\n')
            out += "\\n";
        else if (c == '\r')
            out += "\\r";
        else if (c == '\\' || c == ';')
            out += '\\' + QByteArray(1, c);
        else
            out += c;
        leading = leading && (c == ' ' || c == '\t' || c == '\n' || c == '\r');
    }
    return out;
}
