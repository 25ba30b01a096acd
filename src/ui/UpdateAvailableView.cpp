#include "ui/UpdateAvailableView.h"

#include "core/i18n/LanguageManager.h"
#include "foundation/QtTimerFactory.h"
#include "ui/InlineMarkdown.h"
#include "ui/SymbolTable.h"

#include <QClipboard>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

const QColor symbolBlue(0x00, 0x7A, 0xFF);
const QColor tickGreen(0x34, 0xC7, 0x59);

TimerFactory &defaultTimers()
{
    static QtTimerFactory timers;
    return timers;
}

// Text styles relative to the body size: title 2, subheadline and caption.
QFont scaledFont(const QFont &base, double factor, bool bold = false)
{
    QFont font = base;
    font.setPointSizeF(base.pointSizeF() * factor);
    font.setBold(bold);
    return font;
}

QString rgba(const QColor &color)
{
    return QStringLiteral("rgba(%1, %2, %3, %4)")
        .arg(color.red())
        .arg(color.green())
        .arg(color.blue())
        .arg(color.alphaF());
}

QColor secondaryColor(const QWidget &widget)
{
    return widget.palette().color(QPalette::PlaceholderText);
}

QLabel *symbolLabel(const QString &symbol, const QColor &color, int size, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setPixmap(SymbolTable::tinted(symbol, color, size));
    label->setFixedSize(size, size);
    return label;
}

} // namespace

UpdateAvailableView::UpdateAvailableView(const QString &version, bool isBrewInstall,
                                         std::function<void()> onDismiss, QWidget *parent)
    : UpdateAvailableView(version, isBrewInstall, std::move(onDismiss), LanguageManager::shared(),
                          defaultTimers(), parent)
{
}

UpdateAvailableView::UpdateAvailableView(const QString &version, bool isBrewInstall,
                                         std::function<void()> onDismiss,
                                         LanguageManager &languageManager, TimerFactory &timers,
                                         QWidget *parent)
    : QDialog(parent), m_languageManager(languageManager), m_timers(timers), m_version(version),
      m_isBrewInstall(isBrewInstall), m_onDismiss(std::move(onDismiss))
{
    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(20);
    layout->setContentsMargins(24, 24, 24, 24);

    auto *symbol = symbolLabel(QStringLiteral("arrow.down.circle.fill"), symbolBlue, 48, this);
    layout->addWidget(symbol, 0, Qt::AlignHCenter);

    m_title = new QLabel(this);
    m_title->setFont(scaledFont(font(), 17.0 / 13.0, true));
    m_title->setAlignment(Qt::AlignCenter);
    layout->addWidget(m_title);

    m_message = new QLabel(this);
    m_message->setAlignment(Qt::AlignCenter);
    m_message->setWordWrap(true);
    m_message->setOpenExternalLinks(true);
    layout->addWidget(m_message);

    if (m_isBrewInstall) {
        m_brewSection = makeBrewSection();
        layout->addWidget(m_brewSection);
    }

    m_laterButton = new QPushButton(this);
    m_laterButton->setAutoDefault(false);
    connect(m_laterButton, &QPushButton::clicked, this, &UpdateAvailableView::dismissUpdate);
    layout->addWidget(m_laterButton, 0, Qt::AlignHCenter);

    connect(&m_languageManager, &LanguageManager::bundleChanged, this,
            &UpdateAvailableView::retranslate);
    retranslate();
}

