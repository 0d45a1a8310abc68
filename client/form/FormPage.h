#pragma once

#include <run/CfgFamily.h>

#include <QJsonObject>
#include <QPointer>
#include <QString>
#include <QVector>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QAbstractButton;
QT_END_NAMESPACE

namespace orda_client {

/// A page of the module's form as it stands, seen from outside (docs/scripting.md). A moment's picture: to be read anew
/// after each input. GUI thread.
struct FormPage
{
    /// One member of a run's values, as the page shows it.
    struct Member
    {
        QString name; ///< as CfgExchange::askedBy() calls it, such as "stream0.bitRate"
        QString title; ///< as the page calls it
        QVector<QPointer<QAbstractButton>>
            boxes; ///< all ticked when it is meant, its own first; none: goes with others
        QPointer<QWidget> editor; ///< null where no single one has the value

        bool isMeant() const; ///< its boxes are all ticked; of one without boxes false
    };

    QPointer<QWidget> page; ///< null: the form shows none that can be pressed
    const orda_batchCfg::CfgFamily *family = nullptr; ///< null with page
    QJsonObject values; ///< what Configure would send; empty while nothing is ticked to be sent
    QVector<Member> members; ///< all that the page can send, in its order

    /// The page that the form shows. @param form the batch-configuration form, or a window that has it
    static FormPage shown(const QWidget *form);
    /// The page of a family, shown or not. Nothing where the form has none.
    static FormPage of(const QWidget *form, const orda_batchCfg::CfgFamily &family);

    /// How many parameters are ticked.
    int parameters() const;

    /// Shows the page in the form, by its entry in the navigation.
    void open(const QWidget *form) const;
    /// Presses its button Configure. Returns when the run is over; the page may be gone then.
    void press() const;
};

} // namespace orda_client
