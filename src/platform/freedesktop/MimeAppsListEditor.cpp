#include "platform/freedesktop/MimeAppsListEditor.h"

#include "platform/freedesktop/KeyFileScanner.h"

namespace {

QByteArray keyOf(const QByteArray &text)
{
    const QByteArray line = text.trimmed();
    if (line.isEmpty() || line.startsWith('#') || line.startsWith('['))
        return {};
    const qsizetype equals = line.indexOf('=');
    return equals > 0 ? line.first(equals).trimmed() : QByteArray();
}

bool isBlankOrComment(const QByteArray &text)
{
    const QByteArray line = text.trimmed();
    return line.isEmpty() || line.startsWith('#');
}

} // namespace

MimeAppsListEditor::MimeAppsListEditor(const QByteArray &content)
{
    QByteArray group;
    qsizetype pos = 0;
    while (pos < content.size()) {
        qsizetype end = content.indexOf('\n', pos);
        Line line;
        if (end < 0) {
            line.text = content.sliced(pos);
            pos = content.size();
        } else {
            line.text = content.sliced(pos, end - pos);
            line.ending = "\n";
            if (line.text.endsWith('\r')) {
                line.text.chop(1);
                line.ending = "\r\n";
            }
            pos = end + 1;
        }
        QByteArray name;
        if (KeyFileScanner::parseGroupLine(line.text.trimmed(), &name))
            group = name;
        line.group = group;
        m_lines.append(line);
    }
}

QStringList MimeAppsListEditor::values(const QString &group, const QString &key) const
{
    const QList<qsizetype> lines = keyLines(group.toUtf8(), key.toUtf8());
    if (lines.isEmpty())
        return {};
    const QByteArray &text = m_lines[lines.last()].text;
    return KeyFileScanner::splitList(QByteArrayView(text).sliced(text.indexOf('=') + 1));
}

void MimeAppsListEditor::setValue(const QString &group, const QString &key, const QString &value)
{
    const QByteArray groupName = group.toUtf8();
    const QByteArray keyName = key.toUtf8();
    const QByteArray bytes = value.toUtf8();
    QList<qsizetype> lines = keyLines(groupName, keyName);
    if (!lines.isEmpty()) {
        Line &line = m_lines[lines.takeLast()];
        qsizetype valueStart = line.text.indexOf('=') + 1;
        while (valueStart < line.text.size()
               && (line.text[valueStart] == ' ' || line.text[valueStart] == '\t'))
            ++valueStart;
        line.text = line.text.first(valueStart) + bytes;
        for (auto it = lines.crbegin(); it != lines.crend(); ++it)
            m_lines.removeAt(*it);
        return;
    }
    const QByteArray text = keyName + '=' + bytes;
    const qsizetype header = lastGroupHeader(groupName);
    if (header >= 0) {
        qsizetype insertAt = header + 1;
        for (qsizetype i = header + 1; i < m_lines.size() && m_lines[i].group == groupName; ++i) {
            if (!keyOf(m_lines[i].text).isEmpty())
                insertAt = i + 1;
            else if (!isBlankOrComment(m_lines[i].text))
                break;
        }
        if (m_lines[insertAt - 1].ending.isEmpty())
            m_lines[insertAt - 1].ending = newline();
        m_lines.insert(insertAt, Line{text, newline(), groupName});
        return;
    }
    if (!m_lines.isEmpty()) {
        if (m_lines.last().ending.isEmpty())
            m_lines.last().ending = newline();
        if (!m_lines.last().text.trimmed().isEmpty())
            m_lines.append(Line{{}, newline(), m_lines.last().group});
    }
    m_lines.append(Line{'[' + groupName + ']', newline(), groupName});
    m_lines.append(Line{text, newline(), groupName});
}

void MimeAppsListEditor::removeKey(const QString &group, const QString &key)
{
    const QList<qsizetype> lines = keyLines(group.toUtf8(), key.toUtf8());
    for (auto it = lines.crbegin(); it != lines.crend(); ++it)
        m_lines.removeAt(*it);
}

QByteArray MimeAppsListEditor::content() const
{
    QByteArray out;
    for (const Line &line : m_lines)
        out += line.text + line.ending;
    return out;
}

QList<qsizetype> MimeAppsListEditor::keyLines(const QByteArray &group, const QByteArray &key) const
{
    QList<qsizetype> found;
    for (qsizetype i = 0; i < m_lines.size(); ++i) {
        if (m_lines[i].group == group && keyOf(m_lines[i].text) == key)
            found.append(i);
    }
    return found;
}

qsizetype MimeAppsListEditor::lastGroupHeader(const QByteArray &group) const
{
    for (qsizetype i = m_lines.size() - 1; i >= 0; --i) {
        QByteArray name;
        if (KeyFileScanner::parseGroupLine(m_lines[i].text.trimmed(), &name) && name == group)
            return i;
    }
    return -1;
}

QByteArray MimeAppsListEditor::newline() const
{
    for (const Line &line : m_lines) {
        if (!line.ending.isEmpty())
            return line.ending;
    }
    return "\n";
}
