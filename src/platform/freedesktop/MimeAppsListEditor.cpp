#include "platform/freedesktop/MimeAppsListEditor.h"

#include "platform/freedesktop/KeyFileScanner.h"

MimeAppsListEditor::MimeAppsListEditor(const QByteArray &content, Syntax syntax)
{
    KeyFileScanner scanner;
    bool underRefusedHeader = false;
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
        switch (scanner.feed(line.text)) {
        case KeyFileScanner::LineKind::blank:
            break;
        case KeyFileScanner::LineKind::group:
            line.kind = Kind::group;
            underRefusedHeader = false;
            break;
        case KeyFileScanner::LineKind::key:
            line.kind = underRefusedHeader ? Kind::orphan : Kind::key;
            line.key = scanner.key().toByteArray();
            line.valueStart = scanner.rawValue().data() - line.text.constData();
            break;
        case KeyFileScanner::LineKind::refused:
            if (syntax == Syntax::lenient && line.text.indexOf('=') > 0) {
                line.kind = Kind::key;
                line.key = line.text.first(line.text.indexOf('=')).trimmed();
                line.valueStart = line.text.indexOf('=') + 1;
                break;
            }
            line.kind = Kind::refused;
            underRefusedHeader =
                underRefusedHeader || KeyFileScanner::trimmedStart(line.text).startsWith('[');
            break;
        }
        line.group = scanner.group();
        m_lines.append(line);
    }
}

QList<MimeAppsListEditor::RefusedLine> MimeAppsListEditor::refusedLines() const
{
    QList<RefusedLine> refused;
    for (qsizetype i = 0; i < m_lines.size(); ++i) {
        if (m_lines[i].kind == Kind::refused)
            refused.append({i + 1, m_lines[i].text});
    }
    return refused;
}

void MimeAppsListEditor::dropRefusedLines()
{
    m_lines.removeIf(
        [](const Line &line) { return line.kind == Kind::refused || line.kind == Kind::orphan; });
}

std::optional<QStringList> MimeAppsListEditor::values(const QString &group,
                                                      const QString &key) const
{
    const QList<qsizetype> lines = keyLines(group.toUtf8(), key.toUtf8());
    if (lines.isEmpty())
        return std::nullopt;
    const Line &line = m_lines[lines.last()];
    return KeyFileScanner::splitList(QByteArrayView(line.text).sliced(line.valueStart));
}

std::optional<QString> MimeAppsListEditor::value(const QString &group, const QString &key) const
{
    const QList<qsizetype> lines = keyLines(group.toUtf8(), key.toUtf8());
    if (lines.isEmpty())
        return std::nullopt;
    const Line &line = m_lines[lines.last()];
    return KeyFileScanner::unescape(line.text.sliced(line.valueStart).trimmed());
}

QList<QByteArray> MimeAppsListEditor::rawItems(const QString &group, const QString &key) const
{
    const QList<qsizetype> lines = keyLines(group.toUtf8(), key.toUtf8());
    if (lines.isEmpty())
        return {};
    const Line &line = m_lines[lines.last()];
    QList<QByteArray> items;
    for (const QByteArrayView item :
         KeyFileScanner::rawListItems(QByteArrayView(line.text).sliced(line.valueStart)))
        items.append(item.toByteArray());
    return items;
}

void MimeAppsListEditor::setValue(const QString &group, const QString &key, const QByteArray &value)
{
    const QByteArray groupName = group.toUtf8();
    const QByteArray keyName = key.toUtf8();
    QList<qsizetype> lines = keyLines(groupName, keyName);
    if (!lines.isEmpty()) {
        Line &line = m_lines[lines.takeLast()];
        line.text = line.text.first(line.valueStart) + value;
        for (auto it = lines.crbegin(); it != lines.crend(); ++it)
            m_lines.removeAt(*it);
        return;
    }
    const QByteArray text = keyName + '=' + value;
    const Line added{text, newline(), groupName, Kind::key, keyName, keyName.size() + 1};
    const qsizetype insertAt = insertionPoint(groupName);
    if (insertAt >= 0) {
        if (insertAt > 0 && m_lines[insertAt - 1].ending.isEmpty())
            m_lines[insertAt - 1].ending = newline();
        m_lines.insert(insertAt, added);
        return;
    }
    if (!m_lines.isEmpty()) {
        if (m_lines.last().ending.isEmpty())
            m_lines.last().ending = newline();
        if (!m_lines.last().text.trimmed().isEmpty())
            m_lines.append(Line{{}, newline(), m_lines.last().group, Kind::blank, {}, 0});
    }
    m_lines.append(Line{'[' + groupName + ']', newline(), groupName, Kind::group, {}, 0});
    m_lines.append(added);
}

// Where a new key of the group goes: after the group's last key line (or its header; for the
// keys above the first header, at the end of those lines); -1 when the group must be added.
qsizetype MimeAppsListEditor::insertionPoint(const QByteArray &group) const
{
    const qsizetype start = group.isEmpty() ? 0 : lastGroupHeader(group) + 1;
    if (start == 0 && !group.isEmpty())
        return -1;
    qsizetype end = start;
    qsizetype afterLastKey = -1;
    for (; end < m_lines.size() && m_lines[end].group == group; ++end) {
        if (m_lines[end].kind == Kind::key)
            afterLastKey = end + 1;
        else if (m_lines[end].kind != Kind::blank)
            break;
    }
    if (afterLastKey >= 0)
        return afterLastKey;
    return group.isEmpty() ? end : start;
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
        if (m_lines[i].kind == Kind::key && m_lines[i].group == group && m_lines[i].key == key)
            found.append(i);
    }
    return found;
}

qsizetype MimeAppsListEditor::lastGroupHeader(const QByteArray &group) const
{
    for (qsizetype i = m_lines.size() - 1; i >= 0; --i) {
        if (m_lines[i].kind == Kind::group && m_lines[i].group == group)
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
