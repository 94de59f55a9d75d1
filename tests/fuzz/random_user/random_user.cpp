#include "fuzz/random_user/random_user.h"

#include "app/dialogs.h"
#include "base/files.h"
#include "fuzz/random_user/chance.h"
#include "fuzz/random_user/damage.h"
#include "fuzz/random_user/extremes.h"
#include "player/commands.h"
#include "player/failure.h"
#include "player/values.h"
#include "support/bmp_bytes.h"
#include "support/gif_bytes.h"

#include <algorithm>
#include <numeric>
#include <ostream>

namespace coinlet::test {

namespace fs = std::filesystem;

namespace {

/// So that what was hidden or disabled by an assignment comes back before long.
constexpr std::size_t stepsOfALife = 300;
/// More than one handler asks for.
constexpr std::ptrdiff_t answersReady = 12;

std::string WriteFileLine(const std::string& path, const Bytes& bytes) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string line = "write-file " + path + " \"";
    for (const std::uint8_t byte : bytes)
        line += {'\\', 'x', digits[byte / 16U], digits[byte % 16U]};
    return line + '"';
}

/// The folder of designs in the application folder, and where those that are there at first are kept.
constexpr const char* designFolder = "Ontwerpen";
constexpr const char* spareFolder = "spare";

std::string CopyFileLine(const std::string& from, const std::string& to) {
    return "copy-file " + player::Quoted(from) + " " + player::Quoted(to);
}

/// Keeps a copy of each design that is there at first.
std::vector<std::string> KeepDesignLines(const player::Places& places) {
    std::vector<std::string> lines;
    for (const std::string& file : ListFiles(places.Application() / designFolder, "*")) {
        lines.push_back(
            CopyFileLine(designFolder + ("/" + file), std::string("@out/") + spareFolder + "/" + file));
    }
    return lines;
}

/// Tags with pictures.
std::vector<std::string> CollectionLines() {
    return {"copy-file Images/small.gif Collection/255.jpg", "copy-file Images/cut.bmp Collection/001.jpg",
            R"(write-file Collection/Collection.col "\"001\"\r\n\"255\"\r\n\"7\"\r\n")"};
}

/// Who deletes for hours has nothing left to look at: what the program deletes when its user says so comes
/// back.
std::vector<std::string> RefillLines(const player::Places& places) {
    std::vector<std::string> lines = CollectionLines();
    for (const std::string& file : ListFiles(places.Out() / spareFolder, "*")) {
        lines.push_back(
            CopyFileLine(std::string("@out/") + spareFolder + "/" + file, designFolder + ("/" + file)));
    }
    return lines;
}

/// Pictures for the image browser in place of the stock pictures: small ones, and a damaged one.
std::vector<std::string> FirstLines() {
    constexpr std::size_t pixelBytes = 4464;  // 48 by 31 pixels of 3
    Bytes pixels(pixelBytes);
    std::iota(pixels.begin(), pixels.end(), std::uint8_t{0});
    const Bytes bitmap = BmpBytes{.width = 48, .height = 31, .bits = 24, .pixels = pixels}.File();
    const std::vector<std::uint8_t> indices{0, 1, 2, 3, 3, 2, 1, 0, 1};
    return {"delete-folder Images",
            WriteFileLine("Images/bitmap.bmp", bitmap),
            WriteFileLine("Images/cut.bmp", Bytes(bitmap.begin(), bitmap.begin() + 99)),
            WriteFileLine("Images/small.gif",
                          GifBytes{.width = 3, .height = 3, .frames = {{0, 0, 3, 3, indices}}}.File()),
            "copy-file Images/bitmap.bmp @out/Pictures/bitmap.bmp",
            "copy-file Images/cut.bmp @out/Pictures/cut.bmp",
            "copy-file Images/small.gif @out/Pictures/deeper/small.gif"};
}

/// Lines that queue answers of a kind that is running out.
std::vector<std::string> AnswerLines(Dice& dice, const player::Answers& answers) {
    const auto& waiting = answers.Waiting();
    const auto isQuestion = [](const player::QueuedAnswer& queued) {
        const Answer* const answer = std::get_if<Answer>(&queued);
        return answer && *answer != Answer::Ok;
    };
    const auto isText = [](const player::QueuedAnswer& queued) {
        return std::holds_alternative<player::TextAnswer>(queued);
    };
    const auto isFolder = [](const player::QueuedAnswer& queued) {
        return std::holds_alternative<player::FolderAnswer>(queued);
    };
    constexpr const char* choices[] = {"answer yes", "answer no", "answer cancel"};
    constexpr const char* folders[] = {"answer-folder Images", "answer-folder \"\"", "answer-folder nowhere",
                                       "answer-folder @out/Pictures"};
    std::vector<std::string> lines;
    for (auto count = std::ranges::count_if(waiting, isQuestion); count < answersReady; ++count)
        lines.emplace_back(dice.Pick(choices));
    for (auto count = std::ranges::count_if(waiting, isText); count < answersReady; ++count)
        lines.push_back("answer-text " + AnyText(dice));
    for (auto count = std::ranges::count_if(waiting, isFolder); count < answersReady; ++count)
        lines.emplace_back(dice.Pick(folders));
    return lines;
}

/// All forms that a user should come by.
std::vector<std::string> FormNames() {
    std::vector<std::string> names{"Main"};
    for (const DialogRow& row : Dialogs())
        names.emplace_back(row.form);
    return names;
}

}  // namespace

