#pragma once

#include "player/life.h"

#include <cstddef>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace coinlet::test {

/// Which controls and menu entries of the program were used, and how often. Only what a user can do
/// counts as use: a list is used when a row is picked, a scroll bar when it is dragged, and so on.
class Reach {
public:
    /// `forms` are the names of the forms that a user should come by.
    explicit Reach(const std::vector<std::string>& forms);

    /// Looks at the form in front, so that nothing on it is forgotten.
    void Look(const player::Life& life);
    /// A command that a user gives now. It is no use of what he can't get at.
    void Note(const player::Life& life, std::string_view command, std::string_view address);

    /// A command, in the language of scripts, for each control and entry of the open forms that was never
    /// used and can't be used now.
    struct Unused {
        std::vector<std::string> seen;  ///< It could have been used once.
        std::vector<std::string> unseen;
    };
    Unused FindUnused(const player::Life& life) const;
    /// How often something was used, by its full name.
    std::size_t Uses(const std::string& name) const;

    /// What was never used, sorted by name.
    struct Rest {
        std::vector<std::string> unreached;
        /// Was hidden or disabled whenever its form was in front, and no line of the sources would show or
        /// enable it.
        std::vector<std::string> closed;
    };
    /// `sources` is the folder of the program's sources.
    Rest FindRest(const std::filesystem::path& sources) const;

    /// One line a form: what was done while it was in front, what of it was used.
    std::string Table() const;

private:
    struct Entry {
        std::string form, name;               ///< "Main", "Knop".
        std::vector<std::string_view> deeds;  ///< The commands that use it.
        std::size_t uses = 0;
        bool wasShown = false, wasEnabled = false;  ///< At least once, while a user could have used it.
    };

    const Form* front_ = nullptr;  ///< At the last look.
    std::size_t looks_ = 0;
    std::map<std::string, Entry, std::less<>> entries_;      ///< By full names.
    std::map<std::string, std::size_t, std::less<>> forms_;  ///< How much was done while it was in front.
};

}  // namespace coinlet::test
