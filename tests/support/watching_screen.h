#pragma once

#include "surface/surface.h"

#include <functional>
#include <utility>

namespace coinlet::test {

/// The screen of a surface, for as long as it lives: it counts how often it is told to show the surface, and
/// looks at that moment.
class WatchingScreen : public SurfaceScreen {
public:
    /// `look` is handed how many refreshes came before.
    explicit WatchingScreen(Surface& watched, std::function<void(int)> look = {})
        : watched_(&watched), look_(std::move(look)) {
        watched_->SetScreen(this);
    }
    WatchingScreen(const WatchingScreen&) = delete;
    WatchingScreen& operator=(const WatchingScreen&) = delete;
    ~WatchingScreen() override { watched_->SetScreen(nullptr); }

    int Refreshes() const { return refreshes_; }

    void SurfaceRefreshed(const Surface&) override {
        if (look_) look_(refreshes_);
        ++refreshes_;
    }

private:
    Surface* watched_;
    std::function<void(int)> look_;
    int refreshes_ = 0;
};

}  // namespace coinlet::test
