#include "shell/ending_signals.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <utility>

namespace coinlet {

namespace {

constexpr std::array endings{SIGTERM, SIGHUP, SIGINT};

/// A signal may come between any two instructions: all that is safe then is to write into a pipe. The event
/// loop waits at its other end.
std::array<int, 2> ends{-1, -1};
std::array<struct sigaction, endings.size()> before{};

extern "C" void NoteSignal(int) {
    const int error = errno;
    // A full pipe says it already.
    [[maybe_unused]] const auto written = ::write(ends[1], "s", 1);
    errno = error;
}

}  // namespace

EndingSignals::EndingSignals(std::function<bool()> arrived) : arrived_(std::move(arrived)) {
    // Without a pipe the signals kill, as they do anyway.
    if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
    notifier_ = std::make_unique<QSocketNotifier>(ends[0], QSocketNotifier::Read);
    // What was written is never read, so that the notifier comes again as long as it is asked to.
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] {
        if (arrived_()) notifier_->setEnabled(false);
    });
    for (std::size_t i = 0; i < endings.size(); ++i) {
        ::sigaction(endings.at(i), nullptr, &before.at(i));
        if (before.at(i).sa_handler == SIG_IGN) continue;
        struct sigaction noted {};
        noted.sa_handler = NoteSignal;
        noted.sa_flags = SA_RESTART;
        ::sigaction(endings.at(i), &noted, nullptr);
    }
}

EndingSignals::~EndingSignals() {
    if (!notifier_) return;
    for (std::size_t i = 0; i < endings.size(); ++i)
        ::sigaction(endings.at(i), &before.at(i), nullptr);
    notifier_.reset();
    for (int& end : ends)
        ::close(std::exchange(end, -1));
}

}  // namespace coinlet
