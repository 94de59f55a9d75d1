#pragma once

#include <string_view>

namespace coinlet {

struct Context;

/// The Help menu: documents, web pages, the language, and what the program knows of the screen.
class HelpMenu {
public:
    explicit HelpMenu(Context& context);

private:
    void HelpHelp_Click();
    void HelpTaal_Click(int index);
    void HelpScreen_Click(int index);
    void OpenDocument(std::string_view fileName);

    Context& context_;
};

}  // namespace coinlet
