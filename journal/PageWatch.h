#pragma once

#include <QObject>
#include <QPointer>

namespace orda_journal {

class JournalTransport;

/// Brings the runs of the form's pages into the history: a page announces its run by its dynamic property "run", which
/// this watches. A run that cannot begin now is declined by the page's property "runRefused". GUI thread.
class PageWatch : public QObject
{
    Q_OBJECT

public:
    explicit PageWatch(JournalTransport *journal, QObject *parent = nullptr);
    /// Ends the record of a run that is under way.
    ~PageWatch() override;

    /// The runs of this page from now on.
    void watch(QObject *page);

signals:
    /// A page's run was declined. @param why for the user: the page itself says nothing
    void signalDeclined(const QString &why);

private:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void runChanged(QObject *page);
    void endRun();

    QPointer<JournalTransport> m_journal; // the SDK owns it
    QObject *m_runningPage = nullptr; // only compared
};

} // namespace orda_journal
