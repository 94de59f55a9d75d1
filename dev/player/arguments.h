#pragma once

#include "player/address.h"
#include "player/script.h"

#include <span>

namespace coinlet::player {

/// The words behind a command, read as what the command takes them for. Reading one as something that it
/// isn't throws ScriptFailure.
class Arguments {
public:
    explicit Arguments(std::span<const Word> words) : words_(words) {}

    std::size_t Count() const { return words_.size(); }
    std::string Text(std::size_t i) const { return TextOf(words_[i]); }
    std::string Bytes(std::size_t i) const { return BytesOf(words_[i]); }
    double Number(std::size_t i) const;
    int Whole(std::size_t i) const;
    double Colour(std::size_t i) const;
    player::Address Address(std::size_t i) const { return ParseAddress(Text(i)); }
    std::span<const Word> From(std::size_t i) const { return words_.subspan(i); }

private:
    std::span<const Word> words_;
};

}  // namespace coinlet::player
