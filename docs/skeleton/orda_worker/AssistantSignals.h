#pragma once

#include <QObject>
#include <QString>

namespace orda_worker {

/// The operator's answers to dialogs, raised on the user-interface thread.
class AssistantSignals : public QObject
{
    Q_OBJECT

public:
    static AssistantSignals &instance();

signals:
    /// @param uuid the question's @param index the button's; 0 under a page's last summary opens its record
    void signalEventConfirmOperBtClicked(const QString &uuid, int index);
};

} // namespace orda_worker
