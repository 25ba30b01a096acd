#include "core/updates/AppcastUpdaterController.h"

#include "core/i18n/LanguageManager.h"
#include "core/updates/UpdateSheetPresenter.h"
#include "platform/ModalPrompter.h"

void AppcastUpdaterController::checkForUpdates()
{
    check(true);
}

void AppcastUpdaterController::checkForUpdatesInBackground()
{
    check(false);
}

void AppcastUpdaterController::check(bool userAsked)
{
    // The owner of this controller answers only while it lives.
    m_services.check(
        [this, userAsked](bool available, const std::optional<QString> &version, bool failed) {
            if (available && version) {
                if (m_services.sheet)
                    m_services.sheet->presentUpdateAvailable(*version, false);
            } else if (userAsked && !failed) {
                presentNoUpdate();
            }
        });
}

void AppcastUpdaterController::presentNoUpdate()
{
    if (!m_services.prompter || !m_services.language)
        return;
    m_services.prompter->present(noUpdatePrompt(*m_services.language), {});
}

ModalPrompt AppcastUpdaterController::noUpdatePrompt(const TextLookup &texts)
{
    ModalPrompt prompt;
    prompt.title = texts.localizedString(QStringLiteral("update_no_updates_title"));
    prompt.text = texts.localizedString(QStringLiteral("update_no_updates_message"));
    prompt.buttons = {texts.localizedString(QStringLiteral("general_ok"))};
    prompt.symbolName = QStringLiteral("checkmark.circle.fill");
    return prompt;
}
