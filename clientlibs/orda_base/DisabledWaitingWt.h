#pragma once

#include <orda_base/Export.h>

#include <QPointer>
#include <QTimer>
#include <QUuid>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QLabel;
class QShortcut;
QT_END_NAMESPACE

namespace orda_base {

/// Covers a widget while something goes on: shows that it does, reports the progress to assistive technology, and keeps
/// mouse, keys and shortcuts from the widget. The menus of the window still work. Destroyed through
/// DisabledWaitingWtManager, or with its parent. GUI thread only.
class ORDA_BASE_EXPORT DisabledWaitingWt : public QWidget
{
    Q_OBJECT

public:
    /// @param parent is covered completely, also after it was resized
    /// @param description what goes on; updateDescription() changes it
    /// @param text a second line that does not change, such as a hint how long it may take
    /// @param flag true: the covered widget is not darkened
    explicit DisabledWaitingWt(QWidget *parent, const QString &description, const QString &text = {},
                               bool flag = false);
    ~DisabledWaitingWt() override;

    QUuid getUuid() const;
    /// Shown after at most 40 ms: painting each of thousands of updates a second would take all the time there is.
    void updateDescription(const QString &description);
    QString description() const { return m_text; }

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    bool covers(const QWidget *widget) const;
    bool coversShortcut(const QShortcut *shortcut) const;
    void announce();

    QUuid m_uuid;
    bool m_keepsBright;
    QWidget *m_card;
    QString m_text;
    QLabel *m_description;
    QTimer m_showSoon;
    QTimer m_announceSoon;
    QPointer<QWidget> m_focusBefore;
};

} // namespace orda_base
