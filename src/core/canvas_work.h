#pragma once

namespace coinlet {

/// What knows whether the canvas is being worked on: by a filter, a flip, or an image that is burned in row
/// by row. Such work serves events on its way, and so more of it may begin inside it: the canvas is at rest
/// again when the last piece has ended.
class CanvasWork {
public:
    bool UnderWay() const { return pieces_ > 0; }

    /// A piece of it, for as long as it lives, however that ends.
    class Piece {
    public:
        explicit Piece(CanvasWork& work) : work_(work) { ++work_.pieces_; }
        ~Piece() { --work_.pieces_; }
        Piece(const Piece&) = delete;
        Piece& operator=(const Piece&) = delete;

    private:
        CanvasWork& work_;
    };

private:
    int pieces_ = 0;
};

}  // namespace coinlet
