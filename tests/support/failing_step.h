#pragma once

#include "base/files.h"

#include <cerrno>

namespace coinlet::test {

/// The system's calls, of which the one that `failing` tells fails as on a full disk.
enum class Step { Open, Write, Flush, Close, Rename };

class FailingStep : public FileCalls {
public:
    explicit FailingStep(Step failing) : failing_(failing) {}

    int Open(const char* path, int flags, unsigned mode) override {
        return failing_ == Step::Open ? Fail() : real_.Open(path, flags, mode);
    }
    /// The first bytes still find room.
    long Write(int file, const void* data, std::size_t size) override {
        if (failing_ != Step::Write) return real_.Write(file, data, size);
        if (written_) return Fail();
        written_ = true;
        return real_.Write(file, data, 1);
    }
    int Flush(int file) override { return failing_ == Step::Flush ? Fail() : real_.Flush(file); }
    int Close(int file) override {
        const int result = real_.Close(file);
        return failing_ == Step::Close ? Fail() : result;
    }
    int Rename(const char* from, const char* to) override {
        return failing_ == Step::Rename ? Fail() : real_.Rename(from, to);
    }
    int Unlink(const char* path) override { return real_.Unlink(path); }
    int FlushFolder(const char* path) override { return real_.FlushFolder(path); }

private:
    static int Fail() {
        errno = ENOSPC;
        return -1;
    }

    FileCalls& real_ = SystemFileCalls();
    Step failing_;
    bool written_ = false;
};

}  // namespace coinlet::test
