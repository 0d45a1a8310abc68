#pragma once

#include <QHash>
#include <QString>

#include <functional>
#include <mutex>

namespace vms_sdk {

/// What the devices have answered and the GUI thread has not been given yet, in bytes. From any thread.
class Backlog
{
public:
    /// Two of the largest answers as the text that Qt holds of them: nobody owes a client more than a few.
    static constexpr qint64 maxBytesOfDevice = 4 << 20;
    /// Of all devices together: beyond it the network waits for the window, and nobody is cut.
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
