#pragma once

#include <vms_client_sdk/onvif/OnvifFamily.h>
#include <vms_client_sdk/onvif/ScreenTextForms.h>

#include <map>

namespace vms_sdk {

/// The texts on the screen of the first video source: the first date with time ("timeFormat", "timePos") and the first
/// plain text ("channelName", "position"); "bShowOSD" is whether there is one of both.
///
/// Beside these a member of its own has all else that is in a text ("timeStyle", "nameStyle"), so that an undo makes a
/// deleted one as it was.
///
/// The keys of a text are reported when it is there or the camera's options allow to make it; of one that is not there
/// the position is "hide" and the rest "".
///
/// A write is about the members that differ from what the camera holds; all others only repeat it. Where members
/// contradict each other:
///  - bShowOSD changed to false deletes both texts, whatever else is asked;
///  - a position changed to "hide" deletes its text, whatever else is asked of it;
///  - another position, or content, asked of a text that is not there makes it, but not while no text is shown: then
///    bShowOSD must be asked too, or the write is refused;
///  - bShowOSD changed to true makes the texts that are asked for; where no position is among what is asked, the date
///    in any case. So a write of all members that a deletion has changed makes what was there before and nothing else.
/// A text is not deleted while there is another of its kind: the next read would take that one for it, and what was
/// deleted could not be brought back.
class ScreenTexts final : public OnvifFamily
{
public:
    explicit ScreenTexts(OnvifService media);

    std::vector<OnvifOperation> nextReads() override;
    void takeAnswers(std::vector<XmlElement> answers) override;
    QJsonObject held() const override;
    OnvifPlan plan(const QJsonObject &param) override;

private:
    enum class Fate
    {
        Stays,
        Changes,
        Goes,
        Comes
    };
    /// What is asked, of the members that differ.
    struct Asked
    {
        QJsonObject members;
        bool isOn = false; // bShowOSD changed to true
        bool isOff = false;
        bool isPlaced = false; // a text that is not there gets a position

        bool has(const char *key) const { return members.contains(QLatin1String(key)); }
        QString of(const char *key) const { return members.value(QLatin1String(key)).toString(); }
    };

    const XmlElement *find(const ScreenTextKind &kind) const;
    int countOf(const ScreenTextKind &kind) const;
    bool canMake(const ScreenTextKind &kind) const;
    bool isFull(int count, const char *attribute) const;
    bool isShown() const;
    bool isStyleOfPresent(const QString &key) const;
    QString readAsked(const QJsonObject &settings, QStringList *dropped, Asked *asked) const;
    Fate fateOf(const ScreenTextKind &kind, const Asked &asked) const;
    QString refused(const Asked &asked, const std::map<const ScreenTextKind *, Fate> &fates) const;
    OnvifWrite deletion(const XmlElement &osd);
    QString change(const ScreenTextKind &kind, const Asked &asked, OnvifPlan *plan);
    QString creation(const ScreenTextKind &kind, const Asked &asked, OnvifPlan *plan);

    const OnvifService m_media;
    int m_stage = 0;
    QString m_sourceConfiguration; // its token
    std::vector<XmlElement> m_osds; // of this source, images included; under the name that a write gives them
    XmlElement m_options;
};

} // namespace vms_sdk
