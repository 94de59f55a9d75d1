// What may happen to the catalogue and its pictures: nothing that is there is lost but by the user's own
// wish.
#include "collection/collection_form.h"

#include "support/world.h"

#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <functional>
#include <gtest/gtest.h>
#include <random>
#include <sys/stat.h>
#include <sys/wait.h>
#include <system_error>
#include <thread>

namespace coinlet::test {
namespace {

constexpr const char* catalogue = "app/Collection/Collection.col";

class CollectionFormTest : public testing::Test, protected World {
protected:
    CollectionFormTest() { fs::create_directories(folder / "app/Collection"); }

    /// Opens the dialog, has the user do that, and closes it if he hasn't.
    void Open(const std::function<void(CollectionForm&)>& doing) {
        CollectionForm dialog(context);
        platform.doings.push_back([&] {
            doing(dialog);
            dialog.Unload();
        });
        platform.ShowModal(dialog);
    }
    void Add(const std::string& number) {
        Open([&](CollectionForm& dialog) {
            dialog.Text1.SetText(number);
            dialog.AddKnop.Click();
            dialog.OkKnop.Click();
        });
    }
};

TEST_F(CollectionFormTest, DoesNotReplaceACatalogueThatItCouldNotRead) {
    constexpr std::uintmax_t tooLarge = 64'000'001;
    folder.Write(catalogue, "\"7\"\r\n");
    fs::resize_file(folder / catalogue, tooLarge);
    Add("new");
    EXPECT_EQ(fs::file_size(folder / catalogue), tooLarge);
    EXPECT_EQ(platform.messages.size(), 1U);

    fs::remove(folder / catalogue);
    ASSERT_EQ(::mkfifo((folder / catalogue).c_str(), 0600), 0);
    Add("new");
    EXPECT_TRUE(fs::is_fifo(folder / catalogue));
    EXPECT_EQ(platform.messages.size(), 2U);
}

TEST_F(CollectionFormTest, WritesThroughALink) {
    folder.Write("elsewhere.col", "\"old\"\r\n");
    fs::create_symlink(folder / "elsewhere.col", folder / catalogue);
    Add("new");
    EXPECT_EQ(folder.Read("elsewhere.col"), "\"new\"\r\n\"old\"\r\n");
    EXPECT_TRUE(fs::is_symlink(folder / catalogue));
}

TEST_F(CollectionFormTest, TakesTheLinkToAPictureAndNotThePicture) {
    const fs::path picture = folder.Write("kept.bmp", "kept");
    fs::create_symlink(picture, folder / "app/Collection/a.jpg");
    ASSERT_EQ(::mkfifo((folder / "app/Collection/b.jpg").c_str(), 0600), 0);
    folder.Write(catalogue, "\"a\"\r\n\"b\"\r\n");
    Open([&](CollectionForm& dialog) {
        platform.answers = {Answer::Yes, Answer::Yes};
        dialog.List1.UserPicks(1);
        EXPECT_FALSE(dialog.Image1.Visible);  // A pipe is never waited for.
        dialog.DelKnop.Click();
        dialog.List1.UserPicks(0);
        dialog.DelKnop.Click();
        EXPECT_EQ(dialog.List1.ListCount(), 0);
    });
    EXPECT_EQ(folder.Read("kept.bmp"), "kept");
    EXPECT_FALSE(fs::exists(folder / "app/Collection/a.jpg"));
    EXPECT_TRUE(fs::is_fifo(folder / "app/Collection/b.jpg"));
}

TEST_F(CollectionFormTest, AsksBeforeDeletingAndStandsOnNo) {
    folder.Write(catalogue, "\"a\"\r\n");
    Open([&](CollectionForm& dialog) {
        platform.answers = {Answer::No};
        dialog.List1.UserPicks(0);
        dialog.DelKnop.Click();
    });
    ASSERT_EQ(platform.messages.size(), 1U);
    EXPECT_EQ(platform.messages.front().standard, Answer::No);
}

TEST_F(CollectionFormTest, StopsAtABlankNumber) {
    Open([](CollectionForm& dialog) { dialog.AddKnop.Click(); });
    ASSERT_EQ(platform.messages.size(), 1U);
    EXPECT_EQ(platform.messages.front().icon, MessageIcon::Stop);
    EXPECT_EQ(platform.messages.front().buttons, MessageButtons::Ok);
}

TEST_F(CollectionFormTest, FindsNoPictureForNamesThatAreNone) {
    folder.Write("app/out.jpg", "BM");
    const std::vector<std::string> numbers{"../out", std::string(300, 'n'), std::string("a\0b", 3), "..",
                                           "a\\b"};
    Open([&](CollectionForm& dialog) {
        for (const std::string& number : numbers) {
            dialog.Text1.SetText(number);
            dialog.AddKnop.Click();
        }
        for (int row = 0; row < dialog.List1.ListCount(); ++row) {
            dialog.List1.UserPicks(row);
            EXPECT_FALSE(dialog.Image1.Visible);
        }
        while (dialog.List1.ListCount() > 0) {
            dialog.List1.UserPicks(0);
            platform.answers.push_back(Answer::Yes);
            dialog.DelKnop.Click();
        }
    });
    EXPECT_EQ(folder.Read("app/out.jpg"), "BM");
}

/// A process of its own that saves two catalogues in turn until it is killed, and tells the start of each
/// saving by a byte.
class KilledCollection : public CollectionFormTest {
protected:
    [[noreturn]] void SaveForEver(int starts) {
        for (;;) {
            if (::write(starts, "s", 1) != 1) ::_exit(1);
            Open([](CollectionForm& dialog) {
                dialog.List1.UserPicks(0);
                dialog.Text1.SetText(dialog.Text1.Text() == "a" ? "b" : "a");
                dialog.ChangeKnop.Click();
                dialog.OkKnop.Click();
            });
        }
    }
    std::string LeftAfterAKill(int savings, std::chrono::microseconds later) {
        std::array<int, 2> ends{};
        if (::pipe(ends.data()) != 0) throw std::system_error(errno, std::generic_category());
        const pid_t process = ::fork();
        if (process == 0) SaveForEver(ends[1]);
        ::close(ends[1]);
        for (char byte = 0; savings > 0; --savings)
            EXPECT_EQ(::read(ends[0], &byte, 1), 1);
        std::this_thread::sleep_for(later);
        int status = 0;
        EXPECT_EQ(::kill(process, SIGKILL), 0);
        EXPECT_EQ(::waitpid(process, &status, 0), process);
        EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
        ::close(ends[0]);
        return folder.Read(catalogue);
    }
};

TEST_F(KilledCollection, IsTheOldOneOrTheNewOne) {
    folder.Write(catalogue, "\"a\"\r\n");
    std::mt19937 random(20140612);
    std::uniform_int_distribution<int> savings(1, 3), microseconds(0, 3000);
    for (int kill = 0; kill < 30; ++kill) {
        const std::string left =
            LeftAfterAKill(savings(random), std::chrono::microseconds(microseconds(random)));
        ASSERT_TRUE(left == "\"a\"\r\n" || left == "\"b\"\r\n") << left;
    }
}

}  // namespace
}  // namespace coinlet::test
