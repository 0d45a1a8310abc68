#pragma once

#include "client/form/PressedRun.h"

#include <QDialog>

QT_BEGIN_NAMESPACE
class QPushButton;
class QVBoxLayout;
QT_END_NAMESPACE

namespace orda_client {

/// Asks whether a run that was pressed is meant: how many devices, which values, what looks wrong. Accepted by its
/// button "Configure" alone: Return presses the button that has the focus, which is "Cancel" at first. Shown by open();
/// deletes itself when it is closed. A moment's picture: it does not follow the form.
class PressQuestion : public QDialog
{
    Q_OBJECT

public:
    struct Asked
    {
        PressedRun run; ///< of a family that is known
        QStringList complaints; ///< ValueChecks::of()
        bool isChanged = false; ///< it was asked about already, and is something else now
    };

    /// @param form has the family's page and the list; read here only
    PressQuestion(const QWidget *form, const Asked &asked, QWidget *parent);

signals:
    /// The operator wants to see first what would change; the question is closed.
    void signalPreview();

private:
    void addText(const QString &text, const char *objectName);
    void addValues(const QWidget *form, const PressedRun &run);
    void addButtons();
    QPushButton *makeButton(const QString &text, const char *objectName, const char *style);

    QVBoxLayout *m_layout;
};

} // namespace orda_client
