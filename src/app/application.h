#pragma once

#include "core/context.h"

#include <memory>

namespace coinlet {

class FilterCore;

/// The whole program without its windows: builds the forms and the subsystems and binds them to each other.
class Application {
public:
    explicit Application(const Services& services);
    ~Application();

    /// Starts the program: `Main` is loaded and activated. May throw ProgramEnded.
    void Start();

    Context& GetContext();
    FilterCore& GetFilterCore();

private:
    struct House;
    std::unique_ptr<House> house_;
};

}  // namespace coinlet