QWidget *UpdateAvailableView::makeBrewSection()
{
    auto *section = new QWidget(this);
    section->setObjectName(QStringLiteral("brewSection"));
    section->setAttribute(Qt::WA_StyledBackground);
    QColor background = palette().color(QPalette::Base);
    background.setAlphaF(0.5);
    section->setStyleSheet(QStringLiteral("#brewSection { background: %1; border-radius: 8px; }")
                               .arg(rgba(background)));
    auto *layout = new QVBoxLayout(section);
    layout->setSpacing(10);
    layout->setContentsMargins(12, 12, 12, 12);

    const QColor secondary = secondaryColor(*this);
    const QString secondaryStyle = QStringLiteral("color: %1;").arg(rgba(secondary));

    auto *hintRow = new QHBoxLayout;
    hintRow->setSpacing(6);
    hintRow->addStretch();
    hintRow->addWidget(symbolLabel(QStringLiteral("mug.fill"), secondary, 14, section));
    m_brewHint = new QLabel(section);
    m_brewHint->setFont(scaledFont(font(), 11.0 / 13.0));
    m_brewHint->setStyleSheet(secondaryStyle);
    hintRow->addWidget(m_brewHint);
    hintRow->addStretch();
    layout->addLayout(hintRow);

    m_brewCommandHint = new QLabel(section);
    m_brewCommandHint->setFont(scaledFont(font(), 10.0 / 13.0));
    m_brewCommandHint->setStyleSheet(secondaryStyle);
    m_brewCommandHint->setAlignment(Qt::AlignCenter);
    m_brewCommandHint->setWordWrap(true);
    layout->addWidget(m_brewCommandHint);

    auto *commandRow = new QHBoxLayout;
    commandRow->setSpacing(8);
    commandRow->addStretch();
    auto *command = new QLabel(QString::fromLatin1(brewCommand), section);
    command->setObjectName(QStringLiteral("brewCommand"));
    command->setTextFormat(Qt::PlainText);
    command->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    command->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    command->setStyleSheet(
        QStringLiteral("#brewCommand { background: %1; border-radius: 6px; padding: 6px 12px; }")
            .arg(rgba(palette().color(QPalette::Base))));
    commandRow->addWidget(command);
    m_copyButton = new QToolButton(section);
    m_copyButton->setAutoRaise(true);
    m_copyButton->setIconSize(QSize(16, 16));
    m_copyButton->setCursor(Qt::PointingHandCursor);
    connect(m_copyButton, &QToolButton::clicked, this, &UpdateAvailableView::copyBrewCommand);
    commandRow->addWidget(m_copyButton);
    commandRow->addStretch();
    layout->addLayout(commandRow);

    showCopyState();
    return section;
}

void UpdateAvailableView::retranslate()
{
    const QString title =
        m_languageManager.localizedString(QStringLiteral("update_available_title"));
    setWindowTitle(title);
    m_title->setText(title);

    const QString message =
        m_languageManager.localizedFormat(QStringLiteral("update_available_message"), {m_version});
    if (const std::optional<QString> styled =
            InlineMarkdown::toRichText(message, m_message->font())) {
        m_message->setTextFormat(Qt::RichText);
        m_message->setText(*styled);
    } else {
        m_message->setTextFormat(Qt::PlainText);
        m_message->setText(message);
    }

    if (m_brewSection) {
        m_brewHint->setText(m_languageManager.localizedString(QStringLiteral("update_brew_hint")));
        m_brewCommandHint->setText(
            m_languageManager.localizedString(QStringLiteral("update_brew_command_hint")));
        m_copyButton->setToolTip(
            m_languageManager.localizedString(QStringLiteral("update_copy_command")));
    }
    m_laterButton->setText(
        m_languageManager.localizedString(QStringLiteral("update_later_button")));
    fitToWidth();
}

void UpdateAvailableView::fitToWidth()
{
    // Fixed width; the height follows the wrapped texts.
    setFixedWidth(sheetWidth);
    const int height = layout()->hasHeightForWidth() ? layout()->totalHeightForWidth(sheetWidth)
                                                     : layout()->totalSizeHint().height();
    setFixedHeight(height);
}

void UpdateAvailableView::copyBrewCommand()
{
    QClipboard *clipboard = QGuiApplication::clipboard();
    clipboard->clear();
    clipboard->setText(QString::fromLatin1(brewCommand));
    setCopied(true);
    // Each click clears the tick at its own time; none is restarted.
    m_timers.singleShot(copiedTickDuration, this, [this] { setCopied(false); });
}

void UpdateAvailableView::setCopied(bool copied)
{
    m_isCopied = copied;
    showCopyState();
}

void UpdateAvailableView::showCopyState()
{
    if (!m_copyButton)
        return;
    m_copyButton->setIcon(
        m_isCopied ? SymbolTable::tinted(QStringLiteral("checkmark.circle.fill"), tickGreen, 32)
                   : SymbolTable::tinted(QStringLiteral("doc.on.doc"), secondaryColor(*this), 32));
}

void UpdateAvailableView::dismissUpdate()
{
    if (m_onDismiss) {
        m_onDismiss();
        return;
    }
    QDialog::reject();
}

void UpdateAvailableView::reject()
{
    dismissUpdate();
}
