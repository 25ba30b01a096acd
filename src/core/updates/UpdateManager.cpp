#include "core/updates/UpdateManager.h"

#include "core/settings/SettingsStore.h"
#include "core/settings/SettingsTable.h"
#include "core/support/AppInfo.h"
#include "core/support/Clock.h"
#include "core/support/SystemClock.h"
#include "core/updates/AppcastInput.h"
#include "core/updates/AppcastParser.h"
#include "core/updates/AppcastUpdaterController.h"
#include "core/updates/VersionOrder.h"
#include "foundation/Console.h"
#include "foundation/QtTimerFactory.h"
#include "foundation/ReplyOutcome.h"
#include "platform/InstallLayout.h"

#include "BuildConfig.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QStringList>

#include <chrono>

namespace {

UpdateManager *&sharedSlot()
{
    static UpdateManager *manager = nullptr;
    return manager;
}

// How long the feed server may stay silent before the check fails.
constexpr std::chrono::seconds feedTimeout{60};

const QStringList brewCaskTokens = {QStringLiteral("vandorel"), QStringLiteral("van-dorel")};

} // namespace

UpdateManager &UpdateManager::shared()
{
    UpdateManager *&manager = sharedSlot();
    if (!manager)
        manager = new UpdateManager(defaultOptions());
    return *manager;
}

void UpdateManager::setShared(UpdateManager *manager)
{
    sharedSlot() = manager;
}

UpdateManager::Options UpdateManager::defaultOptions()
{
    static SystemClock clock;
    static QtTimerFactory timers;
    Options options;
    options.settings = &SettingsStore::standard();
    options.clock = &clock;
    options.timers = &timers;
    options.appcastURL = QUrl(QString::fromUtf8(BuildConfig::feedUrl));
    options.currentVersion = AppInfo::appVersion();
    return options;
}

UpdateManager::UpdateManager(Options options, QObject *parent)
    : QObject(parent), m_options(std::move(options))
{
}

UpdateManager::~UpdateManager() = default;

bool UpdateManager::isBrewInstall()
{
    if (!m_isBrewInstall)
        m_isBrewInstall = detectBrewInstall(m_options.install);
    return *m_isBrewInstall;
}

bool UpdateManager::detectBrewInstall(const InstallLayout *install)
{
    const std::optional<QString> evidence =
        install ? install->homebrewEvidence(brewCaskTokens) : std::nullopt;
    if (!evidence) {
        Console::line(QStringLiteral("📦 No Homebrew install detected"));
        return false;
    }
    Console::line(u"🍺 Homebrew install detected via " + *evidence);
    return true;
}

UpdaterController *UpdateManager::sparkleUpdaterController()
{
    if (!m_controllerMade) {
        m_controllerMade = true;
        if (!isBrewInstall()) {
            m_sparkleUpdaterController =
                m_options.makeController ? m_options.makeController() : makeAppcastUpdater();
        }
    }
    return m_sparkleUpdaterController.get();
}

std::unique_ptr<UpdaterController> UpdateManager::makeAppcastUpdater()
{
    AppcastUpdaterController::Services services;
    services.check = [this](AppcastUpdaterController::Answer answer) {
        fetchFeed([answer = std::move(answer)](const Answer &found) {
            answer(found.available, found.version, found.failed);
        });
    };
    services.sheet = m_options.sheet;
    services.prompter = m_options.prompter;
    services.language = m_options.language;
    return std::make_unique<AppcastUpdaterController>(std::move(services));
}

bool UpdateManager::checkForUpdatesWithSparkle()
{
    return startUpdaterCheck(false);
}

bool UpdateManager::startUpdaterCheck(bool inBackground)
{
    if (isBrewInstall() || !sparkleUpdaterController())
        return false;
    if (m_isSparkleCheckInProgress) {
        Console::line(QStringLiteral("ℹ️ Sparkle check skipped: session already in progress"));
        return false;
    }
    m_isSparkleCheckInProgress = true;
    // Right after the current work; dropped if the manager is gone by then.
    QMetaObject::invokeMethod(
        this,
        [this, inBackground] {
            UpdaterController *controller = sparkleUpdaterController();
            controller->startUpdater();
            if (inBackground)
                controller->checkForUpdatesInBackground();
            else
                controller->checkForUpdates();
            scheduleSparkleReset();
        },
        Qt::QueuedConnection);
    return true;
}

void UpdateManager::scheduleSparkleReset()
{
    if (m_sparkleResetWorkItem) {
        m_sparkleResetWorkItem->stop();
        m_sparkleResetWorkItem->deleteLater();
    }
    Timer *workItem = m_options.timers->createTimer(this);
    connect(workItem, &Timer::timeout, this, [this, workItem] {
        m_isSparkleCheckInProgress = false;
        workItem->deleteLater();
    });
    m_sparkleResetWorkItem = workItem;
    workItem->start(std::chrono::seconds(sparkleResetSeconds), false);
}

void UpdateManager::checkAutomaticallyAndPresentIfAvailable()
{
    if (isBrewInstall())
        return;
    checkForUpdates([this](bool available, const std::optional<QString> &version) {
        if (!available || !version)
            return;
        if (isSnoozed(*version)) {
            QString line = u"😴 Auto update reminder snoozed for version " + *version;
            if (const std::optional<double> remaining = remainingSnoozeSeconds(*version))
                line += u", remaining: " + QString::number(static_cast<qint64>(*remaining)) + u's';
            Console::line(line);
            return;
        }
        if (!startUpdaterCheck(true))
            return;
        snoozeAutoReminder(*version, autoReminderSnoozeHours);
        Console::line(u"🔕 Auto update reminder snoozed for "
                      + QString::number(static_cast<qint64>(autoReminderSnoozeHours))
                      + u"h (version " + *version + u')');
    });
}

