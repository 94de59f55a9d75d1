// The program is killed while it saves over a design: the design is the old one or the new one, never a
// piece.
#include "store/open_file.h"
#include "store/save_form.h"
#include "support/world.h"

#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstddef>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <string_view>
#include <sys/wait.h>
#include <system_error>
#include <thread>

namespace coinlet::test {
namespace {

constexpr std::string_view designName = "coin";
constexpr std::array<Colour, 2> colours{RGB(200, 30, 40), RGB(10, 120, 130)};

/// A user who saves two designs under the same name, in turn.
class KilledSave : public testing::Test, protected World {
protected:
    void Draw(std::size_t design) {
        main.Pic.surface.Line(0, 0, 499, 499, colours.at(design), Box::Filled);
        SetRows({"design " + std::to_string(design)});
    }
    void Save() {
        session.SaveMode = "BMP";
        SaveForm dialog(context);
        platform.answers.assign(1, Answer::Yes);
        platform.doings.emplace_back([&] {
            dialog.Text1.SetText(std::string(designName));
            dialog.SaveKnop.PointerClicked();
        });
        platform.ShowModal(dialog);
    }
    /// The files of the design, as they are once it is saved in peace.
    struct Files {
        std::string picture, infoText;
    };
    Files Present() const {
        return {Stored(std::string(designName) + ".pat"), Stored(std::string(designName) + ".txt")};
    }

    /// A process of its own that saves until it is killed, and tells the start of each saving by a byte.
    class Saver {
    public:
        explicit Saver(KilledSave& user) {
            std::array<int, 2> ends{};
            if (::pipe(ends.data()) != 0) throw std::system_error(errno, std::generic_category());
            process_ = ::fork();
            if (process_ == 0) user.SaveForEver(ends[1]);
            ::close(ends[1]);
            starts_ = ends[0];
        }
        Saver(const Saver&) = delete;
        Saver& operator=(const Saver&) = delete;
        ~Saver() { ::close(starts_); }

        bool WaitForStarts(int count) const {
            for (char byte = 0; count > 0; --count)
                if (::read(starts_, &byte, 1) != 1) return false;
            return true;
        }
        /// True if it was the kill that ended it.
        bool Kill() const {
            int status = 0;
            return ::kill(process_, SIGKILL) == 0 && ::waitpid(process_, &status, 0) == process_ &&
                   WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
        }

    private:
        pid_t process_ = -1;
        int starts_ = -1;
    };

private:
    [[noreturn]] void SaveForEver(int starts) {
        for (std::size_t design = 0;; design = 1 - design) {
            Draw(design);
            if (::write(starts, "s", 1) != 1) ::_exit(1);
            Save();
        }
    }
};

TEST_F(KilledSave, LeavesTheOldDesignOrTheNewOne) {
    constexpr int kills = 50;
    std::array<Files, 2> whole;
    std::array<Image, 2> canvases;
    for (std::size_t design = 0; design < whole.size(); ++design) {
        Draw(design);
        Save();
        whole.at(design) = Present();
        canvases.at(design) = main.Pic.surface.Image();
    }
    ASSERT_NE(whole[0].picture, whole[1].picture);
    ASSERT_NE(whole[0].infoText, whole[1].infoText);

    std::mt19937 random(20140612);
    std::uniform_int_distribution<int> savings(1, 3);
    std::uniform_int_distribution<int> microseconds(0, 5000);
    for (int kill = 0; kill < kills; ++kill) {
        SCOPED_TRACE(kill);
        const Saver saver(*this);
        ASSERT_TRUE(saver.WaitForStarts(savings(random)));
        std::this_thread::sleep_for(std::chrono::microseconds(microseconds(random)));
        ASSERT_TRUE(saver.Kill());

        const Files left = Present();
        const bool isSecond = left.picture == whole[1].picture;
        ASSERT_TRUE(isSecond || left.picture == whole[0].picture) << left.picture.size() << " bytes";
        ASSERT_TRUE(left.infoText == whole[0].infoText || left.infoText == whole[1].infoText)
            << left.infoText;

        // A fresh start finds this design alone, whatever else the kill has left in the folder, and opens it.
        World next;
        fs::copy(folder / "app/Ontwerpen", next.folder / "app/Ontwerpen", fs::copy_options::recursive);
        OpenFile dialog(next.context);
        next.platform.doings.emplace_back([&] {
            EXPECT_EQ(dialog.List1.ListCount(), 1);
            dialog.List1.UserPicks(0);
            dialog.OkKnop.PointerClicked();
        });
        next.platform.ShowModal(dialog);
        EXPECT_EQ(next.session.DesignName, designName);
        ASSERT_TRUE(next.main.Pic.surface.Image() == canvases.at(isSecond ? 1 : 0));
        ASSERT_EQ(next.Rows().size(), 1U);
    }
    // Each start clears away what the kills before it left.
    RemoveStrays(folder / "app/Ontwerpen");
    const fs::directory_iterator files(folder / "app/Ontwerpen");
    EXPECT_EQ(std::distance(begin(files), end(files)), 2);
}

}  // namespace
}  // namespace coinlet::test
