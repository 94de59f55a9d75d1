// The PMS colour table: its lines fall into their fields, and a colour of the table is found by its numbers.
#include "colour/pms_table.h"

#include "base/numbers.h"
#include "fuzz/targets/targets.h"
#include "fuzz/text_world.h"

#include <limits>
#include <memory>

namespace coinlet::test {
namespace {

std::vector<std::string> SlowFields(std::string_view line) {
    std::vector<std::string> fields{""};
    for (const char c : line) {
        if (c == ',') {
            fields.emplace_back();
        } else {
            fields.back() += c;
        }
    }
    return fields;
}

std::string FaultOfFields(std::string_view line) {
    const std::vector<std::string> told = SlowFields(line);
    const auto fields = SplitPmsLine(line);
    if (PmsCodeOf(line) != told.front()) return "another code";
    if (fields.has_value() != (told.size() >= pmsFieldCount)) return "fields where there are none, or none";
    for (std::size_t i = 0; fields && i < pmsFieldCount; ++i)
        if ((*fields)[i] != told[i]) return "another field";
    return "";
}

/// Its own line, or one before it of the same colour, is found by the colour of a line.
std::string FaultOfSearch(const ListBox& table, int row) {
    const auto fields = SplitPmsLine(table.List(row));
    if (!fields) return "";
    const std::string red((*fields)[pmsRed]), green((*fields)[pmsGreen]);
    const std::int16_t blue = PmsChannel((*fields)[pmsBlue]);
    const int found = FindPmsColour(table, red, green, blue);
    const std::string name = PmsColourName(table, red, green, blue);
    const double told = Val((*fields)[pmsBlue]);
    const bool isWhole = told == blue;
    if (isWhole && (found < 0 || found > row)) return "a colour isn't found";
    if (found < 0)
        return name == "RGB " + red + "," + green + "," + std::to_string(blue) ? "" : "another name";
    return name == "PMS " + SlowFields(table.List(found)).front() ? "" : "another name of a colour";
}

std::string FaultOfChannel(std::string_view text) {
    using Limits = std::numeric_limits<std::int16_t>;
    const double told = Val(text);
    const int channel = PmsChannel(text);
    if (told >= Limits::max()) return channel == Limits::max() ? "" : "a channel isn't cut to the highest";
    if (told <= Limits::min()) return channel == Limits::min() ? "" : "a channel isn't cut to the lowest";
    return std::abs(told - channel) <= 0.5 ? "" : "a channel is another number";
}

class Table {
public:
    Outcome Read(File file) {
        world_.Write("Data/PMS-Colors.txt", file);
        LoadPmsColors(world_.context);
        const ListBox& table = world_.main.PMSlist;
        std::string wrong = FaultOfRows(table, SlowRows(AsText(file)));
        constexpr int most = 8;  // Looking for a colour goes through the whole table.
        for (int row = 0; row < std::min(most, table.ListCount()) && wrong.empty(); ++row) {
            const std::string& line = table.List(row);
            wrong = FaultOfFields(line);
            if (wrong.empty()) wrong = FaultOfChannel(line);
            if (wrong.empty()) wrong = FaultOfSearch(table, row);
        }
        return {table.ListCount() > 0, wrong};
    }

private:
    TextWorld world_;
};

}  // namespace

Reader PmsTableReader() {
    return {"PMS table",
            {TextFile("100,0,0,51,0,255,255,125,FFFF7D\r\n101,0,0,79,0,255,255, 54,FFFF36\r\n"),
             TextFile("100,1,2,3,4,5,6,6.5,a\n101,1,2,3,4,5,6,70000,b,c\n102,,,,,,,,\n103,1,2\n")},
            [table = std::make_shared<Table>()](File file) { return table->Read(file); }};
}

}  // namespace coinlet::test
