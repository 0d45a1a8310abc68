#pragma once

#include <QJsonObject>
#include <QVector>
#include <QWidget>

#include <memory>

namespace orda_batchCfg {

namespace Ui {
class VideoParamsPanel;
}

/// The editor of one stream's encoding values. Shows the groups of its mask, packed into two columns.
class VideoParamsPanel : public QWidget
{
    Q_OBJECT

public:
    enum StreamType
    {
        MainStream = 0,
        SubStream = 1
    };
    /// Groups of values, the bits of the mask.
    enum Group
    {
        EncodingFormat = 1,
        Resolution = 2,
        FrameRate = 4,
        BitRate = 8,
        AllGroups = 15
    };

    explicit VideoParamsPanel(int streamType, QWidget *parent = nullptr);
    ~VideoParamsPanel() override;

    /// Shows the groups of @p mask; the panel hides itself when there is none.
    void setParamsMask(int mask);
    /// The values of the groups in the mask, by the device's keys: "venctype", "width", "height", "frameRate",
    /// "rcMode", "quality", "bitRate" (kbps). A number that is being typed is taken, and shown as it is taken.
    QJsonObject getParams() const;
    /// The same without touching a number that is being typed: the last whole one counts.
    QJsonObject currentParams() const;
    /// Where a value is edited, and in which group it is.
    struct Editor
    {
        const char *key; ///< Latin-1
        int group;
        QWidget *widget; ///< its accessible name is that of the value, with its stream
    };
    QVector<Editor> editors() const;

signals:
    /// Where the first column's combo box begins, in global pixels; raised when the panel has settled after being shown
    /// for the first time or packed anew.
    void signalAlignmentGlobalPosX(int x);

protected:
    void showEvent(QShowEvent *event) override;

private:
    struct Field
    {
        int group;
        QWidget *widget;
    };

    void fillEditors();
    void packFields();
    void reportAlignmentLater() const;
    void reportAlignment();

    std::unique_ptr<Ui::VideoParamsPanel> m_ui;
    int m_streamType;
    int m_paramsMask = AllGroups;
    QList<Field> m_fieldWidgets;
    bool m_firstShow = true;
};

} // namespace orda_batchCfg
