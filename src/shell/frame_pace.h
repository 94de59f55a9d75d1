#pragma once

#include <QElapsedTimer>

namespace coinlet {

/// Says yes at most once in the time for which a display shows one frame: more often nobody would see it.
class FramePace {
public:
    bool Due() {
        if (since_.isValid() && since_.elapsed() < frameMilliseconds) return false;
        since_.start();
        return true;
    }

private:
    static constexpr qint64 frameMilliseconds = 16;
    QElapsedTimer since_;
};

}  // namespace coinlet
