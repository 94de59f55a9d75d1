// Info texts of designs: the rows are the file's lines behind its heading, and come back when they are
// stored.
#include "store/info_text.h"

#include "fuzz/targets/targets.h"
#include "fuzz/text_world.h"

#include <memory>

namespace coinlet::test {
namespace {

/// What stands behind the heading: two items, each of which ends at a comma or with its line.
std::string_view WithoutHeading(std::string_view text) {
    for (int item = 0; item < 2; ++item) {
        while (!text.empty() && text[0] != ',' && text[0] != '\r' && text[0] != '\n')
            text.remove_prefix(1);
        text.remove_prefix(text.starts_with("\r\n") ? 2 : std::min<std::size_t>(1, text.size()));
    }
    return text;
}

class InfoTextOfDesign {
public:
    Outcome Read(File file) {
        world_.Write("Ontwerpen/design.txt", file);
        ReadBack("design");
        std::string wrong = FaultOfRows(world_.main.List2, SlowRows(WithoutHeading(AsText(file))));
        const bool isRead = world_.main.List2.ListCount() > 0;
        if (wrong.empty()) wrong = FaultOfCopy();
        if (wrong.empty()) wrong = FaultOfNoDesign();
        return {isRead, wrong};
    }

private:
    void ReadBack(const std::string& name) {
        ReadDesignInfoText(world_.context, world_.folder / "app/Ontwerpen" / (name + ".pat"));
    }

    std::string FaultOfCopy() {
        const std::vector<std::string> rows = world_.Rows();
        fs::remove(world_.folder / "app/Ontwerpen/copy.txt");
        if (WriteDesignInfoText(world_.context, "copy")) return "it can't be written";
        ReadBack("copy");
        return world_.Rows() == rows ? "" : "written and read again, it has other rows";
    }

    std::string FaultOfNoDesign() {
        if (!WriteDesignInfoText(world_.context, "a/b")) return "it is written under a name of no design";
        ReadBack("missing");
        return world_.main.List2.ListCount() == 0 ? "" : "a design without one has rows";
    }

    TextWorld world_;
};

}  // namespace

Reader InfoTextReader() {
    constexpr std::size_t slow = 100;  // What is written is flushed to the disk, which takes its time.
    return {
        "info text",
        {TextFile(
             "Ivo Kestrell Software 2014\r\n--------------------------\r\nFirst line.\r\n\r\nLast \xE9\r\n"),
         TextFile("a,b,c\n d \re")},
        [text = std::make_shared<InfoTextOfDesign>()](File file) { return text->Read(file); },
        slow};
}

}  // namespace coinlet::test
