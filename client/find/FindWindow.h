#pragma once

#include "client/common/ToolWindow.h"

#include <vms_client_sdk/onvif/OnvifDiscovery.h>

#include <QTimer>
#include <QVector>

QT_BEGIN_NAMESPACE
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
QT_END_NAMESPACE

namespace orda_client {

class ClientSession;
class FoundModel;
class Notice;
class SearchedTable;

/// Searches the network for ONVIF cameras when its button is pressed, never before; lists what answers as it comes. The
/// ticked ones go into the inventory with one account, after a question.
class FindWindow : public ToolWindow
{
    Q_OBJECT

public:
    /// @param session and settings must outlive this window
    FindWindow(ClientSession *session, ClientSettings *settings, QWidget *parent = nullptr);

signals:
    /// These are wanted in the inventory. Their ids are those of no device that is there.
    void signalAdd(const QList<vms_sdk::DevInfo> &devices);

protected:
    /// Space ticks the selected rows, or unticks them when all are ticked, as in the form's list.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildTable();
    QWidget *buildAccount();
    QWidget *buildButtons();
    QLineEdit *addField(QWidget *row, const QString &caption, const char *name);
    void follow();

    void startOrStop();
    void takePending();
    void showEnd();
    void takeInventory();
    void updateTexts();
    QVector<int> shownRows() const;
    QVector<int> tickedRows() const; ///< of those that are shown
    void tickNew();
    void tickSelected();
    void askToAdd();
    QStringList atSameAddress(const QVector<int> &rows) const;
    QStringList linesAbout(const QVector<int> &rows) const;
    QList<vms_sdk::DevInfo> devicesOf(const QVector<int> &rows) const;

    ClientSession *m_session;
    vms_sdk::OnvifDiscovery *m_discovery;
    FoundModel *m_model;
    bool m_isSearching = false;
    bool m_hasSearched = false;
    QVector<vms_sdk::FoundCamera> m_pending; // answers that are not in the table yet
    QTimer m_takePending;

    SearchedTable *m_table = nullptr;
    QComboBox *m_interface = nullptr;
    QPushButton *m_search = nullptr;
    QLabel *m_counts = nullptr;
    QLabel *m_certificates = nullptr;
    Notice *m_notice = nullptr;
    QLineEdit *m_userName = nullptr;
    QLineEdit *m_password = nullptr;
    QLineEdit *m_group = nullptr;
    QPushButton *m_add = nullptr;
    QPushButton *m_tickNew = nullptr;
};

} // namespace orda_client
