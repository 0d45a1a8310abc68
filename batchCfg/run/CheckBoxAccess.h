#pragma once

namespace orda_batchCfg {

/// Makes assistive technology click the check boxes of the module when it toggles them. Qt only sets them then, without
/// the signal clicked(), by which pages and lists tell the operator's choice from their own. To be called before the
/// first of them is made; may be called more than once.
void installCheckBoxAccess();

} // namespace orda_batchCfg
