#pragma once

#include "core/updates/UpdaterController.h"
#include "platform/ModalPrompt.h"

#include <QString>

#include <functional>
#include <optional>

class LanguageManager;
class ModalPrompter;
class TextLookup;
class UpdateSheetPresenter;

// The updater of a platform without a native one, on an install that Homebrew does not
// manage: a check reads the appcast and shows the update sheet when a newer version exists;
// a check the user asked for that finds none tells so in a prompt.
class AppcastUpdaterController final : public UpdaterController {
public:
    // `failed`: the feed could not be read or judged, so nothing is known.
    using Answer =
        std::function<void(bool available, const std::optional<QString> &version, bool failed)>;
    // Reads the feed and answers once, on the main thread.
    using Check = std::function<void(Answer)>;

    struct Services {
        Check check;
        UpdateSheetPresenter *sheet = nullptr;     // none shows no sheet
        ModalPrompter *prompter = nullptr;         // none shows no prompt
        const LanguageManager *language = nullptr; // the prompt's texts
    };

    explicit AppcastUpdaterController(Services services) : m_services(std::move(services)) {}

    void startUpdater() override { m_started = true; }
    void checkForUpdates() override;
    void checkForUpdatesInBackground() override;

    bool isStarted() const { return m_started; }

    // The prompt that tells that this copy is up to date.
    static ModalPrompt noUpdatePrompt(const TextLookup &texts);

private:
    void check(bool userAsked);
    void presentNoUpdate();

    Services m_services;
    bool m_started = false;
};
