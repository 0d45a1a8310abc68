#pragma once

#include <run/CfgFamily.h>

#include <QCoreApplication>
#include <QJsonObject>
#include <QMap>
#include <QStringList>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace orda_client {

struct FormPage;

/// Brings a page of the form to values that were kept: its boxes and its editors, by their public API, as a user would.
/// What the page cannot show is never sent in another form in silence: it is not ticked, and it is named. GUI thread.
class PageLoader
{
    Q_DECLARE_TR_FUNCTIONS(orda_client::PageLoader)

public:
    /// What became of the page. Members are named as by CfgExchange::askedBy().
    struct Loaded
    {
        QString refusal; ///< why the page was left as it is, for the user; empty when it was loaded
        QStringList notSet; ///< members of the values that the page does not send now, or not with their value
        QStringList besides; ///< members that the page sends now and that are not in the values

        bool isWhole() const { return refusal.isEmpty() && notSet.isEmpty() && besides.isEmpty(); }
    };

    /// @param form the batch-configuration form, or a window that has it
    PageLoader(const QWidget *form, const orda_batchCfg::CfgFamily &family);

    /// Ticks the parameters that @p values has and no others, and gives each its value. Nothing is changed during a
    /// run.
    Loaded load(const QJsonObject &values);

private:
    using Members = QMap<QString, QJsonValue>;

    FormPage page() const;
    Members membersOf(const QJsonObject &values) const;
    Members current() const;
    void tickBoxes(const Members &wanted) const;
    void setEditor(QWidget *editor, const Members &wanted) const;
    void untickWrong(const Members &wanted) const;
    void emptyUnwanted(const Members &wanted) const;

    const QWidget *m_form;
    const orda_batchCfg::CfgFamily &m_family; // constant, and never deleted
};

} // namespace orda_client
