#pragma once

#include <vms_client_sdk/onvif/OnvifFamily.h>

#include <QJsonObject>
#include <QObject>

#include <memory>

namespace vms_sdk {

/// One request of a task, carried out at one camera: a read asks for what the family's keys need; a write asks for it
/// anew, sets what differs, one configuration after the other, and stops at the first that is refused. Lives in the
/// network thread; finished() is its last act, and its owner deletes it.
///
/// Answers have the shape of the device protocol: "method", "error" with "errorcode" (0, or an OnvifCode), and
///  - after a read "result": what the device holds, in the family's keys;
///  - after a write "result": the members that were written, as the device holds them now, those included that changed
///    with others, such as the text of a screen text that was deleted; in the shape of a read's result, lists with the
///    entries concerned;
///  - after a write "dropped", where there are any: names of members that the device has no counterpart for;
///  - in "error", with a code: "message", a printable line in English that says what the device or the network said;
///  - in "error", "unanswered" where a write has left and nobody knows whether the device took it: the members that
///    it would have changed, in the shape of "result".
class OnvifRequest : public QObject
{
    Q_OBJECT

public:
    /// @param calls of the camera; must outlive this
    /// @param request as a task sends it: "method" and, depending on the method, "param"
    OnvifRequest(CameraCalls &calls, const QJsonObject &request, QObject *parent = nullptr);
    ~OnvifRequest() override;

    /// Whether a request's text asks for a change.
    static bool isWrite(const QString &text);

    void start(); ///< to be called once; may finish at once
    /// Nothing more is sent, and it finishes at once with what it has.
    void endNow(const QString &why);

signals:
    void finished(const QJsonObject &answer); ///< once

private:
    void readOn();
    void takeRead(size_t place, const CallResult &result);
    void beginWriting();
    void writeOn();
    void takeWritten(const CallResult &result);
    bool hasFailed(const XmlElement &operation, const CallResult &result, bool isWrite);
    void fail(int code, const QString &message, bool isUnanswered = false);
    void finish(const QJsonObject &error, const QJsonObject &held);

    CameraCalls &m_calls;
    const QString m_method;
    const QJsonObject m_param;
    bool m_isWrite = false;
    bool m_isFinished = false;
    std::unique_ptr<OnvifFamily> m_family;
    std::vector<OnvifOperation> m_reads; // side by side, at the moment
    std::vector<XmlElement> m_answers; // to these
    size_t m_unanswered = 0; // of them
    QJsonObject m_before; // what the device held before the first write
    OnvifPlan m_plan;
    size_t m_written = 0; // of its writes
    bool m_isWriting = false; // one is under way, until the end
};

} // namespace vms_sdk
