#pragma once

#include <QStackedWidget>

namespace orda_batchCfg {

struct FamilyEntry;

/// The pages of all families that the form offers, in the order of Families::all().
class FamilyPages : public QStackedWidget
{
    Q_OBJECT

public:
    explicit FamilyPages(QWidget *parent = nullptr);
};

/// A new page of the family, under its object name, without a parent.
QWidget *createFamilyPage(const FamilyEntry &entry);

} // namespace orda_batchCfg
