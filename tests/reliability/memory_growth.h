#pragma once

#include <cstddef>
#include <string>
#include <sys/types.h>

namespace coinlet::test {

/// The bytes of memory that a process occupies. Throws std::runtime_error if there is no such process.
std::size_t ResidentBytes(pid_t process);

/// How the memory of a process grows while its user does the same again and again. What he does first fills
/// caches; after he did it `settled` times of `times`, memory may grow by less than mostGrowth.
class MemoryGrowth {
public:
    static constexpr double mostGrowth = 5;  ///< Megabytes.

    /// `what` is what he does, for the table that is printed meanwhile: a row for each tenth of the times.
    MemoryGrowth(std::string what, pid_t process, int settled, int times);

    /// He did it once more.
    void Done();
    /// Prints what came of it, with a reason if it is no good; true if memory grew by less than it may. False
    /// too if he didn't do it `times` times.
    bool Judge() const;

private:
    double Megabytes() const;
    void PrintRow(double now) const;

    std::string what_;
    pid_t process_;
    int settled_, times_, done_ = 0;
    double start_, atRest_ = 0, last_ = 0;
};

}  // namespace coinlet::test
