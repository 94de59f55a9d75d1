#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace coinlet::player {

/// A name with the index behind it, if there is one: `Knop(5)`.
struct AddressPart {
    std::string name;
    std::optional<int> index;
};

/// Names parted by points: `Main.Knop(5).Caption`.
struct Address {
    std::string text;  ///< As it stands in the script.
    std::vector<AddressPart> parts;
};

/// Throws ScriptFailure on anything that is no address.
Address ParseAddress(std::string_view text);

/// The address without its last part: `Main.Knop(5)`. It must have two parts.
Address WithoutLast(const Address& address);

/// "Knop(5)", or "Pic" where there is no index.
std::string Show(const AddressPart& part);

}  // namespace coinlet::player
