#pragma once

#include <run/CfgFamily.h>

#include <QCoreApplication>
#include <QHash>
#include <QJsonValue>
#include <QString>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace orda_client {

/// Members of devices' parameters and their values in an operator's words: those of the form's page. What the page does
/// not show stands as devices have it. A copy that any thread may use.
class ParameterTexts
{
    Q_DECLARE_TR_FUNCTIONS(orda_client::ParameterTexts)

public:
    /// @param form has the family's page, is read in the constructor only; GUI thread
    ParameterTexts(const QWidget *form, const orda_batchCfg::CfgFamily &family);

    /// "Bit Rate" of "bitRate", "HD Stream, Bit Rate" of "stream0.bitRate", "HD Stream, Bit Rate (2)" of
    /// "stream0(2).bitRate".
    QString title(const QString &member) const;
    /// "on" of true, "H.264" of "h264"; "–" of an undefined value.
    QString value(const QString &member, const QJsonValue &value) const;
    /// "Bit Rate: 512 → 1024".
    QString change(const QString &member, const QJsonValue &before, const QJsonValue &after) const;
    /// What values ask for, as "Bit Rate: 1024", in the order of the page; parts of one parameter stand beside each
    /// other.
    QStringList list(const QJsonObject &values) const;

private:
    const orda_batchCfg::CfgKey *keyOf(const QString &member) const;

    const orda_batchCfg::CfgFamily &m_family; // constant, and never deleted
    QStringList m_order; // members of the page
    QHash<QString, QString> m_titles; // by member
};

} // namespace orda_client
