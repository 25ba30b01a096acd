#include "core/feedback/FeedbackForm.h"

#include "core/feedback/UserPerceivedText.h"
#include "core/i18n/LanguageManager.h"
#include "core/support/SystemClock.h"
#include "core/telemetry/AptabaseManager.h"
#include "foundation/ReadOnceUpload.h"
#include "foundation/ReplyOutcome.h"

#include "BuildConfig.h"

#include <QCoreApplication>
#include <QLoggingCategory>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QPointer>
#include <QStringDecoder>

Q_LOGGING_CATEGORY(lcFeedback, "Feedback")

namespace {

QString orUnknown(const char *text)
{
    const QString value = QString::fromUtf8(text);
    return value.isEmpty() ? QStringLiteral("unknown") : value;
}

// The generic description the platform gives an error of our own domain.
QString domainErrorDescription(int code)
{
    return QStringLiteral("The operation couldn\u2019t be completed. (Feedback error %1.)")
        .arg(code);
}

QString bodyText(const QByteArray &body)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder(body);
    return decoder.hasError() ? QStringLiteral("<empty>") : text;
}

// Judges the answer to a send, writes its log lines and sends its telemetry event. True when
// the feedback arrived.
bool judged(QNetworkReply &reply, const FeedbackPayload &payload)
{
    const ReplyOutcome outcome = ReplyOutcome::of(reply);
    QString reason;
    if (outcome.failure) {
        reason = *outcome.failure;
    } else if (!outcome.status) {
        qCCritical(lcFeedback, "Feedback send failed: invalid HTTP response");
        reason = domainErrorDescription(-1);
    } else if (const int code = *outcome.status; code >= 200 && code <= 299) {
        qCInfo(lcFeedback, "Feedback sent successfully: status=%d", code);
        AptabaseManager::trackEvent(QStringLiteral("feedback_sent"),
                                    {{QStringLiteral("tag"), payload.tag},
                                     {QStringLiteral("mood"), payload.mood},
                                     {QStringLiteral("rating"), payload.rating}});
        return true;
    } else {
        qCCritical(lcFeedback, "Feedback send failed: status=%d, body=%s", code,
                   qUtf8Printable(bodyText(reply.readAll())));
        reason = domainErrorDescription(code);
    }
    qCCritical(lcFeedback, "Feedback send exception: %s", qUtf8Printable(reason));
    AptabaseManager::trackEvent(QStringLiteral("feedback_send_failed"),
                                {{QStringLiteral("reason"), reason}});
    return false;
}

} // namespace

const QStringList &FeedbackForm::moodEmojis()
{
    static const QStringList emojis = {
        QStringLiteral("\U0001F621"), QStringLiteral("\U0001F615"), QStringLiteral("\U0001F610"),
        QStringLiteral("\U0001F60A"), QStringLiteral("\U0001F929"),
    };
    return emojis;
}

FeedbackForm::Options FeedbackForm::defaultOptions()
{
    Options options;
    options.endpointURL =
        QUrl(QString::fromUtf8(BuildConfig::webHost) + u"/api/feedback", QUrl::StrictMode);
    if (!options.endpointURL.isValid() || options.endpointURL.isRelative())
        qFatal("The feedback endpoint does not parse: %s", BuildConfig::webHost);
    options.apiKey = QString::fromUtf8(BuildConfig::feedbackApiKey);
    return options;
}

FeedbackForm::FeedbackForm(Options options, QObject *parent)
    : QObject(parent), m_options(std::move(options))
{
}

void FeedbackForm::setSelectedMoodIndex(int index)
{
    if (index < 0 || index >= moodEmojis().size() || index == m_selectedMoodIndex)
        return;
    m_selectedMoodIndex = index;
    Q_EMIT changed();
}

void FeedbackForm::setSelectedTag(FeedbackTag tag)
{
    if (tag == m_selectedTag)
        return;
    m_selectedTag = tag;
    Q_EMIT changed();
}

void FeedbackForm::setFeedbackText(const QString &text)
{
    QString limited = text;
    qsizetype count = UserPerceivedText::characterCount(text);
    if (count > maxCharacters) {
        limited = UserPerceivedText::prefix(text, maxCharacters);
        count = maxCharacters;
    }
    if (limited == m_feedbackText)
        return;
    m_feedbackText = limited;
    m_characterCount = count;
    Q_EMIT changed();
}

