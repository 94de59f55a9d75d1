#pragma once

class QLineEdit;

namespace coinlet {

/// Has a field take of whatever is put into it, by keys, a paste, a drop or an input method, what stands
/// before the first line break; what stands around it stays.
void KeepToOneLine(QLineEdit& field);

}  // namespace coinlet
