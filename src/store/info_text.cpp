#include "store/info_text.h"

#include "base/text.h"
#include "core/context.h"
#include "core/main_form.h"
#include "core/row_file.h"
#include "store/design_files.h"

#include <algorithm>
#include <string>

namespace coinlet {

namespace {

constexpr std::string_view banner = "Ivo Kestrell Software 2014";
constexpr std::string_view rule = "--------------------------";
constexpr int headerItems = 2;
constexpr std::string_view lineEnd = "\r\n";

/// `text` behind its first item, which ends at a comma or with its line.
std::string_view AfterItem(std::string_view text) {
    const std::size_t end = text.find_first_of(",\r\n");
    if (end == std::string_view::npos) return {};
    const bool isPair = text.substr(end, lineEnd.size()) == lineEnd;
    return text.substr(end + (isPair ? lineEnd.size() : 1));
}

}  // namespace

Bytes InfoTextFile(const ListBox& rows) {
    std::string text;
    const auto addLine = [&](std::string_view line) { text.append(line).append(lineEnd); };
    addLine(banner);
    addLine(rule);
    for (int i = 0; i < rows.ListCount(); ++i)
        addLine(rows.List(i));
    const std::string page = ToCodePage(text);
    const auto bytes = AsBytes(page);
    return {bytes.begin(), bytes.end()};
}

std::error_code WriteDesignInfoText(const Context& context, std::string_view name, FileCalls& calls) {
    const auto picture = DesignPicture(context.services.applicationFolder, name);
    if (!picture) return std::make_error_code(std::errc::invalid_argument);
    return ReplaceFile(InfoTextPath(*picture), InfoTextFile(context.main.List2), calls);
}

void ReadDesignInfoText(const Context& context, const fs::path& picture, const ReadCall& read) {
    ListBox& rows = context.main.List2;
    rows.Clear();
    const auto file = FindInfoText(picture);
    if (!file) return;
    const auto start = ReadStart(*file, largestRowText, read);
    if (!start) return;
    std::string_view text = AsText(start->bytes);
    // A row that is cut off was never read; npos + 1 is 0, no row at all.
    if (!start->isWhole) text = text.substr(0, text.find_last_of(lineEnd) + 1);
    for (int item = 0; item < headerItems; ++item)
        text = AfterItem(text);
    AddRows(rows, text);
}

}  // namespace coinlet
