#include "ui/log/ChangeLogEntryRow.h"

#include "core/changelog/MediumDateTime.h"
#include "core/changelog/ReferenceDate.h"
#include "ui/Colours.h"
#include "ui/TextStyle.h"
#include "ui/widgets/RelativeTimeLabel.h"
#include "ui/widgets/SymbolLabel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

namespace {

const QColor browserBlue(0x00, 0x7A, 0xFF);
constexpr int symbolBox = 20;
constexpr int symbolSize = 16;

QLabel *secondaryCaption(QLabel *label)
{
    TextStyle::apply(label, TextStyle::caption);
    TextStyle::makeSecondary(label);
    return label;
}

} // namespace

ChangeLogEntryRow::ChangeLogEntryRow(const ChangeLogEntry &entry, Clock &clock,
                                     TimerFactory &timers, QWidget *parent)
    : QWidget(parent), m_entry(entry),
      m_symbol(new SymbolLabel(entry.type == ChangeLogType::browser ? QStringLiteral("globe")
                                                                    : QStringLiteral("envelope"),
                               symbolSize)),
      m_message(new QLabel(entry.message)), m_relative(new RelativeTimeLabel(clock, timers)),
      m_date(new QLabel(MediumDateTime::format(
          ReferenceDate::unixMSecsFrom(entry.secondsSinceReferenceDate()), QLocale::system())))
{
    m_symbol->setColour(entry.type == ChangeLogType::browser ? browserBlue : StateColour::green);
    m_message->setTextFormat(Qt::PlainText);
    m_message->setWordWrap(true);
    m_relative->setDateTime(entry.timestamp);
    secondaryCaption(m_relative);
    secondaryCaption(m_date);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 12, 12, 12);
    layout->setSpacing(12);
    m_symbol->setFixedWidth(symbolBox);
    m_symbol->setAlignment(Qt::AlignCenter);
    layout->addWidget(m_symbol, 0, Qt::AlignTop);

    auto *text = new QVBoxLayout;
    text->setSpacing(4);
    auto *firstLine = new QHBoxLayout;
    firstLine->addWidget(m_message, 1);
    firstLine->addWidget(m_relative, 0, Qt::AlignTop);
    text->addLayout(firstLine);
    text->addWidget(m_date);
    layout->addLayout(text, 1);
}

// The control background with rounded corners.
void ChangeLogEntryRow::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(QPalette::Base));
    painter.drawRoundedRect(QRectF(rect()), 8, 8);
}
