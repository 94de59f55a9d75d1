// The power goes at any moment while the program writes: whatever the disk made of it, each file is the old
// one or the new one.

#include "recorded_disk.h"
#include "store/recovery.h"
#include "surface/codecs.h"
#include "used_file_calls.h"
#include "writings.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

namespace coinlet::test {
namespace {

/// A writing, with what its files were and became.
struct Recorded {
    explicit Recorded(const KindOfWriting& kind, bool countsFlushes = true) : writing(kind.make()) {
        // What comes of it tells the names of all its files.
        {
            const auto first = kind.make();
            first->Do();
            const auto relative = first->Targets();
            after = ContentOf(relative);
            for (const fs::path& target : relative)
                targets.push_back(writing->Folder() / target.lexically_relative(first->Folder()));
        }
        before = ContentOf(targets);
        disk = std::make_unique<RecordedDisk>(targets, before);
        disk->countsFlushes = countsFlushes;
        const UsedFileCalls use(*disk);
        writing->Do();
    }
    /// True if the file is as it was before, or as it is afterwards.
    bool IsWhole(std::size_t target, const RecordedDisk::Files& files) const {
        const auto found = files.find(targets[target]);
        if (found == files.end()) return !before[target];
        return found->second == before[target] || writing->IsNew(found->second, *after[target]);
    }

    std::unique_ptr<Writing> writing;
    std::vector<fs::path> targets;
    std::vector<std::optional<Bytes>> before, after;
    std::unique_ptr<RecordedDisk> disk;
};

class PowerCut : public testing::TestWithParam<KindOfWriting> {};

TEST_P(PowerCut, LeavesTheOldFileOrTheNewOne) {
    const Recorded recorded(GetParam());
    std::set<std::pair<std::size_t, bool>> seen;
    const std::size_t outcomes = recorded.disk->ForEachOutcome([&](const RecordedDisk::Files& files) {
        for (std::size_t i = 0; i < recorded.targets.size(); ++i) {
            ASSERT_TRUE(recorded.IsWhole(i, files)) << recorded.targets[i];
            const auto found = files.find(recorded.targets[i]);
            const bool isOld = found == files.end() ? !recorded.before[i]
                                                    : recorded.before[i] == std::optional(found->second);
            seen.emplace(i, isOld);
        }
    });
    EXPECT_GT(outcomes, 10U);
    // Of each file both.
    EXPECT_EQ(seen.size(), 2 * recorded.targets.size());
    RecordProperty("outcomes", static_cast<int>(outcomes));
}

/// The same without a flush: then files are torn, and this way of looking finds it.
TEST_P(PowerCut, WouldTearFilesThatAreNotFlushed) {
    const Recorded recorded(GetParam(), false);
    bool isTorn = false;
    recorded.disk->ForEachOutcome([&](const RecordedDisk::Files& files) {
        for (std::size_t i = 0; i < recorded.targets.size(); ++i)
            isTorn = isTorn || !recorded.IsWhole(i, files);
    });
    EXPECT_TRUE(isTorn);
}

std::vector<KindOfWriting> ThoseThatWait() {
    std::vector<KindOfWriting> kinds;
    std::ranges::copy_if(KindsOfWriting(), std::back_inserter(kinds), &KindOfWriting::waitsForTheDisk);
    return kinds;
}

INSTANTIATE_TEST_SUITE_P(All, PowerCut, testing::ValuesIn(ThoseThatWait()), [](const auto& each) {
    std::string name = each.param.name;
    std::ranges::replace(name, ' ', '_');
    return name;
});

TEST(PowerCutTest, SnapshotThatItToreIsNoHarmAtTheNextStart) {
    // The program doesn't wait for the disk then: the work of its last seconds may be lost, and no more than
    // that.
    const auto& kinds = KindsOfWriting();
    const auto kind = std::ranges::find(kinds, false, &KindOfWriting::waitsForTheDisk);
    ASSERT_NE(kind, kinds.end());
    const auto writing = kind->make();
    const auto targets = writing->Targets();
    RecordedDisk disk(targets, ContentOf(targets));
    {
        const UsedFileCalls use(disk);
        writing->Do();
    }
    std::size_t designs = 0;
    std::set<std::vector<std::pair<std::string, Bytes>>> tried;
    disk.ForEachOutcome([&](const RecordedDisk::Files& files) {
        std::vector<std::pair<std::string, Bytes>> left;
        for (const auto& [path, bytes] : files)
            left.emplace_back(path.filename().string(), bytes);
        if (!tried.insert(left).second) return;
        World next;
        for (const auto& [name, bytes] : left)
            next.folder.Write("state-" + name, {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
        const fs::path state = next.folder / "state";
        fs::create_directory(state);
        for (const auto& [name, bytes] : left)
            fs::rename(next.folder / ("state-" + name), state / name);
        const std::string lock = targets.front().stem().string() + ".lock";
        next.folder.Write("state/" + lock, "");
        Recovery(next.context, state).PutBackLostWork();
        EXPECT_FALSE(FileExists(state / lock));
        for (const std::string& name : ListFiles(next.folder / "app/Ontwerpen", "*.pat")) {
            ++designs;
            EXPECT_TRUE(DecodeBmp(ReadFile(next.folder / "app/Ontwerpen" / name).value_or(Bytes()))) << name;
        }
    });
    EXPECT_GT(tried.size(), 5U);
    EXPECT_GT(designs, 0U);
}

}  // namespace
}  // namespace coinlet::test
