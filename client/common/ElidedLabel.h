#pragma once

#include <QLabel>

namespace orda_client {

/// One line of plain text that is never wider than its place: what does not fit is cut off, and is in the tool tip. Its
/// height is there while it is empty, too, so that nothing beside it moves.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(const QString &objectName, QWidget *parent = nullptr);

    /// @param text may have texts of devices; what cannot be shown in it is marked. Its accessible name is the caller's
    /// affair: a text that changes often must not be told each time.
    void setWholeText(const QString &text);
    QString wholeText() const { return m_whole; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void elide();

    QString m_whole;
};

} // namespace orda_client
