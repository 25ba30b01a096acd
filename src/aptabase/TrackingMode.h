#pragma once

// How an initialised client decides whether its events are marked as debug ones. There are
// exactly three modes, each a shared instance; they are compared by identity.
class TrackingMode {
public:
    static const TrackingMode &asDebug();
    static const TrackingMode &asRelease();
    static const TrackingMode &readFromEnvironment();

    bool isDebug() const { return rawValue == 0; }
    bool isRelease() const { return rawValue == 1; }
    bool isReadFromEnvironment() const { return rawValue == 2; }

    TrackingMode(const TrackingMode &) = delete;
    TrackingMode &operator=(const TrackingMode &) = delete;
    bool operator==(const TrackingMode &other) const { return this == &other; }

private:
    explicit TrackingMode(int value) : rawValue(value) {}
    int rawValue;
};
