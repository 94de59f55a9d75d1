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

    /// For an end that the user didn't choose here. Both ask nothing and serve no events.
    /// It may be near, as that of the session is, which somebody may still stop: unsaved work is kept as it
    /// is at this moment.
    void PrepareForEnd();
    /// It is here: the settings are written, and unsaved work waits for the next start. After it the program
    /// is to be ended.
    void SettleForEnd();

    Context& GetContext();
    FilterCore& GetFilterCore();

private:
    struct House;
    std::unique_ptr<House> house_;
};

}  // namespace coinlet
