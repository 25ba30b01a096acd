#pragma once

#include <QDialog>
#include <QString>

#include <chrono>
#include <functional>

class LanguageManager;
class QLabel;
class QPushButton;
class QToolButton;
class TimerFactory;

// The sheet that tells of a newer version when the program cannot update itself. On a
// Homebrew install it offers the terminal command for copying; it has no update button.
// Escape closes it as the later button does.
class UpdateAvailableView : public QDialog {
    Q_OBJECT
public:
    static constexpr const char *brewCommand = "brew upgrade vandorel";
    static constexpr std::chrono::seconds copiedTickDuration{2};
    static constexpr int sheetWidth = 440;

    // `onDismiss`, when given, replaces the plain closing of the sheet.
    UpdateAvailableView(const QString &version, bool isBrewInstall,
                        std::function<void()> onDismiss = {}, QWidget *parent = nullptr);
    UpdateAvailableView(const QString &version, bool isBrewInstall, std::function<void()> onDismiss,
                        LanguageManager &languageManager, TimerFactory &timers,
                        QWidget *parent = nullptr);

    QString version() const { return m_version; }
    bool isBrewInstall() const { return m_isBrewInstall; }
    bool isCopied() const { return m_isCopied; }

    QLabel *updateMessage() const { return m_message; }
    // The Homebrew block; none without a Homebrew install.
    QWidget *brewSection() const { return m_brewSection; }
    QToolButton *copyButton() const { return m_copyButton; }
    QPushButton *laterButton() const { return m_laterButton; }

    // Puts the command on the clipboard and shows a tick for two seconds.
    void copyBrewCommand();
    void dismissUpdate();
    void reject() override;

private:
    QWidget *makeBrewSection();
    void retranslate();
    void fitToWidth();
    void setCopied(bool copied);
    void showCopyState();

    LanguageManager &m_languageManager;
    TimerFactory &m_timers;
    QString m_version;
    bool m_isBrewInstall;
    std::function<void()> m_onDismiss;
    bool m_isCopied = false;

    QLabel *m_title = nullptr;
    QLabel *m_message = nullptr;
    QWidget *m_brewSection = nullptr;
    QLabel *m_brewHint = nullptr;
    QLabel *m_brewCommandHint = nullptr;
    QToolButton *m_copyButton = nullptr;
    QPushButton *m_laterButton = nullptr;
};
