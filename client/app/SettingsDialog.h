#pragma once

#include <QDialog>

QT_BEGIN_NAMESPACE
class QCheckBox;
class QComboBox;
class QSpinBox;
QT_END_NAMESPACE

namespace orda_journal {
struct HistoryOptions;
}

namespace orda_client {

class ClientSettings;

/// What the user may set; kept when it is accepted. Deletes itself when it is closed.
class SettingsDialog : public QDialog
{
    Q_OBJECT

public:
    /// @param history shown, not changed
    SettingsDialog(ClientSettings *settings, const orda_journal::HistoryOptions &history, QWidget *parent);

    void accept() override;

private:
    QWidget *buildWindow();
    QWidget *buildRuns();
    QWidget *buildHistory(const orda_journal::HistoryOptions &history);
    QWidget *buildButtons();

    ClientSettings *m_settings;
    QComboBox *m_language;
    QComboBox *m_theme;
    QSpinBox *m_askAbove;
    QCheckBox *m_halts;
    QSpinBox *m_haltShare;
};

} // namespace orda_client
