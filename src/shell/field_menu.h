#pragma once

class QLineEdit;
class QPlainTextEdit;

namespace coinlet {

class EventGate;

/// Gives a field the toolkit's own menu (take back, cut, copy, paste ...), which lives until the field opens
/// it again or ends. By itself it would end with the next event after it closed, before it has done what was
/// chosen: that changes the text, and handlers of the change serve events.
void KeepMenu(QLineEdit& field, EventGate& gate);
void KeepMenu(QPlainTextEdit& field, EventGate& gate);

}  // namespace coinlet
