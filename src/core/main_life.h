#pragma once

namespace coinlet {

struct Context;

/// The life of the main window and of the design in it: activation, the clock, the cross lines, a new design,
/// undo, leaving by the menu or the window's close box.
class MainLife {
public:
    explicit MainLife(Context& context);

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
