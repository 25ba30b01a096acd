#include "ui/log/LogView.h"

#include "core/changelog/LogManager.h"
#include "core/changelog/NumericDate.h"
#include "core/i18n/LanguageManager.h"
#include "core/support/Clock.h"
#include "platform/ModalPrompter.h"
#include "ui/Colours.h"
#include "ui/LocalizedText.h"
#include "ui/SymbolTable.h"
#include "ui/TextStyle.h"
#include "ui/log/ChangeLogEntryRow.h"
#include "ui/widgets/SegmentedControl.h"
#include "ui/widgets/SymbolLabel.h"

#include <QEvent>
#include <QFileDialog>
#include <QFrame>
#include <QHBoxLayout>
#include <QPointer>
#include <QPushButton>
#include <QSaveFile>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>
#include <QStandardPaths>
#include <QVBoxLayout>

namespace {

constexpr int filterWidth = 250;
constexpr int rowBatch = 50;

QPushButton *toolbarButton(const QString &symbol)
{
    auto *button = new QPushButton;
    button->setProperty("symbol", symbol);
    button->setAutoDefault(false);
    button->setIconSize(QSize(14, 14));
    return button;
}

void tintIcon(QPushButton *button, const QColor &colour)
{
    const int size = button->iconSize().height();
    const qreal ratio = button->devicePixelRatioF();
    QPixmap pixmap =
        SymbolTable::tinted(button->property("symbol").toString(), colour, qRound(size * ratio));
    pixmap.setDevicePixelRatio(ratio);
    button->setIcon(QIcon(pixmap));
}

QString exportFolder()
{
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QDir(documents).exists() ? documents : QDir::homePath();
}

} // namespace

LogView::LogView(LanguageManager &language, LogManager &log, Clock &clock, TimerFactory &timers,
                 ModalPrompter &prompter, QWidget *parent)
    : QWidget(parent), m_language(language), m_log(log), m_clock(clock), m_timers(timers),
      m_prompter(prompter)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(makeToolbar());
    auto *divider = new QFrame;
    divider->setFrameShape(QFrame::HLine);
    divider->setFrameShadow(QFrame::Sunken);
    layout->addWidget(divider);
    m_content = new QStackedWidget;
    m_empty = makeEmptyState();
    m_list = makeList();
    m_content->addWidget(m_empty);
    m_content->addWidget(m_list);
    layout->addWidget(m_content, 1);

    connect(&m_language, &LanguageManager::currentLanguageChanged, this, &LogView::retranslate);
    connect(&m_language, &LanguageManager::bundleChanged, this, &LogView::retranslate);
    retranslate();
    applyColours();
    showLogs();
}

QWidget *LogView::makeToolbar()
{
    auto *toolbar = new QWidget;
    toolbar->setBackgroundRole(QPalette::Base);
    toolbar->setAutoFillBackground(true);
    auto *layout = new QHBoxLayout(toolbar);
    m_filter = new SegmentedControl(3);
    m_filter->setPreferredWidth(filterWidth);
    m_filter->setCurrentIndex(int(LogFilterType::all));
    connect(m_filter, &SegmentedControl::currentIndexChanged, this, &LogView::showLogs);
    layout->addWidget(m_filter);
    layout->addStretch(1);
    m_refresh = toolbarButton(QStringLiteral("arrow.clockwise"));
    connect(m_refresh, &QPushButton::clicked, this, &LogView::refreshLogs);
    m_export = toolbarButton(QStringLiteral("square.and.arrow.up"));
    connect(m_export, &QPushButton::clicked, this, &LogView::exportLogs);
    m_clear = toolbarButton(QStringLiteral("trash"));
    connect(m_clear, &QPushButton::clicked, this, &LogView::clearLogs);
    for (QPushButton *button : {m_refresh, m_export, m_clear})
        layout->addWidget(button);
    return toolbar;
}

QWidget *LogView::makeEmptyState()
{
    auto *empty = new QWidget;
    auto *layout = new QVBoxLayout(empty);
    layout->setSpacing(16);
    layout->addStretch(1);
    auto *symbol = new SymbolLabel(QStringLiteral("doc.text.magnifyingglass"), 48);
    symbol->setObjectName(QStringLiteral("emptySymbol"));
    layout->addWidget(symbol, 0, Qt::AlignHCenter);
    auto *title = new LocalizedText(QStringLiteral("log_empty_title"), m_language);
    TextStyle::apply(title, TextStyle::headline);
    title->setAlignment(Qt::AlignHCenter);
    layout->addWidget(title);
    auto *description = new LocalizedText(QStringLiteral("log_empty_description"), m_language);
    TextStyle::apply(description, TextStyle::caption);
    TextStyle::makeSecondary(description);
    description->setAlignment(Qt::AlignHCenter);
    description->setWordWrap(true);
    description->setContentsMargins(40, 0, 40, 0);
    layout->addWidget(description);
    layout->addStretch(1);
    return empty;
}

QScrollArea *LogView::makeList()
{
    auto *rows = new QWidget;
    m_rowsLayout = new QVBoxLayout(rows);
    m_rowsLayout->setSpacing(8);
    m_rowsLayout->addStretch(1);
    auto *scroll = new QScrollArea;
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setWidget(rows);
    // Rows are built in batches, as the list nears its end.
    QScrollBar *bar = scroll->verticalScrollBar();
    connect(bar, &QScrollBar::valueChanged, this, [this, bar](int value) {
        if (value >= bar->maximum() - bar->pageStep())
            buildMoreRows();
    });
    return scroll;
}

