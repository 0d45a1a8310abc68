#pragma once

#include <orda_base/Export.h>
#include <orda_base/NavigationActionInfo.h>

#include <QList>
#include <QMap>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QVBoxLayout;
QT_END_NAMESPACE

namespace orda_base {

class NavigationButton;

/// A column of bars with icons. A bar either is an entry itself or opens and closes its entries. Every bar and entry is
/// a QAbstractButton whose object name is its key; the Tab key goes through them from top to bottom. GUI thread only.
class ORDA_BASE_EXPORT NavigationWidget : public QWidget
{
    Q_OBJECT

public:
    explicit NavigationWidget(QWidget *parent = nullptr);

    /// Adds a bar at the bottom, its entries shown.
    /// @param normalIcon, highlightIcon paths of images; the second is for a bar that is current or has the current
    /// entry
    /// @param subActions the entries; none: the bar itself is one
    /// @param owner for whom the navigation is; what the bar raises ends when it is deleted
    void addNavigationBar(const QString &normalIcon, const QString &highlightIcon, const NavigationActionInfo &info,
                          const QList<NavigationActionInfo> &subActions, QWidget *owner);
    /// Makes the entry current as a click would, but raises no signal. @return the key; empty when there is no such
    /// entry
    QString setDefaultAction(const QString &key);
    /// The current entry's key; empty before there is one.
    QString currentKey() const { return m_currentKey; }

Q_SIGNALS:
    /// A bar or an entry was clicked. A bar that only opens its entries says so too, without becoming current.
    void signalCurAction(const QString &key);

private:
    struct Entry
    {
        NavigationButton *button;
        NavigationButton *bar; ///< the one that it stands under, or itself
    };

    NavigationButton *addButton(int kind, const NavigationActionInfo &info);
    void addEntry(const QString &key, const Entry &entry, QWidget *owner);
    void setUnfolded(NavigationButton *bar, bool unfolded);
    void makeCurrent(const QString &key);

    QVBoxLayout *m_layout;
    NavigationButton *m_lowest = nullptr;
    QMap<QString, Entry> m_entryByKey;
    QString m_currentKey;
};

} // namespace orda_base
