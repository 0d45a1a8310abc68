#pragma once

#include <orda_base/NavigationActionInfo.h>

#include <QList>
#include <QWidget>

namespace orda_base {

/// The navigation at the left of the form.
class NavigationWidget : public QWidget
{
    Q_OBJECT

public:
    explicit NavigationWidget(QWidget *parent = nullptr);

    /// Adds a bar below the others. Called when the form is made, once for each bar.
    /// @param normalIcon, highlightIcon resource paths of the module's images
    /// @param subActions the bar's entries; none: the bar is an entry itself
    /// @param owner the form
    void addNavigationBar(const QString &normalIcon, const QString &highlightIcon, const NavigationActionInfo &info,
                          const QList<NavigationActionInfo> &subActions, QWidget *owner);
    /// Makes the entry current and raises no signal. Called once, after the bars were added.
    /// @return the key; empty when there is no such entry
    QString setDefaultAction(const QString &key);

signals:
    /// The operator has clicked a bar or an entry. Keys that are no page's are passed over.
    void signalCurAction(const QString &key);
};

} // namespace orda_base