double UpdateManager::nowSeconds() const
{
    return static_cast<double>(m_options.clock->now().toMSecsSinceEpoch()) / 1000.0;
}

void UpdateManager::snoozeAutoReminder(const QString &version, double hours)
{
    m_options.settings->set(SettingsTable::updateSnoozeUntil, nowSeconds() + hours * 3600.0);
    m_options.settings->set(SettingsTable::updateSnoozeVersion, version);
}

bool UpdateManager::isSnoozed(const QString &version) const
{
    const std::optional<QString> snoozedVersion =
        m_options.settings->value(SettingsTable::updateSnoozeVersion);
    if (!snoozedVersion || *snoozedVersion != version)
        return false;
    const double until = m_options.settings->value(SettingsTable::updateSnoozeUntil);
    if (!(until > 0))
        return false;
    return nowSeconds() < until;
}

std::optional<double> UpdateManager::remainingSnoozeSeconds(const QString &version) const
{
    if (!isSnoozed(version))
        return std::nullopt;
    const double until = m_options.settings->value(SettingsTable::updateSnoozeUntil);
    return std::max(0.0, until - nowSeconds());
}

void UpdateManager::resetAutoReminderSnooze()
{
    m_options.settings->remove(SettingsTable::updateSnoozeUntil);
    m_options.settings->remove(SettingsTable::updateSnoozeVersion);
    Console::line(QStringLiteral("🔄 Update reminder snooze reset"));
}

QNetworkAccessManager &UpdateManager::network()
{
    if (!m_network)
        m_network = new QNetworkAccessManager(this);
    return *m_network;
}

void UpdateManager::checkForUpdates(Completion completion)
{
    fetchFeed([completion = std::move(completion)](const Answer &answer) {
        completion(answer.available, answer.version);
    });
}

void UpdateManager::fetchFeed(std::function<void(const Answer &)> answered)
{
    if (m_updateTask)
        m_updateTask->abort();
    QNetworkReply *reply = network().get(QNetworkRequest(m_options.appcastURL));
    m_updateTask = reply;
    auto ending = std::make_shared<Ending>();
    // A body the appcast reader would refuse is not read to its end.
    connect(reply, &QNetworkReply::downloadProgress, reply,
            [reply, ending](qint64 received, qint64) {
                if (received > AppcastInput::kMaxBytes && !ending->oversized) {
                    ending->oversized = true;
                    reply->abort();
                }
            });
    // A server that stays silent for a minute fails the check; each piece of the answer
    // gives it another minute.
    Timer *silence = m_options.timers->createTimer(reply);
    connect(silence, &Timer::timeout, reply, [reply, ending] {
        ending->timedOut = true;
        reply->abort();
    });
    connect(reply, &QNetworkReply::downloadProgress, silence,
            [silence] { silence->start(feedTimeout, false); });
    connect(reply, &QNetworkReply::finished, silence, &Timer::stop);
    silence->start(feedTimeout, false);
    connect(reply, &QNetworkReply::finished, this,
            [this, reply, ending, answered = std::move(answered)] {
                reply->deleteLater();
                finishCheck(reply, *ending, answered);
            });
}

void UpdateManager::finishCheck(QNetworkReply *reply, Ending ending,
                                const std::function<void(const Answer &)> &answered)
{
    FetchResult result;
    result.oversized = ending.oversized;
    const ReplyOutcome outcome = ReplyOutcome::of(*reply);
    if (ending.timedOut)
        result.transportError = QStringLiteral("The request timed out.");
    else if (!ending.oversized && reply->error() == QNetworkReply::OperationCanceledError)
        result.cancelled = true;
    else if (!ending.oversized && outcome.failure)
        result.transportError = outcome.failure;
    else if (reply->isReadable())
        result.data = reply->readAll();

    const std::optional<Answer> answer = answerFor(result, m_options.currentVersion);
    if (!answer)
        return;
    QMetaObject::invokeMethod(
        this, [answered, answer = *answer] { answered(answer); }, Qt::QueuedConnection);
}

std::optional<UpdateManager::Answer> UpdateManager::answerFor(const FetchResult &result,
                                                              const QString &currentVersion)
{
    if (result.cancelled)
        return std::nullopt;
    Answer failure;
    failure.failed = true;
    if (result.transportError) {
        Console::line(u"❌ Update check failed: " + *result.transportError);
        return failure;
    }
    if (!result.oversized && !result.data) {
        Console::line(QStringLiteral("❌ No data received from appcast"));
        return failure;
    }
    const std::optional<AppcastResult> feed =
        result.oversized ? std::nullopt : AppcastParser::parseAppcast(*result.data);
    if (!feed) {
        Console::line(QStringLiteral("❌ Failed to parse appcast"));
        return failure;
    }
    Console::line(u"📦 Current version: " + currentVersion);
    Console::line(u"📦 Latest version: " + feed->version);
    if (VersionOrder::isVersion(feed->version, currentVersion)) {
        Console::line(QStringLiteral("✅ Update available!"));
        return Answer{true, feed->version, false};
    }
    Console::line(QStringLiteral("✅ No update available"));
    return Answer{};
}
