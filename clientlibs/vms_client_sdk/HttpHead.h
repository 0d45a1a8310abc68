#pragma once

#include <QByteArray>
#include <QHash>

QT_BEGIN_NAMESPACE
class QIODevice;
class QUrl;
QT_END_NAMESPACE

namespace vms_sdk {

/// The first line of an HTTP message and those of its header fields that are used here, read as they arrive. Limited in
/// size: a peer that has not signed on yet may send header lines without end.
class HttpHead
{
public:
    static constexpr int maxLineBytes = 8 * 1024; ///< what common HTTP servers take
    static constexpr int maxBytes = 64 * 1024;

    enum class State
    {
        Incomplete,
        Complete,
        TooLarge
    };

    /// Takes the lines that have arrived, and nothing that follows the empty line.
    State read(QIODevice &device);
    /// For example "GET /dev-0001 HTTP/1.1"; without the line's end.
    QByteArray startLine() const { return m_startLine; }
    /// The value of a field, without blanks around it; empty where there is none. Values of a repeated
    /// field are joined by commas, as HTTP has it.
    QByteArray field(const QByteArray &lowerCaseName) const { return m_fields.value(lowerCaseName); }
    /// True when the field is a list that has this word, whatever its case.
    bool hasWord(const QByteArray &lowerCaseName, const QByteArray &lowerCaseWord) const;

private:
    void takeLine(const QByteArray &line);

    QByteArray m_startLine;
    QHash<QByteArray, QByteArray> m_fields;
    int m_bytes = 0;
};

/// What the first line of a request names: path and query, "/" where there is none.
QByteArray requestTarget(const QUrl &url);

} // namespace vms_sdk
