#include <vms_client_sdk/Backlog.h>

namespace vms_sdk {

namespace {

/// An answer takes memory even without a text.
qint64 bytesOf(int characters)
{
    constexpr qint64 overhead = 256; // the text's and the id's memory blocks, the place in the queue
    return overhead + characters * qint64(sizeof(QChar));
}

} // namespace

Backlog::Backlog(std::function<void()> roomAgain)
    : m_roomAgain(std::move(roomAgain))
{
}

bool Backlog::add(const QString &devId, const QString &requestId, int characters)
{
    const qint64 bytes = bytesOf(characters);
    const std::lock_guard lock(m_mutex);
    qint64 &ofDevice = m_byDevice[devId];
    if (ofDevice + bytes > maxBytesOfDevice)
        return false;
    ofDevice += bytes;
    m_bytes += bytes;
    Answers &answers = m_byRequest[requestId];
    answers.devId = devId;
    ++answers.count;
    m_wasFull = m_wasFull || m_bytes >= maxBytes;
    return true;
}

void Backlog::passedOn(const QString &requestId, int characters)
{
    const qint64 bytes = bytesOf(characters);
    std::unique_lock lock(m_mutex);
    const auto answers = m_byRequest.find(requestId);
    if (answers == m_byRequest.end())
        return;
    const auto ofDevice = m_byDevice.find(answers->devId);
    *ofDevice -= bytes;
    m_bytes -= bytes;
    if (*ofDevice <= 0)
        m_byDevice.erase(ofDevice);
    if (--answers->count == 0)
        m_byRequest.erase(answers);
    // Only when it is half empty: else reading would be stopped and started again for every answer.
    const bool hasRoom = m_wasFull && m_bytes < maxBytes / 2;
    if (hasRoom)
        m_wasFull = false;
    lock.unlock();
    if (hasRoom)
        m_roomAgain();
}

bool Backlog::isFull()
{
    const std::lock_guard lock(m_mutex);
    return m_wasFull;
}

} // namespace vms_sdk
