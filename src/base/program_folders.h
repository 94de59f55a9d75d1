#pragma once

#include <string_view>

/// What the folders of the application folder are called.
namespace coinlet::program_folder {

// What comes with the program.
constexpr std::string_view borders = "Borders";
constexpr std::string_view cliparts = "Cliparts";
constexpr std::string_view data = "Data";
constexpr std::string_view fonts = "Fonts";
constexpr std::string_view help = "Help";
constexpr std::string_view images = "Images";

// What the user makes.
constexpr std::string_view collection = "Collection";
constexpr std::string_view designs = "Ontwerpen";

}  // namespace coinlet::program_folder
