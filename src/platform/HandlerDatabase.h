#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

// What the system knows about applications and the URL schemes they handle.
// An application is addressed by its location (on freedesktop: the absolute path of its
// desktop entry, or "!" and a program the desktop runs without one) or by its identifier
// (the desktop file id without ".desktop").
// An answer never outlives a change of the files it was read from.
class HandlerDatabase {
public:
    // The facts of one application, read at a location.
    struct Application {
        QString identifier;
        std::optional<QString> name;    // the application's own name, when it declares one
        std::optional<QString> version; // its short version, when known
    };

    // The two kinds of application a guard keeps.
    enum class Kind { browser, mailClient };

    virtual ~HandlerDatabase() = default;

    // The identifiers under which this platform's browsers or mail clients are shipped, in
    // the order they are tried. An installed one counts without any test of its name.
    virtual QStringList knownIdentifiers(Kind kind) const = 0;

    // The locations of every application that opens URLs of the scheme ("https", "mailto"),
    // the default first.
    virtual QStringList applicationsForScheme(const QString &scheme) const = 0;
    // The location of the application that opens URLs of the scheme, if any.
    virtual std::optional<QString> defaultApplicationForScheme(const QString &scheme) const = 0;
    // Where the installed application with this identifier lives, if it is installed.
    virtual std::optional<QString> locationForIdentifier(const QString &identifier) const = 0;
    // The application at a location; nothing when no application can be read there.
    virtual std::optional<Application> applicationAt(const QString &location) const = 0;
    // The name a file manager would show for the path.
    virtual QString displayNameAtPath(const QString &path) const = 0;

    // Makes the application with this identifier the default for the scheme. Returns 0 on
    // success and a non-zero status otherwise. Safe to call from a worker thread.
    virtual int setDefaultHandler(const QString &scheme, const QString &identifier) = 0;

    // While the returned hold lives, the database may answer from what it has read without
    // looking whether the files changed: for a run of questions that make up one picture.
    virtual std::shared_ptr<void> holdReading() const { return nullptr; }

    // Where the database writes a line that tells why a change failed; nowhere by default.
    using LineSink = std::function<void(const QString &line)>;
    void setDiagnostics(LineSink sink) { m_diagnostics = std::move(sink); }

protected:
    void report(const QString &line) const
    {
        if (m_diagnostics && !line.isEmpty())
            m_diagnostics(line);
    }

private:
    LineSink m_diagnostics;
};
