#include "colour/pms_table.h"

#include "base/numbers.h"
#include "base/program_folders.h"
#include "core/context.h"
#include "core/main_form.h"
#include "core/row_file.h"

#include <algorithm>
#include <limits>

namespace coinlet {

namespace {

constexpr std::string_view tableFile = "PMS-Colors.txt";

}  // namespace

void LoadPmsColors(Context& context) {
    ListBox& table = context.main.PMSlist;
    table.Clear();
    AddRowsOfFile(table, context.services.applicationFolder / program_folder::data / tableFile);
}

std::optional<PmsFields> SplitPmsLine(std::string_view line) {
    PmsFields fields;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const std::size_t comma = line.find(',');
        fields[i] = line.substr(0, comma);
        if (comma == std::string_view::npos) {
            if (i + 1 < fields.size()) return {};
            break;
        }
        line.remove_prefix(comma + 1);
    }
    return fields;
}

std::string PmsCodeOf(std::string_view line) {
    return std::string(line.substr(0, line.find(',')));
}

std::int16_t PmsChannel(std::string_view text) {
    using Limits = std::numeric_limits<std::int16_t>;
    return static_cast<std::int16_t>(std::clamp<int>(RoundHalfEven(Val(text)), Limits::min(), Limits::max()));
}

int FindPmsColour(const ListBox& table, std::string_view red, std::string_view green, std::int16_t blue) {
    for (int i = 0; i < table.ListCount(); ++i) {
        const auto fields = SplitPmsLine(table.List(i));
        if (fields && (*fields)[pmsRed] == red && (*fields)[pmsGreen] == green &&
            Val((*fields)[pmsBlue]) == blue)
            return i;
    }
    return -1;
}

std::string PmsColourName(const ListBox& table, const std::string& red, const std::string& green,
                          std::int16_t blue) {
    const int found = FindPmsColour(table, red, green, blue);
    if (found >= 0) return "PMS " + PmsCodeOf(table.List(found));
    return "RGB " + red + "," + green + "," + std::to_string(blue);
}

}  // namespace coinlet