std::string AnyLine(const Chance& chance, std::span<const WeightedMaker> makers) {
    const std::size_t all = std::accumulate(makers.begin(), makers.end(), std::size_t{0},
                                            [](std::size_t sum, auto& maker) { return sum + maker.weight; });
    while (true) {
        std::size_t chosen = chance.dice.Below(all);
        auto maker = makers.begin();
        for (; chosen >= maker->weight; ++maker)
            chosen -= maker->weight;
        if (std::string line = maker->make(chance); !line.empty()) return line;
    }
}

RandomUser::RandomUser(Dice dice, std::size_t steps, std::vector<std::string> favourites,
                       const player::Places& places, std::ostream& script)
    : dice_(std::move(dice)),
      steps_(steps),
      places_(places),
      script_(script),
      favourites_(std::move(favourites)),
      reach_(FormNames()) {
    for (auto& lines : {FirstLines(), CollectionLines(), KeepDesignLines(places)})
        std::ranges::copy(lines, std::back_inserter(prepared_));
    prepared_.emplace_back("expect Program.Ended false");
}

std::optional<player::ScriptLine> RandomUser::NextLine(player::Life* life) {
    if (life) {
        if (const std::string fault = faults_.Find(life->platform); !fault.empty()) player::Fail(fault);
        if (life->platform.Ended()) CheckFilesAfterEnd();
    }
    if (step_ == steps_ || dice_.IsUsedUp()) return std::nullopt;
    ++step_;
    std::string line = MakeLine(life);
    script_ << line << std::endl;  // A crash must not take it away.
    return player::ScriptLine{static_cast<int>(step_), std::move(line)};
}

std::string RandomUser::MakeLine(player::Life* life) {
    if (prepared_.empty()) {
        if (life->platform.Ended() || stepsOfLife_ == stepsOfALife) {
            if (const std::string fault = FaultOfStock(*life); !fault.empty()) player::Fail(fault);
            PrepareRestart();
            return MakeLine(life);
        }
        ++stepsOfLife_;
        const Chance chance{dice_, *life, pressed_, reach_, favourites_};
        constexpr std::size_t oneInInterrupts = 12;
        for (std::string& line : AnswerLines(dice_, life->answers))
            prepared_.push_back(std::move(line));
        prepared_.push_back(dice_.OneIn(oneInInterrupts) ? InterruptLine(chance)
                                                         : AnyUserOrStateLine(chance));
        NoteUse(*life, player::SplitWords(prepared_.back()));
        constexpr std::size_t oneInWaits = 4;
        if (!IsLawless() && dice_.OneIn(oneInWaits)) WaitForUnused(chance);
    }
    std::string line = std::move(prepared_.front());
    prepared_.pop_front();
    return line;
}

