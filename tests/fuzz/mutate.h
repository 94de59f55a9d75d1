#pragma once

#include "base/files.h"
#include "fuzz/dice.h"

#include <algorithm>
#include <array>

namespace coinlet::test {

/// Damages files the way disks, mails and hostile people do. The same seed gives the same damage on every
/// machine and with every library.
class Mutator {
public:
    explicit Mutator(std::uint32_t seed) : dice_(seed) {}

    /// One of the files, damaged in one place or several.
    Bytes Damaged(const std::vector<Bytes>& files) {
        Bytes bytes = files[Below(files.size())];
        const std::size_t times = 1 + Below(4);
        for (std::size_t i = 0; i < times; ++i)
            DamageOnce(bytes, files[Below(files.size())]);
        return bytes;
    }

private:
    std::size_t Below(std::size_t limit) { return dice_.Below(limit); }

    void DamageOnce(Bytes& bytes, const Bytes& other) {
        using Damage = void (Mutator::*)(Bytes&, const Bytes&);
        constexpr std::array<Damage, 8> damages{&Mutator::FlipBit,  &Mutator::SetByte, &Mutator::SetField,
                                                &Mutator::SetField,  // Headers are where readers believe.
                                                &Mutator::CutShort, &Mutator::Remove,  &Mutator::Repeat,
                                                &Mutator::TakeOther};
        if (bytes.empty()) bytes = other.empty() ? Bytes{0} : other;
        (this->*damages[Below(damages.size())])(bytes, other);
    }

    /// Half of the places lie in the first 64 bytes, where most formats have their header.
    std::size_t Place(const Bytes& bytes) {
        constexpr std::size_t header = 64;
        return Below(Below(2) == 0 ? std::min(header, bytes.size()) : bytes.size());
    }
    /// From a place on, some bytes.
    std::pair<Bytes::const_iterator, Bytes::const_iterator> Range(const Bytes& bytes) {
        const auto from = bytes.begin() + static_cast<std::ptrdiff_t>(Place(bytes));
        const auto rest = static_cast<std::size_t>(bytes.end() - from);
        return {from, from + static_cast<std::ptrdiff_t>(1 + Below(rest))};
    }

    void FlipBit(Bytes& bytes, const Bytes&) {
        bytes[Place(bytes)] ^= static_cast<std::uint8_t>(1U << Below(8));
    }
    void SetByte(Bytes& bytes, const Bytes&) {
        bytes[Place(bytes)] = static_cast<std::uint8_t>(dice_.Next());
    }

    /// A number of 8, 16 or 32 bits in either byte order becomes one at the edge of what fits.
    void SetField(Bytes& bytes, const Bytes&) {
        constexpr std::array<std::uint32_t, 16> extremes{
            0,      1,      2,      0x7F,   0x80,       0xFF,       0x100,      0x3FFF,
            0x4000, 0x7FFF, 0x8000, 0xFFFF, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFE, 0xFFFFFFFF};
        const std::uint32_t value = extremes[Below(extremes.size())];
        const std::size_t size = std::size_t{1} << Below(3), place = Place(bytes);
        const bool bigEndian = Below(2) == 0;
        for (std::size_t i = 0; i < size && place + i < bytes.size(); ++i)
            bytes[place + i] = static_cast<std::uint8_t>(value >> 8 * (bigEndian ? size - 1 - i : i));
    }

    void CutShort(Bytes& bytes, const Bytes&) { bytes.resize(Below(bytes.size() + 1)); }
    void Remove(Bytes& bytes, const Bytes&) {
        const auto [from, to] = Range(bytes);
        bytes.erase(from, to);
    }
    void Repeat(Bytes& bytes, const Bytes&) {
        const auto [from, to] = Range(bytes);
        const Bytes part(from, to);
        bytes.insert(to, part.begin(), part.end());
    }
    /// The start of this file with the end of another.
    void TakeOther(Bytes& bytes, const Bytes& other) {
        if (other.empty()) return;
        bytes.resize(Below(bytes.size() + 1));
        bytes.insert(bytes.end(), other.begin() + static_cast<std::ptrdiff_t>(Place(other)), other.end());
    }

    Dice dice_;
};

}  // namespace coinlet::test
