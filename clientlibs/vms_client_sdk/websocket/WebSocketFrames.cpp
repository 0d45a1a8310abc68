#include <vms_client_sdk/websocket/WebSocketFrames.h>

#include <QIODevice>
#include <QRandomGenerator>

#include <wslay/wslay.h>

#include <cstring>
#include <utility>

namespace vms_sdk {

struct WebSocketFrames::Callbacks
{
    static ssize_t send(const uint8_t *data, size_t length, int, void *self)
    {
        static_cast<WebSocketFrames *>(self)->m_encoded.append(reinterpret_cast<const char *>(data), int(length));
        return ssize_t(length);
    }

    static ssize_t receive(uint8_t *buffer, size_t length, int, void *self)
    {
        auto *frames = static_cast<WebSocketFrames *>(self);
        QIODevice &device = frames->m_device;
        // An answer to a peer that has gone closes it.
        const qint64 bytes = device.isOpen() ? device.read(reinterpret_cast<char *>(buffer), qint64(length)) : -1;
        if (bytes <= 0)
            return -1; // nothing yet
        frames->m_bytesRead += quint64(bytes);
        return bytes;
    }

    static int makeMask(uint8_t *buffer, size_t length, void *)
    {
        for (size_t i = 0; i < length; i += sizeof(quint32)) {
            const quint32 random = QRandomGenerator::global()->generate();
            memcpy(buffer + i, &random, qMin(sizeof random, length - i));
        }
        return 0;
    }
};

void WebSocketFrames::Free::operator()(wslay_frame_context *context) const
{
    wslay_frame_context_free(context);
}

WebSocketFrames::WebSocketFrames(QIODevice &device, bool masksOwn)
    : m_device(device)
    , m_masksOwn(masksOwn)
{
}

WebSocketFrames::~WebSocketFrames() = default;

wslay_frame_context *WebSocketFrames::context()
{
    if (!m_context) {
        static const wslay_frame_callbacks callbacks{&Callbacks::send, &Callbacks::receive, &Callbacks::makeMask};
        wslay_frame_context *made = nullptr;
        if (wslay_frame_context_init(&made, &callbacks, this) != 0)
            qBadAlloc();
        m_context.reset(made);
    }
    return m_context.get();
}

void WebSocketFrames::releaseWhenIdle()
{
    // Nearly all of ten thousand connections are silent, and need no buffer.
    if (m_frameOffset == 0 && m_bytesTaken == m_bytesRead)
        m_context.reset();
}

WebSocketFrames::Result WebSocketFrames::next(Chunk *chunk)
{
    wslay_frame_iocb frame{};
    const ssize_t result = wslay_frame_recv(context(), &frame);
    if (result == WSLAY_ERR_WANT_READ) {
        releaseWhenIdle();
        return Result::NothingYet;
    }
    if (result < 0)
        return Result::Malformed;
    chunk->opcode = frame.opcode;
    chunk->isFinalFrame = frame.fin != 0;
    chunk->isMasked = frame.mask != 0;
    chunk->reservedBits = frame.rsv;
    chunk->frameBytes = frame.payload_length;
    chunk->isFirst = m_frameOffset == 0;
    if (chunk->isFirst) {
        const int lengthBytes = frame.payload_length < 126 ? 0 : frame.payload_length < 65'536 ? 2 : 8;
        m_bytesTaken += quint64(2 + lengthBytes + (chunk->isMasked ? 4 : 0));
    }
    m_bytesTaken += frame.data_length;
    chunk->data = QByteArray::fromRawData(reinterpret_cast<const char *>(frame.data), int(frame.data_length));
    m_frameOffset += frame.data_length;
    chunk->isLast = m_frameOffset == frame.payload_length;
    if (chunk->isLast)
        m_frameOffset = 0;
    return Result::Arrived;
}

QByteArray WebSocketFrames::encode(Opcode opcode, const QByteArray &payload)
{
    m_encoded.clear();
    m_encoded.reserve(payload.size() + 14); // the longest head of a frame
    wslay_frame_iocb frame{};
    frame.fin = 1;
    frame.opcode = uint8_t(opcode);
    frame.mask = m_masksOwn ? 1 : 0;
    frame.payload_length = uint64_t(payload.size());
    frame.data = reinterpret_cast<const uint8_t *>(payload.constData());
    frame.data_length = size_t(payload.size());
    size_t sent = 0;
    do {
        const ssize_t bytes = wslay_frame_send(context(), &frame);
        if (bytes < 0)
            break; // cannot happen: the callback takes everything
        sent += size_t(bytes);
        frame.data += bytes;
        frame.data_length -= size_t(bytes);
    } while (sent < size_t(payload.size()));
    releaseWhenIdle();
    return std::exchange(m_encoded, {});
}

} // namespace vms_sdk
