#include "core/language.h"

#include "base/files.h"
#include "base/program.h"
#include "base/program_folders.h"
#include "base/text.h"
#include "core/context.h"
#include "core/main_form.h"
#include "core/row_file.h"

#include <algorithm>

namespace coinlet {

namespace {

constexpr std::size_t keyLength = 3;

/// What follows the key and the one character that parts it from the text.
std::string TextOfLine(const std::string& line) {
    const std::vector<std::string> separator = Characters(std::string_view(line).substr(keyLength));
    return separator.empty() ? std::string() : line.substr(keyLength + separator.front().size());
}

/// The first row of the table with that key, or nullptr.
const std::string* LineOf(const Context& context, std::string_view key) {
    const ListBox& table = context.main.InfoList;
    for (int i = 0; i < table.ListCount(); ++i) {
        if (table.List(i).compare(0, keyLength, key) == 0) return &table.List(i);
    }
    return nullptr;
}

}  // namespace

void LoadLanguage(Context& context, const std::string& languageName) {
    MainForm& main = context.main;
    main.InfoList.Clear();

    const std::string fileName = languageName + ".txt";
    if (IsFileName(fileName))
        AddRowsOfFile(main.InfoList, context.services.applicationFolder / program_folder::data / fileName);

    const auto named = std::ranges::find(languages, languageName, &Language::name);
    const auto shown = named != languages.end() ? named : languages.end() - 1;
    for (std::size_t i = 0; i < languages.size(); ++i)
        main.HelpTaal[main.HelpTaal.First() + static_cast<int>(i)].Checked = &languages[i] == &*shown;
    main.InfoLabel.Caption = shown->greeting;
}

std::string LookupInfoText(Context& context, std::string_view key) {
    const std::string* line = LineOf(context, key);
    if (!line) return {};
    context.main.NummerLabel.Caption = key;
    return TextOfLine(*line);
}

std::string InfoText(const Context& context, std::string_view key) {
    const std::string* line = LineOf(context, key);
    return line ? TextOfLine(*line) : std::string();
}

void ShowHint(Context& context, std::string_view key) {
    context.main.InfoLabel.Caption = LookupInfoText(context, key);
}

void ShowLanguageInTitle(Context& context) {
    context.main.Caption = std::string(programTitle) + " (" + context.session.LanguageName + ")";
}

}  // namespace coinlet
