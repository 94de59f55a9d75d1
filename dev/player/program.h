#pragma once

#include "core/context.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>

namespace coinlet {
class Surface;
}

namespace coinlet::player {

/// The program under test, as far as a script reaches into it beside its forms.
class Program {
public:
    virtual ~Program() = default;
    /// Loads and activates the main form. May throw ProgramEnded.
    virtual void Start() = 0;
    virtual Session& TheSession() = 0;
    /// A form that is always there although no window ever shows it, or nullptr.
    virtual Form* HiddenForm(std::string_view name) = 0;
    /// Runs a filter of the program on a surface; a number that is no filter leaves it as it is. May throw
    /// ProgramEnded.
    virtual void RunFilter(std::int32_t number, Surface& surface, std::int32_t parameter) = 0;
};

/// Makes the program, not yet started. The services outlive it.
using ProgramMaker = std::function<std::unique_ptr<Program>(const Services&)>;

}  // namespace coinlet::player
