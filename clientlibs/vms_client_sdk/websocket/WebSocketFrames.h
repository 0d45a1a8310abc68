#pragma once

#include <QByteArray>

#include <memory>

struct wslay_frame_context;

QT_BEGIN_NAMESPACE
class QIODevice;
QT_END_NAMESPACE

namespace vms_sdk {

/// The framing of RFC 6455 over a QIODevice, by the library wslay. Payloads are handed on as they arrive, none is kept.
class WebSocketFrames
{
public:
    enum Opcode
    {
        Continuation = 0,
        Text = 1,
        Binary = 2,
        Close = 8,
        Ping = 9,
        Pong = 10
    };

    /// A part of a frame's payload, or all of it.
    struct Chunk
    {
        int opcode = 0;
        bool isFinalFrame = false; ///< of its message
        bool isMasked = false;
        int reservedBits = 0;
        quint64 frameBytes = 0; ///< of the whole payload, as the frame's head claims
        bool isFirst = false; ///< of its frame
        bool isLast = false;
        QByteArray data; ///< valid until the next call
    };

    enum class Result
    {
        Arrived,
        NothingYet,
        Malformed
    };

    /// @param device outlives this object
    /// @param masksOwn a client masks its frames
    WebSocketFrames(QIODevice &device, bool masksOwn);
    ~WebSocketFrames();

    Result next(Chunk *chunk);
    /// Taken from the device so far, heads included.
    quint64 bytesRead() const { return m_bytesRead; }
    /// A whole message in one frame, ready to be sent.
    QByteArray encode(Opcode opcode, const QByteArray &payload);

private:
    struct Callbacks;
    struct Free
    {
        void operator()(wslay_frame_context *context) const;
    };

    wslay_frame_context *context();
    void releaseWhenIdle();

    QIODevice &m_device;
    const bool m_masksOwn;
    std::unique_ptr<wslay_frame_context, Free> m_context; ///< 8 KiB: none while nothing of a frame has come
    quint64 m_bytesRead = 0;
    quint64 m_bytesTaken = 0; ///< those of them that were handed on, heads included
    quint64 m_frameOffset = 0; ///< of the payload that comes next
    QByteArray m_encoded;
};

} // namespace vms_sdk
