#pragma once

#include <QList>
#include <QMutex>
#include <QMutexLocker>

#include <optional>

// A first-in first-out list shared between threads. Every operation holds the one mutex, so
// an element appended before a read is seen by that read.
template <class T>
class ConcurrentQueue {
public:
    void enqueue(const T &element)
    {
        QMutexLocker lock(&m_mutex);
        m_elements.append(element);
    }

    void enqueue(const QList<T> &contentsOf)
    {
        QMutexLocker lock(&m_mutex);
        m_elements.append(contentsOf);
    }

    std::optional<T> dequeue()
    {
        QMutexLocker lock(&m_mutex);
        if (m_elements.isEmpty())
            return std::nullopt;
        return m_elements.takeFirst();
    }

    // The oldest `count` elements, oldest first, or all of them if there are fewer.
    QList<T> dequeue(qsizetype count)
    {
        QMutexLocker lock(&m_mutex);
        const qsizetype taken = qBound(qsizetype(0), count, m_elements.size());
        QList<T> result = m_elements.first(taken);
        m_elements.remove(0, taken);
        return result;
    }

    bool isEmpty() const
    {
        QMutexLocker lock(&m_mutex);
        return m_elements.isEmpty();
    }

    qsizetype count() const
    {
        QMutexLocker lock(&m_mutex);
        return m_elements.size();
    }

private:
    mutable QMutex m_mutex;
    QList<T> m_elements;
};
