#include "ui/feedback/FeedbackView.h"

#include "core/i18n/LanguageManager.h"
#include "core/telemetry/Telemetry.h"
#include "platform/ModalPrompter.h"
#include "ui/Colours.h"
#include "ui/LocalizedText.h"
#include "ui/feedback/FeedbackTagButton.h"
#include "ui/feedback/FeedbackTagGrid.h"
#include "ui/feedback/FeedbackTextBox.h"
#include "ui/feedback/MoodButton.h"
#include "ui/widgets/BusySpinner.h"
#include "ui/widgets/PageScrollArea.h"
#include "ui/widgets/ProminentButton.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QShowEvent>
#include <QTextCursor>
#include <QVBoxLayout>

namespace {

constexpr int spinnerSize = 14;

QFont scaledFont(QFont font, double factor, QFont::Weight weight)
{
    font.setPointSizeF(font.pointSizeF() * factor);
    font.setWeight(weight);
    return font;
}

QLabel *centred(QLabel *label)
{
    label->setAlignment(Qt::AlignHCenter);
    label->setWordWrap(true);
    return label;
}

QIcon spinnerIcon(double angle, const QColor &colour, qreal ratio)
{
    QPixmap pixmap(QSize(spinnerSize, spinnerSize) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    BusySpinner::paintArc(painter, QRectF(0, 0, spinnerSize, spinnerSize), angle, colour);
    return QIcon(pixmap);
}

} // namespace

FeedbackView::FeedbackView(FeedbackForm::Options options, LanguageManager &language,
                           ModalPrompter &prompter, Telemetry &telemetry, QWidget *parent)
    : QWidget(parent), m_language(language), m_prompter(prompter), m_telemetry(telemetry),
      m_form([&] {
          options.language = &language;
          return options;
      }())
{
    auto *column = new QWidget;
    column->setMaximumWidth(contentMaxWidth);
    auto *columnLayout = new QVBoxLayout(column);
    columnLayout->setContentsMargins(0, 0, 0, 0);
    columnLayout->setSpacing(22);
    columnLayout->addWidget(makeHeading());
    columnLayout->addWidget(makeMoodRow());
    columnLayout->addWidget(makeTextBlock());
    columnLayout->addWidget(makeCategoryBlock());
    columnLayout->addWidget(makeSendRow());
    columnLayout->addStretch();

    auto *content = new QWidget;
    auto *contentLayout = new QHBoxLayout(content);
    contentLayout->setContentsMargins(24, 24, 24, 24);
    contentLayout->addStretch();
    contentLayout->addWidget(column, 1);
    contentLayout->addStretch();

    PageScrollArea::fill(this, content);

    m_spinner.setStartValue(0.0);
    m_spinner.setEndValue(360.0);
    m_spinner.setDuration(900);
    m_spinner.setLoopCount(-1);
    connect(&m_spinner, &QVariantAnimation::valueChanged, this, [this](const QVariant &angle) {
        m_sendButton->setIcon(spinnerIcon(
            angle.toDouble(), palette().color(QPalette::PlaceholderText), devicePixelRatioF()));
    });

    connect(&m_form, &FeedbackForm::changed, this, &FeedbackView::showForm);
    connect(&m_language, &LanguageManager::currentLanguageChanged, this,
            &FeedbackView::retranslate);
    connect(&m_language, &LanguageManager::bundleChanged, this, &FeedbackView::retranslate);
    retranslate();
    applyColours();
    showForm();
}

QWidget *FeedbackView::makeHeading()
{
    auto *block = new QWidget;
    auto *layout = new QVBoxLayout(block);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    auto *title = centred(new LocalizedText(QStringLiteral("feedback_title"), m_language));
    title->setFont(scaledFont(font(), 1.6, QFont::Bold));
    layout->addWidget(title);
    for (const char *key : {"feedback_question", "feedback_description"}) {
        auto *label = centred(new LocalizedText(QString::fromLatin1(key), m_language));
        m_secondaryLabels.append(label);
        layout->addWidget(label);
    }
    return block;
}

QWidget *FeedbackView::makeMoodRow()
{
    auto *row = new QWidget;
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    layout->addStretch();
    const QStringList &emojis = FeedbackForm::moodEmojis();
    for (int index = 0; index < emojis.size(); ++index) {
        auto *button = new MoodButton(emojis.at(index));
        connect(button, &QAbstractButton::clicked, this,
                [this, index] { m_form.setSelectedMoodIndex(index); });
        connect(button, &MoodButton::hoverChanged, this,
                [this, index](bool hovered) { setHoveredMood(index, hovered); });
        m_moodButtons.append(button);
        layout->addWidget(button);
    }
    layout->addStretch();
    return row;
}

QWidget *FeedbackView::makeTextBlock()
{
    auto *block = new QWidget;
    auto *layout = new QVBoxLayout(block);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    m_textBox = new FeedbackTextBox;
    connect(textEdit(), &QPlainTextEdit::textChanged, this, &FeedbackView::textEdited);
    layout->addWidget(m_textBox);
    m_counter = new QLabel;
    m_counter->setAlignment(Qt::AlignRight);
    m_counter->setFont(scaledFont(font(), 0.85, QFont::Normal));
    layout->addWidget(m_counter);
    return block;
}

QWidget *FeedbackView::makeCategoryBlock()
{
    auto *block = new QWidget;
    auto *layout = new QVBoxLayout(block);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    auto *label = new LocalizedText(QStringLiteral("feedback_tag_label"), m_language);
    label->setFont(scaledFont(font(), 1.0, QFont::DemiBold));
    layout->addWidget(label);
    auto *grid = new FeedbackTagGrid;
    for (const FeedbackTag tag : FeedbackTag::allCases()) {
        auto *button = new FeedbackTagButton;
        connect(button, &QAbstractButton::clicked, this,
                [this, tag] { m_form.setSelectedTag(tag); });
        m_tagButtons.append(button);
        grid->addButton(button);
    }
    layout->addWidget(grid);
    return block;
}

QWidget *FeedbackView::makeSendRow()
{
    auto *row = new QWidget;
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addStretch();
    m_sendButton = new ProminentButton;
    m_sendButton->setDefault(true);
    m_sendButton->setMinimumWidth(120);
    m_sendButton->setIconSize(QSize(spinnerSize, spinnerSize));
    connect(m_sendButton, &QPushButton::clicked, &m_form, &FeedbackForm::sendFeedback);
    layout->addWidget(m_sendButton);
    return row;
}

QPlainTextEdit *FeedbackView::textEdit() const
{
    return m_textBox->edit();
}

void FeedbackView::setHoveredMood(int index, bool hovered)
{
    if (hovered)
        m_hoveredMoodIndex = index;
    else if (m_hoveredMoodIndex == index)
        m_hoveredMoodIndex.reset();
    for (int i = 0; i < m_moodButtons.size(); ++i)
        m_moodButtons.at(i)->setHovered(m_hoveredMoodIndex == i);
}

// The form keeps at most the allowed number of characters; whatever it cut is cut from the
// end of the box too, as part of the same edit, so the cursor stays and an undo takes back
// the edit and its cut together.
void FeedbackView::textEdited()
{
    QPlainTextEdit *edit = textEdit();
    m_editing = true;
    m_form.setFeedbackText(edit->toPlainText());
    m_editing = false;
    const qsizetype kept = m_form.feedbackText().size();
    if (edit->document()->characterCount() - 1 > kept) {
        QTextCursor cut(edit->document());
        cut.joinPreviousEditBlock();
        cut.setPosition(int(kept));
        cut.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
        cut.removeSelectedText();
        cut.endEditBlock();
    }
}

void FeedbackView::showForm()
{
    for (int i = 0; i < m_moodButtons.size(); ++i)
        m_moodButtons.at(i)->setSelected(m_form.selectedMoodIndex() == i);
    for (int i = 0; i < m_tagButtons.size(); ++i)
        m_tagButtons.at(i)->setSelected(int(m_form.selectedTag()) == i);
    if (!m_editing && textEdit()->toPlainText() != m_form.feedbackText())
        textEdit()->setPlainText(m_form.feedbackText());
    m_counter->setText(
        QStringLiteral("%1/%2").arg(m_form.characterCount()).arg(FeedbackForm::maxCharacters));
    applyColours();
    showSendButton();
    presentPendingAlert();
}

void FeedbackView::showSendButton()
{
    m_sendButton->setEnabled(m_form.canSend());
    m_sendButton->setText(text(m_form.isSending() ? "feedback_sending" : "feedback_send"));
    if (m_form.isSending() && m_spinner.state() != QAbstractAnimation::Running) {
        m_sendButton->setIcon(
            spinnerIcon(0.0, palette().color(QPalette::PlaceholderText), devicePixelRatioF()));
        m_spinner.start();
    } else if (!m_form.isSending() && m_spinner.state() == QAbstractAnimation::Running) {
        m_spinner.stop();
        m_sendButton->setIcon(QIcon());
    }
}

void FeedbackView::presentPendingAlert()
{
    if (m_alertUp)
        return;
    const bool success = m_form.showSuccessAlert();
    if (!success && !m_form.showErrorAlert())
        return;
    ModalPrompt alert;
    alert.buttons = {text("general_ok")};
    if (success) {
        alert.title = text("feedback_sent_title");
        alert.text = text("feedback_sent_message");
    } else {
        alert.style = ModalPrompt::Style::warning;
        alert.title = text("feedback_error_title");
        alert.text = m_form.errorMessage().isEmpty() ? text("feedback_error_message")
                                                     : m_form.errorMessage();
    }
    m_alertUp = true;
    m_prompter.present(alert, [page = QPointer<FeedbackView>(this), success](int) {
        if (!page)
            return;
        page->m_alertUp = false;
        if (success)
            page->m_form.setShowSuccessAlert(false);
        else
            page->m_form.setShowErrorAlert(false);
        page->presentPendingAlert();
    });
}

void FeedbackView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (!event->spontaneous())
        m_telemetry.trackScreenView(QLatin1String(screenName));
}

