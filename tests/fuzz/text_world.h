#pragma once

#include "base/text.h"
#include "controls/list_box.h"
#include "fuzz/texts.h"
#include "support/world.h"

namespace coinlet::test {

/// The program behind its interfaces, with an application folder in which one file is a foreign one.
class TextWorld : public World {
public:
    TextWorld() { fs::create_directories(folder / "app/Data"); }

    /// Some disks are in no hurry with a new file, but wait for one that is written over.
    void Write(const fs::path& name, File file) const {
        fs::remove(folder / "app" / name);
        folder.Write("app" / name, AsText(file));
    }
};

/// What is wrong with a list that was filled from the rows of a file in the program's code page.
inline std::string FaultOfRows(const ListBox& list, const std::vector<std::string>& rows) {
    if (list.ListCount() != static_cast<int>(rows.size())) return "another number of rows";
    for (int i = 0; i < list.ListCount(); ++i)
        if (ToCodePage(list.List(i)) != rows[static_cast<std::size_t>(i)]) return "a row is another one";
    return "";
}

}  // namespace coinlet::test