bool FeedbackForm::canSend() const
{
    if (m_isSending)
        return false;
    return m_selectedTag == FeedbackTag::coolApp || !trimmedFeedback().isEmpty();
}

void FeedbackForm::setShowSuccessAlert(bool show)
{
    if (show == m_showSuccessAlert)
        return;
    m_showSuccessAlert = show;
    Q_EMIT changed();
}

void FeedbackForm::setShowErrorAlert(bool show)
{
    if (show == m_showErrorAlert)
        return;
    m_showErrorAlert = show;
    Q_EMIT changed();
}

void FeedbackForm::sendFeedback()
{
    if (m_selectedTag != FeedbackTag::coolApp && trimmedFeedback().isEmpty())
        return;
    if (m_options.apiKey.isEmpty()) {
        qCCritical(lcFeedback, "Feedback send aborted: missing FeedbackAPIKey in Info.plist");
        showError();
        return;
    }
    setSending(true);
    const FeedbackPayload payload = makePayload();
    qCInfo(lcFeedback, "Sending feedback to %s",
           qUtf8Printable(m_options.endpointURL.toString(QUrl::FullyEncoded)));

    QNetworkRequest request(m_options.endpointURL);
    request.setHeader(QNetworkRequest::ContentTypeHeader, QByteArrayLiteral("application/json"));
    request.setRawHeader(QByteArrayLiteral("X-API-Key"), m_options.apiKey.toUtf8());
    request.setTransferTimeout(static_cast<int>(m_options.timeout.count()));
    // The send outlives the page that started it (leaving the page or changing the language
    // rebuilds it): it is judged, logged and counted whatever happens to the form, and shown
    // only while the form exists.
    QNetworkReply *reply = ReadOnceUpload::post(network(), request, payload.encoded());
    connect(reply, &QNetworkReply::finished, reply,
            [form = QPointer<FeedbackForm>(this), reply, payload] {
                reply->deleteLater();
                const bool arrived = judged(*reply, payload);
                if (!form)
                    return;
                form->showOutcome(arrived);
                Q_EMIT form->sendFinished();
            });
}

FeedbackPayload FeedbackForm::makePayload() const
{
    static SystemClock systemClock;
    const Clock &clock = m_options.clock ? *m_options.clock : systemClock;
    FeedbackPayload payload;
    payload.mood = moodEmojis().at(m_selectedMoodIndex);
    payload.rating = m_selectedMoodIndex + 1;
    payload.tag = m_selectedTag.rawValue();
    payload.message = trimmedFeedback();
    payload.language = language().currentLanguage().rawValue();
    payload.appVersion = orUnknown(BuildConfig::appVersion);
    payload.appBuild = orUnknown(BuildConfig::buildNumber);
    payload.osVersion = FeedbackPayload::systemVersionText();
    payload.createdAt = FeedbackPayload::timestamp(clock.now());
    return payload;
}

void FeedbackForm::showOutcome(bool arrived)
{
    setSending(false);
    if (!arrived)
        return showError();
    m_feedbackText.clear();
    m_characterCount = 0;
    m_selectedTag = FeedbackTag::coolApp;
    m_selectedMoodIndex = initialMoodIndex;
    m_showSuccessAlert = true;
    Q_EMIT changed();
}

void FeedbackForm::showError()
{
    m_errorMessage = language().localizedString(QStringLiteral("feedback_error_message"));
    m_showErrorAlert = true;
    Q_EMIT changed();
}

void FeedbackForm::setSending(bool sending)
{
    if (sending == m_isSending)
        return;
    m_isSending = sending;
    Q_EMIT changed();
}

// Not the form's own: its requests must outlive it.
QNetworkAccessManager &FeedbackForm::network()
{
    if (!m_options.network) {
        static QPointer<QNetworkAccessManager> shared;
        if (!shared)
            shared = new QNetworkAccessManager(QCoreApplication::instance());
        m_options.network = shared;
    }
    return *m_options.network;
}

LanguageManager &FeedbackForm::language() const
{
    return m_options.language ? *m_options.language : LanguageManager::shared();
}