void FeedbackView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        applyColours();
}

void FeedbackView::retranslate()
{
    const QList<FeedbackTag> tags = FeedbackTag::allCases();
    for (int i = 0; i < m_tagButtons.size(); ++i)
        m_tagButtons.at(i)->setText(text(tags.at(i).localizationKey().toLatin1().constData()));
    textEdit()->setPlaceholderText(text("feedback_text_placeholder"));
    showSendButton();
}

// Secondary texts take the placeholder colour; the counter turns orange at the limit.
void FeedbackView::applyColours()
{
    const QPalette &colours = palette();
    const QColor secondary = colours.color(QPalette::PlaceholderText);
    for (QLabel *label : std::as_const(m_secondaryLabels)) {
        QPalette own = label->palette();
        own.setColor(QPalette::WindowText, secondary);
        label->setPalette(own);
    }
    QColor counterColour = secondary;
    if (counterAtLimit())
        counterColour = StateColour::orange;
    else
        counterColour.setAlphaF(secondary.alphaF() * 0.7f);
    QPalette counterPalette = m_counter->palette();
    counterPalette.setColor(QPalette::WindowText, counterColour);
    m_counter->setPalette(counterPalette);
}

QString FeedbackView::text(const char *key) const
{
    return m_language.localizedString(QString::fromLatin1(key));
}
