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

/// A column of bars with icons. A bar either opens a page itself or shows and hides its entries, which open pages.
/// Every bar and entry is a QAbstractButton whose object name is its key. The Tab key visits them from top to bottom.
/// GUI thread only.
class ORDA_BASE_EXPORT NavigationWidget : public QWidget
{
    Q_OBJECT

public:
    explicit NavigationWidget(QWidget *parent = nullptr);

    /// Adds a bar at the bottom and shows its entries.
    /// @param normalIcon, highlightIcon paths of images; the second is shown while the bar or one of its entries is
    /// open
    /// @param subActions the entries; when empty, the bar itself opens a page
    /// @param owner whoever listens to this navigation; clicks are ignored once it is deleted
    void addNavigationBar(const QString &normalIcon, const QString &highlightIcon, const NavigationActionInfo &info,
                          const QList<NavigationActionInfo> &subActions, QWidget *owner);
    /// Highlights the entry as a click would, but raises no signal. @return the key, or an empty text when no entry has
    /// it
    QString setDefaultAction(const QString &key);
    /// The key of the highlighted entry; empty while there is none.
    QString currentKey() const { return m_currentKey; }

Q_SIGNALS:
    /// A bar or an entry was clicked. Also raised for a bar that only shows or hides its entries.
    void signalCurAction(const QString &key);

private:
    struct Entry
    {
        NavigationButton *button;
        NavigationButton *bar; ///< the bar above the entry; the same as button when the bar itself is the entry
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