std::string RandomUser::AnyUserOrStateLine(const Chance& chance) const {
    constexpr std::size_t oneInState = 3;
    return AnyLine(chance, IsLawless() && chance.dice.OneIn(oneInState) ? StateLines() : UserLines());
}

std::string RandomUser::InterruptLine(const Chance& chance) const {
    return "interrupt " + std::to_string(chance.dice.Between(1, 3)) + " try " + AnyUserOrStateLine(chance);
}

void RandomUser::WaitForUnused(const Chance& chance) {
    const auto [seen, unseen] = reach_.FindUnused(chance.life);
    // He waits rather for what he has seen before.
    const auto& commands = seen.empty() || (chance.dice.OneIn(4) && !unseen.empty()) ? unseen : seen;
    if (commands.empty()) return;
    constexpr int mostMoments = 3;
    prepared_.insert(std::prev(prepared_.end()), "interrupt " +
                                                     std::to_string(chance.dice.Between(1, mostMoments)) +
                                                     " try " + chance.dice.Pick(commands));
}

void RandomUser::Interrupting(const player::Life& life, const player::Call& call) {
    NoteUse(life, call.words);  // Behind "try" stands a command.
}

/// In lives where everything may happen, nothing counts as use.
void RandomUser::NoteUse(const player::Life& life, std::span<const player::Word> words) {
    if (IsLawless()) return;
    reach_.Look(life);
    reach_.Note(life, words[0].source, words.size() > 1 ? words[1].source : "");
}

void RandomUser::PrepareRestart() {
    stepsOfLife_ = 0;
    ++lives_;
    std::ranges::move(healing_, std::back_inserter(prepared_));
    healing_.clear();
    // With each start unsaved work comes back as a design: too many take too long to be looked through.
    constexpr std::size_t manyDesigns = 40;
    const fs::path designs = places_.Application() / "Ontwerpen";
    if (ListFiles(designs, "*").size() > manyDesigns) {
        for (const std::string& name : ListFiles(designs, "Recovered *;Hersteld *"))
            prepared_.push_back("delete-file \"Ontwerpen/" + name + "\"");
    }
    if (lives_ % 2 == 0) std::ranges::move(RefillLines(places_), std::back_inserter(prepared_));
    if (IsAmongDamage()) {
        Damage damage = DamageAThird(dice_, places_.Application());
        std::ranges::move(damage.lines, std::back_inserter(prepared_));
        healing_ = std::move(damage.healing);
    }
    prepared_.emplace_back("restart");
}

void RandomUser::ProgramEnding() {
    filesAtEnd_ = ReadFiles();
}

void RandomUser::CheckFilesAfterEnd() {
    if (!filesAtEnd_) return;
    const Files files = ReadFiles();
    const auto [before, after] = std::ranges::mismatch(*filesAtEnd_, files);
    if (after != files.end())
        player::Fail("after the end of the program " + after->first.string() + " was written");
    if (before != filesAtEnd_->end())
        player::Fail("after the end of the program " + before->first.string() + " was deleted");
    filesAtEnd_.reset();
}

RandomUser::Files RandomUser::ReadFiles() const {
    Files files;
    for (const fs::path& folder : {places_.Application(), places_.Out(), fs::current_path()}) {
        for (const auto& entry : fs::recursive_directory_iterator(folder)) {
            const auto bytes = entry.is_regular_file() ? ReadFile(entry.path()) : std::nullopt;
            if (bytes) files[entry.path()] = std::string(bytes->begin(), bytes->end());
        }
    }
    return files;
}

}  // namespace coinlet::test
