#pragma once

#include <orda_worker/Export.h>

#include <QDialog>

QT_BEGIN_NAMESPACE
class QVBoxLayout;
QT_END_NAMESPACE

namespace orda_worker {

/// A text with buttons. Deletes itself when it is closed.
class ORDA_WORKER_EXPORT EventDialog : public QDialog
{
    Q_OBJECT

public:
    EventDialog(const QString &title, const QString &text, const QStringList &buttons, QWidget *parent);

    /// A further paragraph under the text.
    void addText(const QString &text);

Q_SIGNALS:
    /// Once, for the button that was clicked; for the last one when the dialog was closed without.
    void signalAnswered(int button);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QVBoxLayout *m_texts;
    int m_answer;
    bool m_isAnswered = false;
};

} // namespace orda_worker
