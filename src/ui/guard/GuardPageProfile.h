#pragma once

// Everything in which the browser page and the mail page differ, as data: the text keys,
// the symbol of the target box, the widths of the three pickers and whether rows stretch
// across their box. The page holds all the layout and logic.
struct GuardPageProfile {
    struct PickerWidth {
        int points;
        bool exact; // exactly this wide; otherwise at most this wide
    };

    // Box titles, in the order of the boxes.
    const char *statusTitleKey;
    const char *targetTitleKey;
    const char *statisticsTitleKey;
    const char *monitoringTitleKey;
    const char *eventMonitoringTitleKey;
    const char *snoozeTitleKey;
    const char *targetSymbol;

    // Status.
    const char *currentKey;
    const char *noneDetectedKey;
    const char *refreshKey;
    const char *refreshAlertTitleKey;
    const char *refreshAlertMessageKey;
    const char *okKey;

    // Target.
    const char *noneInstalledKey;
    const char *selectTargetKey;
    const char *noneKey;
    const char *selectDescriptionKey;
    const char *bundleIdKey;
    const char *alreadyDefaultKey;
    const char *setNowKey;
    const char *stopKey;
    const char *waitingPromptKey;

    // Statistics.
    const char *changesDetectedKey;
    const char *lastChangeKey;

    // Monitoring and events.
    const char *enableMonitoringKey;
    const char *selectToEnableKey;
    const char *checkIntervalKey;
    const char *checkOnLoginKey;
    const char *checkOnWakeKey;
    const char *checkOnUnlockKey;

    // Snooze.
    const char *snoozeDurationKey;
    const char *snoozeDescriptionKey;
    const char *currentlySnoozedKey;
    const char *resetSnoozeKey;

    PickerWidth targetPicker;
    PickerWidth intervalPicker;
    PickerWidth snoozePicker;
    // Rows of the boxes below the status span the box, left-aligned; otherwise they keep
    // their natural width.
    bool stretchRows;

    static const GuardPageProfile &browser();
    static const GuardPageProfile &email();
};
