#pragma once

#include <QJsonObject>
#include <QList>
#include <QVariantMap>
#include <QVector>
#include <QWidget>

#include <functional>
#include <memory>

QT_BEGIN_NAMESPACE
class QCheckBox;
class QPushButton;
QT_END_NAMESPACE

namespace orda_batchCfg {

class CfgResultsRecorder;
struct CfgFamily;

/// What all parameter pages share: selection of parameters and their values, and how a run over the ticked devices is
/// shown: its overlay, its record and its summary. A family's page states its widgets and its table of parameters.
///
/// The page's form has the check box "allParams" and the buttons "okBt" and "reportBt".
///
/// What the module itself does not show is in properties for clients that do: "current", and the dynamic properties
/// "recordInUse", "recordError" and "recordEntryEnds", and a run that begins in "run", where it can be declined
/// (docs/scripting.md).
class ParamsCfgPage : public QWidget
{
    Q_OBJECT
    /// What Configure would send if it was pressed now, and how the page shows it. There is no signal: it is read anew.
    Q_PROPERTY(QVariantMap current READ current STORED false) // clazy:exclude=qproperty-without-notify

public:
    /// Ends a run of this page that is under way.
    ~ParamsCfgPage() override;

public slots:
    /// Brings the "All" box, the buttons and the value panels in line with the ticked parameters.
    void slotSelectedParamsChanged();

protected:
    /// One row of a page's table: while @c flags() has one of the bits of @c bit, the panels are shown and the key is
    /// sent.
    struct Param
    {
        int bit;
        QCheckBox *box; ///< sets the bits when ticked; null: the row follows the bits of others
        QList<QWidget *> panels;
        const char *key; ///< of the family, Latin-1; null: the page makes the value itself, in values()
        QWidget *editor; ///< of the key's value
        /// Makes the value in place of the editor when a run starts; undefined leaves the key out.
        std::function<QJsonValue()> value = {};
    };

    /// How the page shows one member of a run's values.
    struct ShownMember
    {
        QString name; ///< as CfgExchange::askedBy() calls it, such as "aiGain" and "stream0.bitRate"
        QString title; ///< as the page calls it
        QList<QCheckBox *>
            boxes; ///< all of these are ticked when the member is meant; the parameter's own is the first
        QWidget *editor; ///< of its value; null where no single one is
    };

    ParamsCfgPage(const CfgFamily &family, QWidget *parent);

    /// The table of parameters. Called once, after the form has been built: fills the editors with what their keys say.
    void setParams(const QVector<Param> &params);
    /// A selection besides that of the parameters, looked at before it: an "All" box with its boxes, and the alert when
    /// none is ticked. Called before setParams().
    void addSelection(QCheckBox *all, const QList<QCheckBox *> &boxes, const QString &noneAlert);

    /// Brings the "All" box of a selection in line with its boxes, then refreshes.
    void updateSelection(const QCheckBox *all);

    /// Bits of the ticked parameters; equal to the boxes at all times.
    int flags() const { return m_flags; }

    /// Shows what the selection asks for; called after every change of it. An override calls this one first.
    virtual void refresh();
    /// The values of a run, from the editors as they stand. Changes nothing: it is asked while somebody types, too.
    virtual QJsonObject values() const;
    /// All members that the page can send, in its order.
    virtual QList<ShownMember> shownMembers() const;
    /// Brings the editors' captions to one width, so that the editors stand in line whatever the language and the font.
    void showEvent(QShowEvent *event) override;
    /// Return presses the button that has the focus, and nothing else.
    void keyPressEvent(QKeyEvent *event) override;
    bool focusNextPrevChild(bool next) override;

private:
    struct ShownRun;
    struct Selection
    {
        QCheckBox *all;
        QList<QCheckBox *> boxes;
        QString noneAlert;
    };

    QVariantMap current() const;
    void updateFlags();
    bool isSelectionComplete(QString *alertText) const;
    int taskFlags() const;
    void configure();
    bool takeRecord();
    void startRun(ShownRun &shown, const QJsonObject &runValues, const QStringList &devIds);
    void handleResult(ShownRun &shown, const QString &devId, const QString &msg);
    void finishRun(const ShownRun &shown);
    void abandonRun();
    void openReport();

    const CfgFamily &m_family; // constant, and never deleted
    CfgResultsRecorder *m_recorder;
    QPushButton *m_okBt = nullptr;
    QPushButton *m_reportBt = nullptr;
    QList<Selection> m_selections; // the parameters' is the last
    QVector<Param> m_params;
    int m_flags = 0;
    bool m_isTickingAll = false; // the boxes of a selection are being brought in line with each other
    QString m_confirmUuid;
    std::weak_ptr<ShownRun> m_run; // lives as long as configure() waits
};

} // namespace orda_batchCfg
