#pragma once

#include "run/CfgFamily.h"

#include <QCoreApplication>
#include <QVector>

namespace orda_batchCfg {

/// A bar of the form's navigation. Its icons are ":/batchCfg_images/images/<key>_n.png" and "…_h.png".
struct NavigationBar
{
    const char *key;
    const char *title; ///< for Families::tr()
};

/// A family and its place in the form.
struct FamilyEntry
{
    const CfgFamily &family;
    const char *key; ///< of its entry in the navigation; null: the form does not offer the family
    const char *title; ///< of its entry, for Families::tr()
    const NavigationBar *bar; ///< that the entry is part of; null: it is a bar of its own
    const char *pageName; ///< object name of its page
};

/// All families there are: the one list that pages, record files, tests and other programs are made from.
class Families
{
    Q_DECLARE_TR_FUNCTIONS(orda_batchCfg::Families)

public:
    /// Those that the form offers come in the order of its navigation and of its pages; entries of one bar stand
    /// together.
    static const QVector<FamilyEntry> &all();
    /// The family with this CfgFamily::name; null when there is none.
    static const CfgFamily *find(const QString &name);
};

} // namespace orda_batchCfg
