#pragma once

#include <QtCore/qnamespace.h>

class QKeyEvent;

namespace coinlet {

class EventGate;
class Form;

/// The code under which the program knows a key, or 0 for one that it doesn't know: letters and digits are
/// those of their capitals, function keys 112 to 123, the digits of the number pad those of the row.
int KeyCode(int qtKey);

/// 1 shift, 2 control, 4 alt, added.
int ShiftState(Qt::KeyboardModifiers modifiers);

/// Hands a key that went down to the form: down, and the character that it gives. The tab key moves the
/// focus instead. True if the key is used up by that, so that no field may take it for its own editing.
bool PressKey(Form& form, EventGate& gate, const QKeyEvent& event);
void ReleaseKey(Form& form, EventGate& gate, const QKeyEvent& event);

}  // namespace coinlet
