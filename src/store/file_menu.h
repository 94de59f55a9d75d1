#pragma once

#include <string_view>

namespace coinlet {

struct Context;

/// The entries of the menus that lead to saving, to export, to printing and to the info text of the design.
class FileMenu {
public:
    explicit FileMenu(Context& context);

private:
    void ShowSaveForm(std::string_view mode);
    void FilePrint_Click();
    void BewerkenInformation_Click();

    Context& context_;
};

}  // namespace coinlet
