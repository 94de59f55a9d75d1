#pragma once

#include <string_view>

namespace coinlet {

// What leads out of the program and into its About text, for the owner to fill in: all on the domain that is
// reserved for examples until then.
namespace web {

constexpr std::string_view site = "https://www.coinlet.example/";
constexpr std::string_view moreSoftware = "https://www.coinlet.example/software";
constexpr std::string_view moreCliparts = "https://www.coinlet.example/cliparts";

constexpr std::string_view creditDesigner = "Ivo Kestrell";
constexpr std::string_view creditSite = "www.coinlet.example";
constexpr std::string_view creditMail = "info@coinlet.example";
constexpr std::string_view creditTranslator = "Ivo Kestrell";

}  // namespace web

}  // namespace coinlet
