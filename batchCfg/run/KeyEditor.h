#pragma once

#include <QJsonValue>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace orda_batchCfg {

struct CfgFamily;

/// Gives an editor what its key says: a combo box gets the choices in the language of the application, a slider or a
/// spin box gets the range, and each of these the initial value; a line edit for a text gets the greatest length. An
/// orda_base::ComboBox gets the values as item data, except where the values themselves are shown.
/// @param editor any other widget, or null, is left as it is
/// @param key one of the family's
void fillEditor(QWidget *editor, const CfgFamily &family, const char *key);

/// The value of the key as it stands in an editor that fillEditor() was called for; undefined when nothing is chosen.
QJsonValue editedValue(const QWidget *editor, const CfgFamily &family, const char *key);

} // namespace orda_batchCfg
