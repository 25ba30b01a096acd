#pragma once

#include <QDesktopServices>
#include <QList>
#include <QObject>
#include <QStringList>
#include <QUrl>

// Catches the URLs of `schemes` that the program hands to the system while it lives, so that
// nothing is opened for real.
class UrlCatcher : public QObject {
    Q_OBJECT
public:
    explicit UrlCatcher(const QStringList &schemes = {"http", "https", "mailto"})
        : m_schemes(schemes)
    {
        for (const QString &scheme : m_schemes)
            QDesktopServices::setUrlHandler(scheme, this, "open");
    }
    ~UrlCatcher() override
    {
        for (const QString &scheme : m_schemes)
            QDesktopServices::unsetUrlHandler(scheme);
    }

    QList<QUrl> opened;

public Q_SLOTS:
    void open(const QUrl &url) { opened.append(url); }

private:
    QStringList m_schemes;
};
