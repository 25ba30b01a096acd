#pragma once

#include "foundation/Timer.h"

#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>

class Clock;
class InstallLayout;
class LanguageManager;
class ModalPrompter;
class QNetworkAccessManager;
class QNetworkReply;
class SettingsStore;
class TimerFactory;
class UpdateSheetPresenter;
class UpdaterController;

// Decides how this copy gets its updates and keeps the automatic reminder from nagging.
// A normal install updates through its updater controller; a Homebrew install has none and
// only the appcast check. Lives on the main thread.
class UpdateManager : public QObject {
    Q_OBJECT
public:
    // Whether an update is available, and its version if so.
    using Completion = std::function<void(bool available, const std::optional<QString> &version)>;
    using ControllerFactory = std::function<std::unique_ptr<UpdaterController>()>;

    struct Options {
        SettingsStore *settings = nullptr;
        Clock *clock = nullptr;
        TimerFactory *timers = nullptr;
        QUrl appcastURL;
        QString currentVersion;
        // Where this copy is installed; none means not by Homebrew.
        const InstallLayout *install = nullptr;
        // Makes the updater controller; empty means the program's own appcast updater, which
        // shows its findings through these (each may be absent: it then shows nothing).
        ControllerFactory makeController;
        UpdateSheetPresenter *sheet = nullptr;
        ModalPrompter *prompter = nullptr;
        const LanguageManager *language = nullptr;
    };

    // What a finished feed request brought, before it is judged.
    struct FetchResult {
        bool cancelled = false;
        std::optional<QString> transportError; // a network-level failure, described
        std::optional<QByteArray> data;
        bool oversized = false; // the body outgrew what the appcast reader accepts
    };

    struct Answer {
        bool available = false;
        std::optional<QString> version;
        bool failed = false; // the feed could not be read or judged
    };

    static constexpr double autoReminderSnoozeHours = 4.0;
    static constexpr int sparkleResetSeconds = 8;

    // The process-wide manager: the standard settings store, real clock and timers, the feed
    // of the build configuration and the running copy's version. Made on first use unless
    // the application (or a test) has put one in its place (kept by the caller).
    static UpdateManager &shared();
    static void setShared(UpdateManager *manager);
    static Options defaultOptions();

    explicit UpdateManager(Options options, QObject *parent = nullptr);
    ~UpdateManager() override;

    // Computed on first read, then kept for the run.
    bool isBrewInstall();
    // True if an updater check was started.
    bool checkForUpdatesWithSparkle();
    void checkAutomaticallyAndPresentIfAvailable();
    void resetAutoReminderSnooze();
    // Reads the feed; a request still running is cancelled and never answers. The answer
    // comes on the main thread; failures answer false and no version.
    void checkForUpdates(Completion completion);

    // Made on first read; none on a Homebrew install.
    UpdaterController *sparkleUpdaterController();

    QUrl appcastURL() const { return m_options.appcastURL; }
    bool isSparkleCheckInProgress() const { return m_isSparkleCheckInProgress; }

    // Judges a finished request and writes its console lines. None when the request was
    // cancelled: it gets no answer. Free of shared state.
    static std::optional<Answer> answerFor(const FetchResult &result,
                                           const QString &currentVersion);
    // Writes which sign, if any, shows that Homebrew installed this copy.
    static bool detectBrewInstall(const InstallLayout *install);

private:
    std::unique_ptr<UpdaterController> makeAppcastUpdater();
    bool startUpdaterCheck(bool inBackground);
    void fetchFeed(std::function<void(const Answer &)> answered);
    void scheduleSparkleReset();
    void snoozeAutoReminder(const QString &version, double hours);
    bool isSnoozed(const QString &version) const;
    std::optional<double> remainingSnoozeSeconds(const QString &version) const;
    double nowSeconds() const;
    QNetworkAccessManager &network();
    // How a feed request was ended by this side, if it was.
    struct Ending {
        bool oversized = false; // the body outgrew what the appcast reader accepts
        bool timedOut = false;  // the server stayed silent too long
    };
    void finishCheck(QNetworkReply *reply, Ending ending,
                     const std::function<void(const Answer &)> &answered);

    Options m_options;
    QNetworkAccessManager *m_network = nullptr;
    QPointer<QNetworkReply> m_updateTask;
    std::unique_ptr<UpdaterController> m_sparkleUpdaterController;
    bool m_controllerMade = false;
    bool m_isSparkleCheckInProgress = false;
    QPointer<Timer> m_sparkleResetWorkItem;
    std::optional<bool> m_isBrewInstall;
};
