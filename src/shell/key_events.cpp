#include "shell/key_events.h"

#include "controls/form.h"
#include "shell/event_gate.h"

#include <QKeyEvent>

#include <algorithm>
#include <iterator>

namespace coinlet {

namespace {

struct NamedKey {
    int qtKey;
    int code;
};

// A code without a name is no key that the program itself knows.
constexpr NamedKey namedKeys[] = {
    {Qt::Key_Escape, keyEscape}, {Qt::Key_Tab, 9},
    {Qt::Key_Backtab, 9},        {Qt::Key_Backspace, keyBackspace},
    {Qt::Key_Return, keyReturn}, {Qt::Key_Enter, keyReturn},
    {Qt::Key_Insert, 45},        {Qt::Key_Delete, 46},
    {Qt::Key_Pause, 19},         {Qt::Key_Print, 44},
    {Qt::Key_Home, keyHome},     {Qt::Key_End, keyEnd},
    {Qt::Key_Left, keyLeft},     {Qt::Key_Up, keyUp},
    {Qt::Key_Right, keyRight},   {Qt::Key_Down, keyDown},
    {Qt::Key_PageUp, keyPageUp}, {Qt::Key_PageDown, keyPageDown},
    {Qt::Key_Shift, keyShift},   {Qt::Key_Control, 17},
    {Qt::Key_Alt, 18},           {Qt::Key_CapsLock, 20},
};

constexpr int firstFunctionCode = 112;

}  // namespace

int KeyCode(int qtKey) {
    if (qtKey >= Qt::Key_Space && qtKey <= Qt::Key_Z) {
        const bool letterOrDigit = qtKey == Qt::Key_Space || (qtKey >= Qt::Key_0 && qtKey <= Qt::Key_9) ||
                                   (qtKey >= Qt::Key_A && qtKey <= Qt::Key_Z);
        return letterOrDigit ? qtKey : 0;
    }
    if (qtKey >= Qt::Key_F1 && qtKey <= Qt::Key_F12) return firstFunctionCode + qtKey - Qt::Key_F1;
    const auto* found = std::find_if(std::begin(namedKeys), std::end(namedKeys),
                                     [qtKey](const NamedKey& key) { return key.qtKey == qtKey; });
    return found == std::end(namedKeys) ? 0 : found->code;
}

int ShiftState(Qt::KeyboardModifiers modifiers) {
    return (modifiers.testFlag(Qt::ShiftModifier) ? shiftHeld : 0) +
           (modifiers.testFlag(Qt::ControlModifier) ? controlHeld : 0) +
           (modifiers.testFlag(Qt::AltModifier) ? altHeld : 0);
}

bool PressKey(Form& form, EventGate& gate, const QKeyEvent& event) {
    if (event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab) {
        const bool backward = event.key() == Qt::Key_Backtab || event.modifiers().testFlag(Qt::ShiftModifier);
        gate.Enter([&] { form.MoveFocusByTab(backward); });
        return true;
    }
    const int code = KeyCode(event.key());
    const int shift = ShiftState(event.modifiers());
    const QString text = event.text();
    gate.Enter([&] {
        if (code != 0) form.KeyDown(nullptr, code, shift);
        // With Ctrl or Alt a key is a command, and no letter.
        const bool types = IsPlainKey(shift) && !event.modifiers().testFlag(Qt::MetaModifier);
        if (form.Loaded() && types && !text.isEmpty())
            form.KeyTyped(nullptr, static_cast<int>(text.toUcs4().constFirst()));
    });
    return code == keyEscape || !form.Loaded();
}

void ReleaseKey(Form& form, EventGate& gate, const QKeyEvent& event) {
    const int code = KeyCode(event.key());
    if (code == 0 || event.isAutoRepeat()) return;
    gate.Enter([&] { form.KeyUp(nullptr, code, ShiftState(event.modifiers())); });
}

}  // namespace coinlet
