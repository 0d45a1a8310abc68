#pragma once

#include <vms_client_sdk/LinkTrouble.h>

#include <QByteArray>
#include <QByteArrayList>
#include <QObject>
#include <QString>
#include <QUrl>

#include <chrono>
#include <functional>
#include <limits>
#include <memory>

namespace vms_sdk {

/// The limits of HTTP exchanges with cameras. The defaults are what docs/onvif.md promises.
struct HttpLimits
{
    std::chrono::milliseconds connectLimit{3'000}; ///< until the request has left
    std::chrono::milliseconds answerLimit{10'000}; ///< after that, until the answer is complete
    qint64 maxAnswerBytes = 4 << 20;
    int maxToAddress = 4; ///< at once to one host and port
    int maxAtOnce = 256; ///< in all
    /// Of all answers that are not complete yet. Beyond it the longest of them is given up; cameras that mean well
    /// have a hundredth of it under way.
    qint64 maxBytesInAll = 64 << 20;
};

/// One request, by POST.
struct HttpRequest
{
    QUrl url; ///< http or https
    QByteArray body; ///< SOAP 1.2
    QByteArray action; ///< of the content type; may be empty
    QByteArray authorization; ///< the header's value; empty: none
    QString fingerprint; ///< of the device's certificate, as PinnedCertificate takes it
    /// Whether the device may get it a second time without harm. Such a request may go out on a connection that was
    /// kept since an earlier one; when the device turns out to have closed that, it is sent anew, once, on a fresh one.
    /// Any other has a fresh one to itself. A fresh connection that breaks before the answer ends the exchange.
    bool isRepeatable = true;
    qint64 maxAnswerBytes = std::numeric_limits<qint64>::max(); ///< where less than HttpLimits has is enough
};

struct HttpAnswer
{
    int status = 0; ///< 0: no answer; then reason and error say why
    QByteArray body; ///< whole; empty when it is beyond the limit
    QByteArrayList challenges; ///< of WWW-Authenticate; several headers come as one, joined by commas
    TroubleReason reason = TroubleReason::None;
    QString error; ///< a printable line; also for an answer that is no use, such as a redirection
    /// Without an answer: whether the request, or a part of it, may have reached the device.
    bool hasLeft = false;
};

/// Sends requests to cameras, so many at a time, and gives each one end within its limits, whatever the other side
/// does. No redirection is followed, no cookie kept, no proxy used, and nothing signs on by itself. One for all
/// devices; lives on one thread.
class HttpExchanges : public QObject
{
    Q_OBJECT

public:
    using Done = std::function<void(const HttpAnswer &answer)>;

    explicit HttpExchanges(const HttpLimits &limits = {}, QObject *parent = nullptr);
    ~HttpExchanges() override; ///< ends all exchanges without a word

    /// @param owner when it is deleted before the end, the exchange ends and @p done is not called
    /// @param done called once, from the event loop
    void post(const HttpRequest &request, QObject *owner, const Done &done);

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace vms_sdk
