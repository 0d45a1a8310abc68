#pragma once

#include <QJsonObject>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QComboBox;
class QPushButton;
QT_END_NAMESPACE

namespace orda_client {

class ClientSettings;

/// Where the standard comes from that devices are compared with, and what is done with it: kept as a profile,
/// forgotten, loaded into the page.
class StandardBar : public QWidget
{
    Q_OBJECT

public:
    enum Source
    {
        Page,
        MostFrequent,
        Model, ///< one of the devices
        Profile
    };

    explicit StandardBar(ClientSettings *settings, QWidget *parent = nullptr);

    /// Offers what there is for a family, and chooses its page. @param family CfgFamily::name
    void setFamily(const QString &family);
    /// Offers a device in place of the one before, and chooses it.
    void setModel(const QString &devId, const QString &shownName);

    /// Offers none any more, and chooses the page when one was chosen.
    void forgetModel();

    Source source() const;
    QString modelId() const { return m_modelId; }
    /// Of the profile that is chosen; empty without one.
    QJsonObject profileValues() const;

    /// @param values of the standard as it is now: what is kept and loaded; empty: there is nothing to keep
    /// @param canBeLoaded the page can be changed now
    /// @param canTakeModel a device is chosen in the table that was read
    void setState(const QJsonObject &values, bool canBeLoaded, bool canTakeModel);

signals:
    void signalChosen(); ///< by the user
    void signalTakeModel();
    void signalLoad(const QJsonObject &values);
    void signalSaved(const QString &name);

private:
    QString profile() const;
    void fill(Source chosen, const QString &profile = {});
    void askForName();
    void askToForget();

    ClientSettings *m_settings;
    QString m_family;
    QString m_modelId, m_modelName;
    QJsonObject m_values;
    QComboBox *m_sources;
    QPushButton *m_takeModel;
    QPushButton *m_save;
    QPushButton *m_load;
    QPushButton *m_forget;
};

} // namespace orda_client
