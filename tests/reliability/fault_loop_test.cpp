// Each kind of file that the program writes, on a disk that fails at the first call, at the second, and so
// on: every file is the old one or the new one, nothing is left beside it, and the user finds what he is
// promised.

#include "used_file_calls.h"
#include "writings.h"

#include <cerrno>
#include <gtest/gtest.h>

namespace coinlet::test {
namespace {

/// How a call fails.
struct Fault {
    const char* name;
    int error;
    bool goesOn;       ///< All later calls fail too, but for taking a temporary file away.
    bool afterAPiece;  ///< A write takes some bytes first.
};
constexpr Fault faults[] = {
    {"once", EIO, false, false},
    {"full disk", ENOSPC, true, false},
    {"full disk amidst a write", ENOSPC, true, true},
    {"read-only from now on", EROFS, true, false},
};

class FailingFrom final : public FileCalls {
public:
    /// `step` counts from 1; 0 is none.
    FailingFrom(int step, const Fault& fault) : step_(step), fault_(fault) {}

    int Calls() const { return calls_; }
    /// True if a call failed that a file depends on.
    bool Failed() const { return failed_; }

    int Open(const char* path, int flags, unsigned mode) override {
        return Fails() ? Fail() : real_.Open(path, flags, mode);
    }
    long Write(int file, const void* data, std::size_t size) override {
        if (!Fails()) return real_.Write(file, data, size);
        if (!fault_.afterAPiece || size < 2 || calls_ != step_) return Fail();
        // The next write is the one that fails.
        ++step_;
        return real_.Write(file, data, size / 2);
    }
    int Flush(int file) override { return Fails() ? Fail() : real_.Flush(file); }
    int Close(int file) override {
        const int result = real_.Close(file);
        return Fails() ? Fail() : result;
    }
    int Rename(const char* from, const char* to) override {
        return Fails() ? Fail() : real_.Rename(from, to);
    }
    int Unlink(const char* path) override { return real_.Unlink(path); }
    int FlushFolder(const char* path) override {
        const bool failedBefore = failed_;
        if (!Fails()) return real_.FlushFolder(path);
        // The file stands already.
        const int result = Fail();
        failed_ = failedBefore;
        return result;
    }

private:
    bool Fails() {
        ++calls_;
        return step_ > 0 && (fault_.goesOn ? calls_ >= step_ : calls_ == step_);
    }
    int Fail() {
        failed_ = true;
        errno = fault_.error;
        return -1;
    }

    FileCalls& real_ = RealFileCalls();
    int step_, calls_ = 0;
    const Fault& fault_;
    bool failed_ = false;
};

void ExpectNoStrays(const fs::path& folder) {
    for (const auto& entry : fs::recursive_directory_iterator(folder))
        EXPECT_FALSE(entry.path().filename().string().starts_with(".~")) << entry.path();
}

class FaultLoop : public testing::TestWithParam<KindOfWriting> {};

TEST_P(FaultLoop, LeavesTheOldFileOrTheNewOne) {
    std::vector<std::optional<Bytes>> before, after;
    int calls = 0;
    {
        const auto writing = GetParam().make();
        before = ContentOf(writing->Targets());
        FailingFrom none(0, faults[0]);
        {
            const UsedFileCalls use(none);
            writing->Do();
        }
        calls = none.Calls();
        after = ContentOf(writing->Targets());
        writing->ExpectReaction(std::nullopt, true);
        ASSERT_EQ(before.size(), after.size());
        for (std::size_t i = 0; i < after.size(); ++i) {
            ASSERT_TRUE(after[i]);
            ASSERT_NE(before[i], after[i]);
        }
        ExpectNoStrays(writing->Folder());
    }
    ASSERT_GE(calls, 4);

    for (const Fault& fault : faults) {
        for (int step = 1; step <= calls; ++step) {
            SCOPED_TRACE(std::string(fault.name) + ", call " + std::to_string(step));
            const auto writing = GetParam().make();
            FailingFrom failing(step, fault);
            {
                const UsedFileCalls use(failing);
                writing->Do();
            }
            const auto found = ContentOf(writing->Targets());
            bool isWritten = true;
            for (std::size_t i = 0; i < found.size(); ++i) {
                const bool isNew = found[i] && writing->IsNew(*found[i], *after[i]);
                isWritten = isWritten && isNew;
                EXPECT_TRUE(isNew || found[i] == before[i]) << writing->Targets()[i];
            }
            EXPECT_NE(isWritten, failing.Failed());
            ExpectNoStrays(writing->Folder());
            writing->ExpectReaction(failing.Failed() ? std::optional(step) : std::nullopt, isWritten);
            if (testing::Test::HasFailure()) return;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(All, FaultLoop, testing::ValuesIn(KindsOfWriting()), [](const auto& each) {
    std::string name = each.param.name;
    std::ranges::replace(name, ' ', '_');
    return name;
});

}  // namespace
}  // namespace coinlet::test
