#pragma once

#include <functional>

namespace coinlet {

struct Context;

/// The life of the main window and of the design in it: activation, the clock, the cross lines, a new design,
/// undo, leaving by the menu or the window's close box.
class MainLife {
public:
    explicit MainLife(Context& context);

    /// Runs before the end of a user who leaves without having been asked. `DesignChanged` alone decides
    /// whether he is, and it knows nothing of a save that failed, say: what isn't stored mustn't be lost.
    std::function<void()> leavesUnasked;

private:
    void Form_Activate();
    void Form_Unload(bool& cancel);
    void Timer1_Timer();
    void FileNew_Click();
    void ViewKruis_Click();

    Context& context_;
};

/// The start of the caption that tells the design's name.
constexpr const char* fileNameCaption = "Filename : ";

}  // namespace coinlet
