#pragma once

#include "core/tool_codes.h"

#include <algorithm>
#include <optional>
#include <string_view>

namespace coinlet {

/// The keys that choose the tools while no field has the focus, by the codes of the tools: letters of their
/// captions, as capitals.
constexpr std::string_view toolKeys = "DLSPAFEUTGRXCIHB";
static_assert(toolKeys.size() == toolButtonCount);

/// The tool that a key chooses; nothing for other keys.
constexpr std::optional<int> ToolOfKey(int keyCode) {
    const auto place = std::ranges::find(toolKeys, keyCode) - toolKeys.begin();
    return place > lastToolButton ? std::nullopt : std::optional(static_cast<int>(place));
}

}  // namespace coinlet
