#pragma once

#include "platform/freedesktop/DesktopLinkStore.h"

// XFCE's preferred applications: xfce4/helpers.rc under the config places names a helper
// for the keys WebBrowser and MailReader, and xfce4/helpers/<name>.desktop under the data
// places lists the programs it runs (X-XFCE-Binaries, or the commands of X-XFCE-Commands);
// XFCE runs the first of them that is found.
class XfceHelpers : public DesktopLinkStore {
public:
    bool decides(const QString &scheme) const override;
    std::optional<QString> choice(const QString &scheme, const DesktopFileLocator &locator,
                                  const QStringList &handlingIds) const override;
    int write(const QString &scheme, const QString &desktopId,
              const DesktopEntry &entry) const override;
    QString failureLine(int status, const DesktopEntry &entry) const override;
    QStringList files() const override;

private:
    struct Helper {
        QString name;
        QString category;
        QStringList programs;
        // The program XFCE runs for it: the first that is found.
        std::optional<QString> program() const;
    };

    static QString categoryOf(const QString &scheme);
    static std::optional<QString> chosenHelper(const QString &category);
    static std::optional<Helper> readHelper(const QString &path);
    static std::optional<Helper> helperNamed(const QString &name);
    static QList<Helper> allHelpers();
};
