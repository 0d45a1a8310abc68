#pragma once

#include <vms_client_sdk/HttpHead.h>
#include <vms_client_sdk/onvif/HttpExchanges.h>

QT_BEGIN_NAMESPACE
class QIODevice;
QT_END_NAMESPACE

namespace vms_sdk {

/// One HTTP answer, read as it arrives. What it keeps is limited, whatever the other side sends.
class HttpAnswerReader
{
public:
    enum class State
    {
        Incomplete,
        Complete,
        Broken ///< answer() says why
    };

    /// @param maxBytes of all that follows the head, the sizes of chunks included
    explicit HttpAnswerReader(qint64 maxBytes);

    /// Takes what has arrived, and nothing that follows the answer.
    State read(QIODevice &device);
    /// The connection has ended, and all that had arrived has been read.
    State end();
    bool hasBegun() const { return m_hasBegun; }
    qint64 bytes() const { return m_bytes; } ///< that have followed the head so far
    /// Whether the connection may carry another answer after this one.
    bool canStayOpen() const { return m_canStayOpen; }
    const HttpAnswer &answer() const { return m_answer; } ///< once it is complete or broken

private:
    enum class Part
    {
        Head,
        Content, ///< as long as the head says
        ChunkSize,
        Chunk,
        ChunkEnd,
        Trailer,
        ContentToEnd ///< of the connection
    };

    State takeHead();
    State takeFraming(int status);
    State readPart(QIODevice &device, bool *goesOn);
    State takeLine(const QByteArray &line);
    State broken(TroubleReason reason, const QString &why);
    State tooLong();

    qint64 m_maxBytes;
    HttpHead m_head;
    Part m_part = Part::Head;
    HttpAnswer m_answer;
    qint64 m_bytes = 0; ///< after the head
    qint64 m_left = 0; ///< of the content or of a chunk
    int m_interimHeads = 0;
    bool m_hasBegun = false;
    bool m_canStayOpen = false;
};

} // namespace vms_sdk
