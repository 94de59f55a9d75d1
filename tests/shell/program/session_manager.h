#pragma once

#include <memory>
#include <string>

namespace coinlet::test {

/// A desktop's session as far as programs know of it: they join it, are asked to save when it is about to
/// end, and then it ends or goes on.
class SessionManager {
public:
    SessionManager();
    ~SessionManager();
    SessionManager(const SessionManager&) = delete;
    SessionManager& operator=(const SessionManager&) = delete;

    /// Where it is reached; for the variable SESSION_MANAGER of a program.
    std::string Address() const;

    struct State {
        int members = 0;  ///< Programs that joined.
        int saved = 0;    ///< How often one said that it has saved, after it was asked.
    };
    /// Does what the programs ask for, without waiting. To be called again and again.
    State Serve();

    /// The session is about to end: nobody may ask his user anything.
    void AskToSave();
    /// It isn't after all.
    void GiveUp();
    void End();

private:
    struct Parts;  // The libraries of sessions have macros of very common names.
    std::unique_ptr<Parts> parts_;
};

}  // namespace coinlet::test
