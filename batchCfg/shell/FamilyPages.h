#pragma once

#include <QStackedWidget>

namespace orda_base {
class NavigationWidget;
}

namespace orda_batchCfg {

struct FamilyEntry;

/// The pages of all families that the form offers, in the order of Families::all().
class FamilyPages : public QStackedWidget
{
    Q_OBJECT

public:
    explicit FamilyPages(QWidget *parent = nullptr);
};

/// Adds the bars and entries of all families that the form offers, in the order of Families::all().
/// @param owner that the navigation is given with each bar
void addFamilyBars(orda_base::NavigationWidget *navigation, QWidget *owner);

/// A new page of the family, under its object name, without a parent.
QWidget *createFamilyPage(const FamilyEntry &entry);

} // namespace orda_batchCfg