void LogView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    refreshLogs();
}

void LogView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        applyColours();
}

void LogView::refreshLogs()
{
    m_logs = m_log.getAllLogs();
    showLogs();
}

LogView::LogFilterType LogView::filterType() const
{
    return LogFilterType(m_filter->currentIndex());
}

void LogView::setFilterType(LogFilterType filter)
{
    m_filter->setCurrentIndex(int(filter));
}

QList<ChangeLogEntry> LogView::filteredLogs() const
{
    const LogFilterType filter = filterType();
    if (filter == LogFilterType::all)
        return m_logs;
    const ChangeLogType wanted =
        filter == LogFilterType::browser ? ChangeLogType::browser : ChangeLogType::email;
    QList<ChangeLogEntry> kept;
    for (const ChangeLogEntry &entry : m_logs) {
        if (entry.type == wanted)
            kept.append(entry);
    }
    return kept;
}

void LogView::showLogs()
{
    qDeleteAll(m_rows);
    m_rows.clear();
    m_shown = filteredLogs();
    if (m_shown.isEmpty()) {
        m_content->setCurrentWidget(m_empty);
        return;
    }
    m_content->setCurrentWidget(m_list);
    buildMoreRows();
    m_list->verticalScrollBar()->setValue(0);
}

void LogView::buildMoreRows()
{
    const qsizetype end = std::min(m_shown.size(), m_rows.size() + rowBatch);
    for (qsizetype index = m_rows.size(); index < end; ++index) {
        auto *row = new ChangeLogEntryRow(m_shown.at(index), m_clock, m_timers);
        m_rowsLayout->insertWidget(m_rowsLayout->count() - 1, row);
        m_rows.append(row);
    }
}

QList<ChangeLogEntryRow *> LogView::rows() const
{
    return m_rows;
}

QWidget *LogView::emptyState() const
{
    return m_content->currentWidget() == m_empty ? m_empty : nullptr;
}

QString LogView::proposedFileName() const
{
    const double now = double(m_clock.now().toMSecsSinceEpoch());
    QString date = NumericDate::format(now, QLocale::system());
    date.replace(u'/', u'-');
    return m_language.localizedString(QStringLiteral("log_export_filename")) + u'-' + date
           + u".txt";
}

QByteArray LogView::exportText(const QList<ChangeLogEntry> &records)
{
    QStringList descriptions;
    for (const ChangeLogEntry &entry : records)
        descriptions.append(entry.description());
    return descriptions.join(QStringLiteral("\n\n")).toUtf8();
}

void LogView::exportLogs()
{
    auto *dialog = new QFileDialog(this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setMimeTypeFilters({QStringLiteral("text/plain")});
    dialog->setDefaultSuffix(QStringLiteral("txt"));
    dialog->setDirectory(exportFolder());
    dialog->selectFile(proposedFileName());
    connect(dialog, &QFileDialog::fileSelected, this, &LogView::writeExport);
    dialog->open();
}

QFileDialog *LogView::exportDialog() const
{
    for (QFileDialog *dialog : findChildren<QFileDialog *>()) {
        if (dialog->isVisible())
            return dialog;
    }
    return nullptr;
}

// The list as the filter shows it when the dialog is accepted. A failure goes unreported.
void LogView::writeExport(const QString &path) const
{
    if (path.isEmpty())
        return;
    QSaveFile file(path);
    const QByteArray text = exportText(filteredLogs());
    if (file.open(QIODevice::WriteOnly) && file.write(text) == text.size())
        file.commit();
}

void LogView::clearLogs()
{
    ModalPrompt prompt;
    prompt.title = m_language.localizedString(QStringLiteral("log_clear_confirm_title"));
    prompt.text = m_language.localizedString(QStringLiteral("log_clear_confirm_message"));
    prompt.buttons = {m_language.localizedString(QStringLiteral("log_clear_confirm_button")),
                      m_language.localizedString(QStringLiteral("log_clear_cancel_button"))};
    prompt.style = ModalPrompt::Style::warning;
    m_prompter.present(prompt, [log = &m_log, page = QPointer<LogView>(this)](int button) {
        if (button != 0)
            return;
        log->clearAllLogs();
        if (page)
            page->refreshLogs();
    });
}

void LogView::retranslate()
{
    const char *filterKeys[] = {"log_filter_all", "log_filter_browser", "log_filter_email"};
    for (int index = 0; index < 3; ++index)
        m_filter->setSegmentText(index,
                                 m_language.localizedString(QLatin1String(filterKeys[index])));
    m_filter->setAccessibleName(m_language.localizedString(QStringLiteral("log_filter_label")));
    m_refresh->setText(m_language.localizedString(QStringLiteral("log_refresh")));
    m_export->setText(m_language.localizedString(QStringLiteral("log_export")));
    m_clear->setText(m_language.localizedString(QStringLiteral("log_clear")));
}

void LogView::applyColours()
{
    const QColor text = palette().color(QPalette::ButtonText);
    tintIcon(m_refresh, text);
    tintIcon(m_export, text);
    tintIcon(m_clear, StateColour::red);
    QPalette red = m_clear->palette();
    red.setColor(QPalette::ButtonText, StateColour::red);
    m_clear->setPalette(red);
    if (auto *symbol = m_empty->findChild<SymbolLabel *>(QStringLiteral("emptySymbol")))
        symbol->setColour(palette().color(QPalette::PlaceholderText));
}
