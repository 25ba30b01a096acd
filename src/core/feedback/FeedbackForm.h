#pragma once

#include "core/feedback/FeedbackPayload.h"
#include "core/feedback/FeedbackTag.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <chrono>

class Clock;
class LanguageManager;
class QNetworkAccessManager;

// The state of the feedback page and the one operation that sends it: a mood, a category and
// an optional text, posted as JSON with the feedback key. Every outcome ends in one of the two
// alert flags; a success resets the input, a failure keeps it. Lives on the main thread.
class FeedbackForm : public QObject {
    Q_OBJECT
public:
    struct Options {
        QUrl endpointURL;
        QString apiKey;
        std::chrono::milliseconds timeout{20000};
        // Each of these falls back to the process-wide one when left null.
        QNetworkAccessManager *network = nullptr;
        LanguageManager *language = nullptr;
        Clock *clock = nullptr;
    };

    static constexpr int maxCharacters = 1000;
    static constexpr int initialMoodIndex = 4;
    // Worst to best; the rating is the index plus one.
    static const QStringList &moodEmojis();

    // The endpoint and key of the build configuration. An endpoint that does not parse is fatal.
    static Options defaultOptions();

    explicit FeedbackForm(Options options = defaultOptions(), QObject *parent = nullptr);

    int selectedMoodIndex() const { return m_selectedMoodIndex; }
    void setSelectedMoodIndex(int index);
    FeedbackTag selectedTag() const { return m_selectedTag; }
    void setSelectedTag(FeedbackTag tag);
    QString feedbackText() const { return m_feedbackText; }
    // Keeps at most maxCharacters user-perceived characters of `text`.
    void setFeedbackText(const QString &text);
    QString trimmedFeedback() const { return m_feedbackText.trimmed(); }
    qsizetype characterCount() const { return m_characterCount; }

    bool isSending() const { return m_isSending; }
    bool canSend() const;

    bool showSuccessAlert() const { return m_showSuccessAlert; }
    void setShowSuccessAlert(bool show);
    bool showErrorAlert() const { return m_showErrorAlert; }
    void setShowErrorAlert(bool show);
    QString errorMessage() const { return m_errorMessage; }

    QUrl endpointURL() const { return m_options.endpointURL; }

    // Checks, then posts the form; returns at once. sendFinished() follows every request
    // that went out.
    void sendFeedback();

Q_SIGNALS:
    // Any field above changed.
    void changed();
    void sendFinished();

private:
    FeedbackPayload makePayload() const;
    // Ends the send on the form: resets the input after a success, shows the error otherwise.
    void showOutcome(bool arrived);
    void setSending(bool sending);
    void showError();
    QNetworkAccessManager &network();
    LanguageManager &language() const;

    Options m_options;
    int m_selectedMoodIndex = initialMoodIndex;
    QString m_feedbackText;
    qsizetype m_characterCount = 0;
    FeedbackTag m_selectedTag = FeedbackTag::coolApp;
    bool m_isSending = false;
    bool m_showSuccessAlert = false;
    bool m_showErrorAlert = false;
    QString m_errorMessage;
};
