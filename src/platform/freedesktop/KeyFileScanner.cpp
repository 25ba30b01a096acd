#include "platform/freedesktop/KeyFileScanner.h"

namespace {

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

QByteArrayView trimmed(QByteArrayView text)
{
    while (!text.isEmpty() && isBlank(text.front()))
        text = text.sliced(1);
    while (!text.isEmpty() && isBlank(text.back()))
        text.chop(1);
    return text;
}

} // namespace

KeyFileScanner::KeyFileScanner(QByteArrayView content) : m_content(content) {}

bool KeyFileScanner::next()
{
    while (m_valid && m_pos < m_content.size()) {
        qsizetype end = m_content.indexOf('\n', m_pos);
        if (end < 0)
            end = m_content.size();
        QByteArrayView line = m_content.sliced(m_pos, end - m_pos);
        m_pos = end + 1;
        if (line.endsWith('\r'))
            line.chop(1);
        line = trimmed(line);
        if (line.isEmpty() || line.front() == '#')
            continue;
        QByteArray name;
        if (parseGroupLine(line, &name)) {
            m_group = name;
            if (m_firstGroup.isEmpty())
                m_firstGroup = name;
            continue;
        }
        const qsizetype equals = line.indexOf('=');
        if (equals <= 0 || m_group.isEmpty()) {
            m_valid = false;
            break;
        }
        m_key = trimmed(line.first(equals));
        m_value = trimmed(line.sliced(equals + 1));
        if (m_key.isEmpty()) {
            m_valid = false;
            break;
        }
        return true;
    }
    return false;
}

bool KeyFileScanner::parseGroupLine(QByteArrayView line, QByteArray *name)
{
    if (line.size() < 3 || line.front() != '[' || line.back() != ']')
        return false;
    const QByteArrayView inner = line.sliced(1, line.size() - 2);
    if (inner.contains('[') || inner.contains(']'))
        return false;
    *name = inner.toByteArray();
    return true;
}

QString KeyFileScanner::unescape(QByteArrayView raw)
{
    if (!raw.contains('\\'))
        return QString::fromUtf8(raw);
    QByteArray out;
    out.reserve(raw.size());
    for (qsizetype i = 0; i < raw.size(); ++i) {
        const char c = raw[i];
        if (c != '\\' || i + 1 == raw.size()) {
            out.append(c);
            continue;
        }
        const char escaped = raw[++i];
        switch (escaped) {
        case 's':
            out.append(' ');
            break;
        case 'n':
            out.append('\n');
            break;
        case 't':
            out.append('\t');
            break;
        case 'r':
            out.append('\r');
            break;
        default:
            out.append(escaped);
            break;
        }
    }
    return QString::fromUtf8(out);
}

QStringList KeyFileScanner::splitList(QByteArrayView raw)
{
    QStringList items;
    qsizetype start = 0;
    while (start <= raw.size()) {
        qsizetype end = raw.indexOf(';', start);
        if (end < 0)
            end = raw.size();
        const QByteArrayView item = trimmed(raw.sliced(start, end - start));
        if (!item.isEmpty())
            items.append(unescape(item));
        start = end + 1;
    }
    return items;
}
