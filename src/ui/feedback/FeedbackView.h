#pragma once

#include "core/feedback/FeedbackForm.h"

#include <QList>
#include <QVariantAnimation>
#include <QWidget>

#include <optional>

class FeedbackTagButton;
class FeedbackTextBox;
class LanguageManager;
class ModalPrompter;
class MoodButton;
class QLabel;
class QPlainTextEdit;
class QPushButton;
class Telemetry;

// The feedback page: a heading, a row of moods, a text box with its counter, the categories
// and a send button, over a FeedbackForm that holds the state and sends it. Stands alone
// as a widget, and is a page of the settings window. Its success and error alerts go
// through the program's prompter.
class FeedbackView : public QWidget {
    Q_OBJECT
public:
    static constexpr int contentMaxWidth = 520;
    static constexpr const char *screenName = "settings_feedback";

    FeedbackView(FeedbackForm::Options options, LanguageManager &language, ModalPrompter &prompter,
                 Telemetry &telemetry, QWidget *parent = nullptr);

    FeedbackForm &form() { return m_form; }
    bool canSend() const { return m_form.canSend(); }
    std::optional<int> hoveredMoodIndex() const { return m_hoveredMoodIndex; }

    MoodButton *moodButton(int index) const { return m_moodButtons.value(index); }
    QPlainTextEdit *textEdit() const;
    QLabel *counter() const { return m_counter; }
    bool counterAtLimit() const { return m_form.characterCount() >= FeedbackForm::maxCharacters; }
    FeedbackTagButton *tagButton(FeedbackTag tag) const { return m_tagButtons.value(int(tag)); }
    QPushButton *sendButton() const { return m_sendButton; }

protected:
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    QWidget *makeHeading();
    QWidget *makeMoodRow();
    QWidget *makeTextBlock();
    QWidget *makeCategoryBlock();
    QWidget *makeSendRow();
    void setHoveredMood(int index, bool hovered);
    void textEdited();
    void showForm();
    void showSendButton();
    void presentPendingAlert();
    void retranslate();
    void applyColours();
    QString text(const char *key) const;

    LanguageManager &m_language;
    ModalPrompter &m_prompter;
    Telemetry &m_telemetry;
    FeedbackForm m_form;
    std::optional<int> m_hoveredMoodIndex;
    bool m_alertUp = false;
    bool m_editing = false;

    QList<QLabel *> m_secondaryLabels;
    QList<MoodButton *> m_moodButtons;
    FeedbackTextBox *m_textBox = nullptr;
    QLabel *m_counter = nullptr;
    QList<FeedbackTagButton *> m_tagButtons;
    QPushButton *m_sendButton = nullptr;
    QVariantAnimation m_spinner;
};
