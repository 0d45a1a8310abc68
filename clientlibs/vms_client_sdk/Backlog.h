#pragma once

#include <QHash>
#include <QString>

#include <functional>
#include <mutex>

namespace vms_sdk {

/// Counts the bytes of answers that have arrived and that the GUI thread has not received yet. Thread-safe.
class Backlog
{
public:
    /// Two of the largest answers as Qt keeps them in memory: a device never has more than a few to give.
    static constexpr qint64 maxBytesOfDevice = 4 << 20;
    /// Of all devices together. Beyond it no more is read from the network until the window has caught up.
    static constexpr qint64 maxBytes = 64 << 20;

    /// @param roomAgain called by passedOn(), on its thread, when there is room again after isFull() was true
    explicit Backlog(std::function<void()> roomAgain);

    /// Counts an answer that is about to be handed on. @return false when too much of this device waits already: the
    /// answer is not counted and must not be handed on
    bool add(const QString &devId, const QString &requestId, int characters);
    /// The GUI thread has got an answer. Ids that were never added are fine.
    void passedOn(const QString &requestId, int characters);
    bool isFull();

private:
    struct Answers
    {
        QString devId;
        int count = 0;
    };

    std::function<void()> m_roomAgain;
    std::mutex m_mutex; ///< for all that follows
    QHash<QString, Answers> m_byRequest;
    QHash<QString, qint64> m_byDevice; ///< bytes
    qint64 m_bytes = 0;
    bool m_wasFull = false;
};

} // namespace vms_sdk
