#include "ui/about/AboutView.h"

#include "core/i18n/LanguageManager.h"
#include "core/i18n/UserCalendar.h"
#include "core/support/AppInfo.h"
#include "core/support/Clock.h"
#include "ui/LocalizedText.h"
#include "ui/ProductHeader.h"
#include "ui/TextStyle.h"
#include "ui/widgets/RowButton.h"

#include <QDesktopServices>
#include <QFrame>
#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr int sideMargin = 40;
constexpr int headerSymbolSize = 48;

QFrame *divider()
{
    auto *line = new QFrame;
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    return line;
}

QLabel *centred(QLabel *label)
{
    label->setAlignment(Qt::AlignHCenter);
    label->setWordWrap(true);
    return label;
}

// A block with `sideMargin` at its sides.
QWidget *inset(QWidget *content)
{
    auto *block = new QWidget;
    auto *layout = new QVBoxLayout(block);
    layout->setContentsMargins(sideMargin, 0, sideMargin, 0);
    layout->addWidget(content);
    return block;
}

} // namespace

AboutView::Links AboutView::configuredLinks()
{
    return {AppInfo::websiteURL(), AppInfo::contactURL(), AppInfo::donationURL()};
}

QByteArray AboutView::systemCalendarLocale()
{
    return UserCalendar::systemLocale();
}

AboutView::AboutView(LanguageManager &language, const Clock &clock,
                     std::function<void()> openFeedbackSettingsTab, QWidget *parent,
                     const Links &links, const QByteArray &calendarLocale)
    : QWidget(parent), m_language(language), m_clock(clock),
      m_openFeedbackSettingsTab(std::move(openFeedbackSettingsTab)), m_links(links),
      m_calendarLocale(calendarLocale)
{
    setFixedSize(fixedSize);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 16, 0, 30);
    layout->setSpacing(10);
    layout->addWidget(new ProductHeader(language, headerSymbolSize, TextStyle::title));
    layout->addWidget(divider());
    auto *description = centred(new LocalizedText(QStringLiteral("about_description"), language));
    TextStyle::makeSecondary(description);
    layout->addWidget(inset(description));
    layout->addWidget(divider());
    layout->addWidget(makeLinks());
    layout->addStretch(1);
    layout->addWidget(makeFooter());

    connect(&m_language, &LanguageManager::currentLanguageChanged, this, &AboutView::retranslate);
    connect(&m_language, &LanguageManager::bundleChanged, this, &AboutView::retranslate);
    retranslate();
}

QWidget *AboutView::makeLinks()
{
    struct Entry {
        Row row;
        const char *symbol;
        const char *key;
    };
    const Entry entries[] = {
        {Row::website, "globe", "about_website"},
        {Row::contact, "envelope", "about_contact"},
        {Row::support, "cup.and.saucer.fill", "about_support"},
        {Row::feedback, "bubble.left.and.bubble.right", "feedback_title"},
    };
    auto *block = new QWidget;
    auto *layout = new QVBoxLayout(block);
    layout->setContentsMargins(sideMargin, 0, sideMargin, 0);
    layout->setSpacing(12);
    for (const Entry &entry : entries) {
        auto *row = new RowButton(QString::fromLatin1(entry.symbol));
        row->setTrailingSymbol(QStringLiteral("arrow.up.right"));
        row->setProperty("key", QString::fromLatin1(entry.key));
        connect(row, &QAbstractButton::clicked, this, [this, which = entry.row] {
            switch (which) {
            case Row::website:
                QDesktopServices::openUrl(m_links.website);
                break;
            case Row::contact:
                QDesktopServices::openUrl(m_links.contact);
                break;
            case Row::support:
                QDesktopServices::openUrl(m_links.support);
                break;
            case Row::feedback:
                if (m_openFeedbackSettingsTab)
                    m_openFeedbackSettingsTab();
                break;
            }
        });
        m_rows.append(row);
        layout->addWidget(row);
    }
    return block;
}

QWidget *AboutView::makeFooter()
{
    auto *footer = new QWidget;
    auto *layout = new QVBoxLayout(footer);
    layout->setContentsMargins(sideMargin, 0, sideMargin, 0);
    layout->setSpacing(4);
    m_copyright = centred(new QLabel);
    TextStyle::apply(m_copyright, TextStyle::caption);
    layout->addWidget(m_copyright);
    auto *rights = centred(new LocalizedText(QStringLiteral("about_rights"), m_language));
    TextStyle::apply(rights, TextStyle::caption2);
    layout->addWidget(rights);
    return footer;
}

RowButton *AboutView::row(Row row) const
{
    return m_rows.value(int(row));
}

// The year is read from the clock each time the texts are made, so it follows the clock.
void AboutView::retranslate()
{
    for (RowButton *row : std::as_const(m_rows))
        row->setRowText(m_language.localizedString(row->property("key").toString()));
    const qint64 year = UserCalendar::year(m_clock.now(), m_calendarLocale);
    m_copyright->setText(
        m_language.localizedFormat(QStringLiteral("about_copyright %lld"), {year}));
}
