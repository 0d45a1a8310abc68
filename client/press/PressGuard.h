#pragma once

#include "client/press/PressQuestion.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <optional>

namespace orda_client {

class ClientSettings;

/// Asks before a run of the form's pages over many devices, or with values that look wrong: it declines the run by the
/// page's property "runRefused" (docs/scripting.md), whichever way Configure was pressed, and a question opens right
/// after that. When the operator confirms it, exactly what was asked about may begin, once. GUI thread.
///
/// Made after everything else that watches the pages' runs: of event filters the last comes first, and nobody must take
/// a declined run for one that begins. Where nobody sits at the window there must be none.
class PressGuard : public QObject
{
    Q_OBJECT

public:
    /// @param form the batch-configuration form, or a window that has it; without it nothing happens any more
    /// @param settings askAbove(); outlives this
    PressGuard(QWidget *form, const ClientSettings *settings, QObject *parent);
    /// Takes an open question away.
    ~PressGuard() override;

    /// The operator has confirmed this run elsewhere: it may begin unasked, when it is the very next one and is pressed
    /// before control returns to the event loop. Anything else that is pressed instead is asked about.
    void allowOnce(const PressedRun &run);

signals:
    /// The operator wants to see what the press would change.
    void signalPreview();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool isFormThere() const;
    void runAnnounced(QObject *page);
    void ask();
    void press(const PressedRun &run);
    void dropQuestion();

    QPointer<QWidget> m_form;
    const ClientSettings *m_settings;
    std::optional<PressedRun> m_allowed;
    std::optional<PressQuestion::Asked> m_toAsk; // was declined just now
    QPointer<PressQuestion> m_question;
};

} // namespace orda_client
