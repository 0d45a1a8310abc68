#pragma once

#include <QJsonObject>
#include <QList>
#include <QVector>
#include <QWidget>

#include <functional>
#include <memory>

QT_BEGIN_NAMESPACE
class QAbstractButton;
class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;
QT_END_NAMESPACE

namespace orda_batchCfg {

class CfgResultsRecorder;
class ParamsCfgTask;

/// What all parameter pages share: selection of parameters, and the run over the ticked devices with its overlay, its
/// counting, its record and its summary. A family's page states its widgets, its table of parameters and its task.
///
/// The page's form has the check box "allParams" and the buttons "okBt" and "reportBt".
///
/// What the module itself does not show is in dynamic properties for clients that do: "recordInUse", "recordError" and
/// "recordEntryEnds" (docs/integration.md).
class ParamsCfgPage : public QWidget
{
    Q_OBJECT

public:
    /// Ends a run of this page that is under way.
    ~ParamsCfgPage() override;

public slots:
    /// Brings the "All" box, the buttons and the value panels in line with the ticked parameters.
    void slotSelectedParamsChanged();

protected:
    /// Reads an editor when a run starts; undefined leaves the key out.
    using Value = std::function<QJsonValue()>;

    /// One row of a family's table: while @c flags() has one of the bits of @c bit, the panels are shown and the key is
    /// sent.
    struct Param
    {
        int bit;
        QCheckBox *box; ///< sets the bits when ticked; null: the row follows the bits of others
        QList<QWidget *> panels;
        const char *key; ///< of the values object, Latin-1
        Value value;
    };

    /// @param title the summary's
    /// @param recordFile file name of the page's record, without a directory
    ParamsCfgPage(const QString &title, const QString &recordFile, QWidget *parent);

    /// The table of parameters. Called once, after the form has been built.
    void setParams(const QVector<Param> &params);
    /// A selection besides that of the parameters, looked at before it: an "All" box with its boxes, and the alert when
    /// none is ticked. Called before setParams().
    void addSelection(QCheckBox *all, const QList<QCheckBox *> &boxes, const QString &noneAlert);

    /// The usual values: a switch as a boolean or as the number 1 or 0, a text as typed, a combo box's item data.
    static Value switchState(const QAbstractButton *button);
    static Value switchNumber(const QAbstractButton *button);
    static Value editedText(const QLineEdit *edit);
    static Value itemData(const QComboBox *combo);

    /// Brings the "All" box of a selection in line with its boxes, then refreshes.
    void updateSelection(const QCheckBox *all);

    /// Bits of the ticked parameters; equal to the boxes at all times.
    int flags() const { return m_flags; }

    /// Shows what the selection asks for; called after every change of it. An override calls this one first.
    virtual void refresh();
    /// The values of a run, from the editors as they stand.
    virtual QJsonObject values() const;
    /// Brings the editors' captions to one width, so that the editors stand in line whatever the language and the font.
    void showEvent(QShowEvent *event) override;
    /// Return presses the button that has the focus, and nothing else.
    void keyPressEvent(QKeyEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    /// A task for one device; the page owns it. It has sent its first request when it is returned.
    virtual ParamsCfgTask *createTask(const QString &devId, const QJsonObject &values) = 0;

private:
    struct Run;
    struct Selection
    {
        QCheckBox *all;
        QList<QCheckBox *> boxes;
        QString noneAlert;
    };

    void updateFlags();
    bool isSelectionComplete(QString *alertText) const;
    void configure();
    bool takeRecord();
    void startTasks(const std::shared_ptr<Run> &run, const QStringList &devIds);
    void handleResult(Run &run, const QString &devId, const QString &msg, int errorCode);
    static void tellProgress(const Run &run);
    void finishRun(const Run &run);
    void abandonRun();
    void openReport();

    QString m_title;
    CfgResultsRecorder *m_recorder;
    QPushButton *m_okBt = nullptr;
    QPushButton *m_reportBt = nullptr;
    QList<Selection> m_selections; // the parameters' is the last
    QVector<Param> m_params;
    int m_flags = 0;
    bool m_isTickingAll = false; // an "All" box sets its boxes, which do not set it meanwhile
    QString m_confirmUuid;
    std::weak_ptr<Run> m_run; // lives as long as configure() waits
};

} // namespace orda_batchCfg
