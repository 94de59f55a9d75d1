#include "recorded_disk.h"

#include "used_file_calls.h"

#include <algorithm>
#include <span>

namespace coinlet::test {

RecordedDisk::RecordedDisk(const std::vector<fs::path>& paths,
                           const std::vector<std::optional<Bytes>>& content)
    : real_(RealFileCalls()) {
    for (std::size_t i = 0; i < paths.size(); ++i) {
        if (!content[i]) continue;
        namesBefore_[paths[i]] = bodiesBefore_.size();
        bodiesBefore_.push_back(*content[i]);
    }
    now_ = namesBefore_;
    bodies_ = bodiesBefore_.size();
}

int RecordedDisk::Open(const char* path, int flags, unsigned mode) {
    const int file = real_.Open(path, flags, mode);
    if (file < 0) return file;
    open_[file] = now_[path] = bodies_;
    steps_.push_back({.kind = Kind::Make, .body = bodies_++, .path = path, .from = {}, .bytes = {}});
    return file;
}

long RecordedDisk::Write(int file, const void* data, std::size_t size) {
    const long written = real_.Write(file, data, size);
    if (written <= 0) return written;
    const std::span bytes(static_cast<const std::uint8_t*>(data), static_cast<std::size_t>(written));
    steps_.push_back({.kind = Kind::Write,
                      .body = open_.at(file),
                      .path = {},
                      .from = {},
                      .bytes = {bytes.begin(), bytes.end()}});
    return written;
}

int RecordedDisk::Flush(int file) {
    const int result = real_.Flush(file);
    if (result == 0 && countsFlushes)
        steps_.push_back({.kind = Kind::Flush, .body = open_.at(file), .path = {}, .from = {}, .bytes = {}});
    return result;
}

int RecordedDisk::Close(int file) {
    open_.erase(file);
    return real_.Close(file);
}

int RecordedDisk::Rename(const char* from, const char* to) {
    const int result = real_.Rename(from, to);
    if (result != 0) return result;
    const std::size_t body = now_.at(from);
    now_.erase(from);
    now_[to] = body;
    steps_.push_back({.kind = Kind::Rename, .body = body, .path = to, .from = from, .bytes = {}});
    return result;
}

int RecordedDisk::Unlink(const char* path) {
    const int result = real_.Unlink(path);
    if (result == 0 && now_.erase(path) > 0)
        steps_.push_back({.kind = Kind::Unlink, .body = 0, .path = path, .from = {}, .bytes = {}});
    return result;
}

int RecordedDisk::FlushFolder(const char* path) {
    const int result = real_.FlushFolder(path);
    if (result == 0 && countsFlushes)
        steps_.push_back({.kind = Kind::FlushFolder, .body = 0, .path = path, .from = {}, .bytes = {}});
    return result;
}

std::size_t RecordedDisk::ForEachOutcome(const std::function<void(const Files&)>& look) const {
    std::size_t outcomes = 0;
    for (std::size_t steps = 0; steps <= steps_.size(); ++steps)
        OutcomesAfter(steps, [&](const Files& files) {
            ++outcomes;
            look(files);
        });
    return outcomes;
}

std::vector<Bytes> RecordedDisk::BodiesThatMayBe(std::size_t body, std::size_t steps) const {
    if (body < bodiesBefore_.size()) return {bodiesBefore_[body]};
    Bytes all;
    std::size_t flushed = 0;
    for (const Step& step : std::span(steps_).first(steps)) {
        if (step.body != body) continue;
        if (step.kind == Kind::Write) all.insert(all.end(), step.bytes.begin(), step.bytes.end());
        if (step.kind == Kind::Flush) flushed = all.size();
    }
    if (flushed == all.size()) return {all};
    const auto begin = all.begin();
    const auto half = begin + static_cast<std::ptrdiff_t>(flushed + (all.size() - flushed) / 2);
    Bytes zeros(begin, begin + static_cast<std::ptrdiff_t>(flushed));
    zeros.resize(all.size());
    return {all, Bytes(begin, begin + static_cast<std::ptrdiff_t>(flushed)), Bytes(begin, half), zeros};
}

void RecordedDisk::OutcomesAfter(std::size_t steps, const std::function<void(const Files&)>& look) const {
    const auto done = std::span(steps_).first(steps);
    // What each folder owes: names up to its last flush.
    const auto isOwed = [&](std::size_t index) {
        const fs::path folder = done[index].path.parent_path();
        return std::ranges::any_of(done.subspan(index), [&](const Step& later) {
            return later.kind == Kind::FlushFolder && later.path == folder;
        });
    };
    std::vector<std::size_t> owed, open;
    for (std::size_t i = 0; i < done.size(); ++i) {
        const Kind kind = done[i].kind;
        if (kind != Kind::Make && kind != Kind::Rename && kind != Kind::Unlink) continue;
        (isOwed(i) ? owed : open).push_back(i);
    }
    for (std::size_t choice = 0; choice < std::size_t{1} << open.size(); ++choice) {
        Names names = namesBefore_;
        for (std::size_t i = 0; i < done.size(); ++i) {
            const auto among = std::ranges::find(open, i);
            const bool reached = std::ranges::find(owed, i) != owed.end() ||
                                 (among != open.end() && (choice >> (among - open.begin()) & 1) != 0);
            if (!reached) continue;
            const Step& step = done[i];
            if (step.kind == Kind::Unlink) names.erase(step.path);
            if (step.kind == Kind::Rename) names.erase(step.from);
            if (step.kind != Kind::Unlink) names[step.path] = step.body;
        }
        // Each file's bytes in each way that they may be, one file after the other.
        std::vector<Files> outcomes(1);
        for (const auto& [path, body] : names) {
            std::vector<Files> further;
            for (const Bytes& bytes : BodiesThatMayBe(body, steps)) {
                for (Files files : outcomes) {
                    files[path] = bytes;
                    further.push_back(std::move(files));
                }
            }
            outcomes = std::move(further);
        }
        for (const Files& files : outcomes)
            look(files);
    }
}

}  // namespace coinlet::test
