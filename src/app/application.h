#pragma once

#include "core/context.h"

#include <memory>

namespace coinlet {

class FilterCore;
struct NamedDocument;

/// The whole program without its windows: builds the forms and the subsystems and binds them to each other.
class Application {
public:
    explicit Application(const Services& services);
    ~Application();

    /// Starts the program: `Main` is loaded and activated. May throw ProgramEnded.
    void Start();

    /// Begins with a document, once the program has started.
    void Show(const NamedDocument& document);

    Context& GetContext();
    FilterCore& GetFilterCore();

private:
    struct House;
    std::unique_ptr<House> house_;
};

}  // namespace coinlet
