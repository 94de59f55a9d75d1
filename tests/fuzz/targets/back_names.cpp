// Names of backs: what is shown for a back that is pressed is its line of the file, or nothing.
#include "fuzz/targets/targets.h"
#include "fuzz/text_world.h"
#include "libraries/back_form.h"

#include <memory>

namespace coinlet::test {
namespace {

constexpr int cellSide = 150, cellsARow = 4, rowsOfPicture = 3;

class Catalogue {
public:
    Catalogue() {
        const Image picture(Bitmap(cellSide * cellsARow, cellSide * rowsOfPicture, ToPixel(white)));
        for (const char* const name : {"app/Data/Back-1.bak", "app/Data/Back-2.bak"})
            if (SavePicture(picture, world_.folder / name)) throw std::runtime_error("no room for a picture");
    }

    Outcome Read(File file) {
        const std::vector<std::string> rows = SlowRows(AsText(file));
        world_.Write("Data/Back-1.txt", file);
        world_.Write("Data/Back-2.txt", file);
        std::string wrong;
        BackForm dialog(world_.context);
        world_.platform.log.clear();
        world_.platform.doings.push_back([&] { wrong = FaultOfDialog(dialog, rows); });
        world_.platform.ShowModal(dialog);
        return {!rows.empty(), wrong};
    }

private:
    std::string FaultOfDialog(BackForm& dialog, const std::vector<std::string>& rows) const {
        std::string wrong = FaultOfRows(dialog.List1, rows);
        if (wrong.empty()) wrong = FaultOfPresses(dialog, rows);
        dialog.Option1[2].SetValue(true);
        if (wrong.empty()) wrong = FaultOfRows(dialog.List1, rows);
        if (wrong.empty()) wrong = FaultOfPresses(dialog, rows);
        dialog.ExportKnop.Click();
        return wrong;
    }

    std::string FaultOfPresses(BackForm& dialog, const std::vector<std::string>& rows) const {
        for (int row = 0; row < rowsOfPicture; ++row) {
            dialog.HScroll1.SetValue(row);
            // The last one is beside the cells.
            for (int cell = 0; cell <= cellsARow; ++cell) {
                const bool isCell = cell < cellsARow;
                constexpr float middle = cellSide / 2.0F;
                dialog.Pic.PointerPressed(1, 0, isCell ? middle + static_cast<float>(cell * cellSide) : 0,
                                          middle);
                const auto place = static_cast<std::size_t>(row) * cellsARow + static_cast<std::size_t>(cell);
                const std::string told = isCell && place < rows.size() ? rows[place] : "";
                if (ToCodePage(world_.session.BackName) != told) return "another name";
                if (ToCodePage(std::string(dialog.Label5.Caption)) != "Name : " + told)
                    return "another name is shown";
            }
        }
        return "";
    }

    TextWorld world_;
};

}  // namespace

Reader BackNamesReader() {
    constexpr std::size_t slow = 20;
    return {
        "names of backs",
        {TextFile("one\r\ntwo\r\n\r\nthree\xE9\r\n"), TextFile("1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n11\n12\n13")},
        [catalogue = std::make_shared<Catalogue>()](File file) { return catalogue->Read(file); },
        slow};
}

}  // namespace coinlet::test
