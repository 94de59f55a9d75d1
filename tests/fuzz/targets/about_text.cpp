// The text about the program: it is printed as far as the board goes.
#include "core/about.h"
#include "fuzz/judged_picture.h"
#include "fuzz/targets/targets.h"
#include "fuzz/text_world.h"

#include <memory>

namespace coinlet::test {
namespace {

class About {
public:
    Outcome Read(File file) {
        Surface& board = world_.main.LabelPic.surface;
        world_.Write("Data/About.inf", file);
        board.Cls();
        const int width = board.PixelWidth(), height = board.PixelHeight();
        PrintAboutText(world_.context);
        if (board.PixelWidth() != width || board.PixelHeight() != height)
            return {true, "a board of another size"};
        return Judged(board.Image(), file.size());
    }

private:
    TextWorld world_;
};

}  // namespace

Reader AboutTextReader() {
    return {"text about the program",
            {TextFile("TITLE\r\n\r\n  A text\xE9\x80 of some lines.\r\nThe end\r\n")},
            [about = std::make_shared<About>()](File file) { return about->Read(file); }};
}

}  // namespace coinlet::test
