#include "writings.h"

#include "app/start_up.h"
#include "collection/collection_form.h"
#include "core/language.h"
#include "core/main_life.h"
#include "core/settings.h"
#include "launch/application_folder.h"
#include "shell/qt_printer.h"
#include "store/recovery.h"
#include "store/save_form.h"
#include "surface/codecs.h"

#include <algorithm>
#include <chrono>
#include <gtest/gtest.h>

namespace coinlet::test {

namespace {

/// Calls until a new file stands under its name: open, write, flush, close, rename. The flush of the folder
/// comes behind.
constexpr int callsOfAFile = 5;

class InAWorld : public Writing, protected World {
public:
    fs::path Folder() const override { return folder.Path(); }

protected:
    InAWorld() {
        fs::create_directories(folder / "app/Data");
        fs::create_directories(folder / "app/Collection");
        folder.Write("app/Data/English.txt", "420 Recovered\r\n421 It is back:\r\n");
        LoadLanguage(context, "English");
        session.StoredDesign = RevisionOf(main);
    }
    bool IsStored() const { return session.StoredDesign == RevisionOf(main); }
    void Draw(int row) { main.Pic.surface.Line(10, row, 490, row, black); }
};

/// The user saves or exports, and says yes to whatever he is asked.
class Saving : public InAWorld {
protected:
    void SaveIn(const char* mode) {
        session.SaveMode = mode;
        platform.answers.assign(1, Answer::Yes);
        SaveForm dialog(context);
        platform.doings.emplace_back([&] {
            dialog.Text1.SetText("tag");
            dialog.SaveKnop.PointerClicked();
            staysOpen_ = dialog.Loaded();
            if (staysOpen_) dialog.Unload();
        });
        platform.ShowModal(dialog);
    }
    bool StaysOpen() const { return staysOpen_; }
    bool WasTold(const std::string& prompt) const {
        return std::ranges::any_of(platform.messages,
                                   [&](const Message& each) { return each.prompt == prompt; });
    }

private:
    bool staysOpen_ = false;
};

class DesignSaving : public Saving {
public:
    explicit DesignSaving(bool overAnOlderOne) {
        if (overAnOlderOne) {
            Draw(100);
            SetRows({"an old note"});
            SaveIn("BMP");
        }
        Draw(200);
        SetRows({"a note", "and another"});
        session.DesignChanged = true;
    }
    std::vector<fs::path> Targets() const override {
        return {folder / "app/Ontwerpen/tag.pat", folder / "app/Ontwerpen/tag.txt"};
    }
    void Do() override { SaveIn("BMP"); }
    void ExpectReaction(std::optional<int>, bool isWritten) override {
        // Nothing is said; but what isn't in the store counts as unsaved for the snapshots.
        EXPECT_FALSE(StaysOpen());
        EXPECT_FALSE(session.DesignChanged);
        EXPECT_EQ(IsStored(), isWritten);
        for (const Message& each : platform.messages)
            EXPECT_EQ(each.title, " Exist");
    }
};

class JpegExport : public Saving {
public:
    explicit JpegExport(bool overAnOlderOne) {
        if (overAnOlderOne) {
            Draw(100);
            SaveIn("JPG");
        }
        Draw(200);
        session.DesignChanged = true;
    }
    std::vector<fs::path> Targets() const override { return {folder / "Pictures/tag.jpg"}; }
    void Do() override { SaveIn("JPG"); }
    void ExpectReaction(std::optional<int> step, bool isWritten) override {
        // The scratch bitmap comes first; the user is told of it alone.
        const bool scratchFailed = step && *step <= callsOfAFile;
        EXPECT_EQ(WasTold("File save not as JPG!"), scratchFailed);
        EXPECT_EQ(StaysOpen(), scratchFailed);
        EXPECT_EQ(session.DesignChanged, scratchFailed);
        EXPECT_FALSE(FileExists(folder / "app/mydummy.bmp"));
        EXPECT_FALSE(IsStored());
        EXPECT_FALSE(scratchFailed && isWritten);
    }
};

class SettingsOnLeaving : public InAWorld {
public:
    SettingsOnLeaving() {
        EXPECT_FALSE(WriteLanguageSetting(services.applicationFolder, "Nederlands"));
        session.LanguageName = "English";
        platform.ShowMain(main);
    }
    std::vector<fs::path> Targets() const override { return {folder / "app/Coinlet.ini"}; }
    void Do() override {
        platform.Do([&] { main.Unload(); });
    }
    void ExpectReaction(std::optional<int>, bool) override {
        // A file that can't be written keeps nobody in the program.
        EXPECT_TRUE(platform.Ended());
        EXPECT_TRUE(platform.messages.empty());
    }

private:
    MainLife life_{context};
};

class SettingsOfAFirstStart : public InAWorld {
public:
    SettingsOfAFirstStart() {
        main.Load = [this] { StartUp(context); };
    }
    std::vector<fs::path> Targets() const override { return {folder / "app/Coinlet.ini"}; }
    void Do() override { platform.ShowMain(main); }
    void ExpectReaction(std::optional<int>, bool) override {
        EXPECT_TRUE(main.Loaded());
        EXPECT_EQ(main.Caption, "Coinlet Designer (Nederlands)");
        EXPECT_TRUE(platform.messages.empty());
    }
};

class CatalogueSaving : public InAWorld {
public:
    CatalogueSaving() { folder.Write("app/Collection/Collection.col", "\"1\"\r\n\"2\"\r\n"); }
    std::vector<fs::path> Targets() const override { return {folder / "app/Collection/Collection.col"}; }
    void Do() override {
        CollectionForm dialog(context);
        platform.doings.emplace_back([&] {
            dialog.Text1.SetText("3");
            dialog.AddKnop.Click();
            dialog.OkKnop.Click();
            staysOpen_ = dialog.Loaded();
        });
        platform.ShowModal(dialog);
    }
    void ExpectReaction(std::optional<int>, bool) override {
        EXPECT_FALSE(staysOpen_);
        EXPECT_TRUE(platform.messages.empty());
    }

private:
    bool staysOpen_ = false;
};

class SnapshotWriting : public InAWorld {
public:
    SnapshotWriting() {
        Draw(100);
        SetRows({"an old note"});
        recovery_.WriteNow();
        Draw(200);
        SetRows({"a note"});
        recovery_.SecondPassed();
    }
    std::vector<fs::path> Targets() const override {
        std::vector<fs::path> files;
        for (const std::string& name : ListFiles(folder / "state", "*.pat;*.txt"))
            files.push_back(folder / "state" / name);
        return files;
    }
    void Do() override { recovery_.SecondPassed(); }
    void ExpectReaction(std::optional<int>, bool) override {
        EXPECT_TRUE(platform.messages.empty());
        // What couldn't be written is tried again.
        triesAgain_ = true;
    }
    ~SnapshotWriting() override {
        if (!triesAgain_) return;
        recovery_.SecondPassed();
        const auto files = Targets();
        EXPECT_EQ(files.size(), 2U);
        if (files.empty()) return;
        const auto picture = DecodeBmp(ReadFile(files.front()).value_or(Bytes()));
        EXPECT_TRUE(picture && picture->At(250, 200) == black);
    }
    SnapshotWriting(const SnapshotWriting&) = delete;
    SnapshotWriting& operator=(const SnapshotWriting&) = delete;

private:
    Recovery recovery_{context, folder / "state"};
    bool triesAgain_ = false;
};

/// A start that finds the work of a program that was killed.
class WorkPutBack : public InAWorld {
public:
    WorkPutBack() {
        fs::create_directories(folder / "state");
        Draw(200);
        folder.Write("state/design-abc.lock", "");
        EXPECT_FALSE(SavePicture(main.Pic.surface.Image(), folder / "state/design-abc.pat"));
        folder.Write("state/design-abc.txt", "banner\r\nrule\r\na note\r\n");
        // Its name is that of a minute.
        fs::last_write_time(folder / "state/design-abc.pat", fs::file_time_type() + std::chrono::hours(1));
    }
    std::vector<fs::path> Targets() const override {
        static std::string name;
        for (const std::string& found : ListFiles(folder / "app/Ontwerpen", "Recovered *.pat"))
            name = found.substr(0, found.size() - 4);
        return {folder / "app/Ontwerpen" / (name + ".pat"), folder / "app/Ontwerpen" / (name + ".txt")};
    }
    void Do() override { recovery_.PutBackLostWork(); }
    void ExpectReaction(std::optional<int>, bool isWritten) override {
        // All of it is in the store, or all of it waits for a later start.
        EXPECT_EQ(ListFiles(folder / "app/Ontwerpen", "*").size(), isWritten ? 2U : 0U);
        EXPECT_EQ(FileExists(folder / "state/design-abc.pat"), !isWritten);
        EXPECT_EQ(main.InfoLabel.Caption.starts_with("It is back:"), isWritten);
    }

private:
    Recovery recovery_{context, folder / "state"};
};

/// The first start of somebody who may not write to the installed folder.
class FolderOfANewUser : public Writing {
public:
    FolderOfANewUser() {
        for (const char* name : {"Data", "Ontwerpen", "Collection"})
            fs::create_directories(folder_ / "delivered" / name);
        folder_.Write("delivered/Data/English.txt", "001 Ready\r\n");
        folder_.Write("delivered/Ontwerpen/a.pat", "a design");
        folder_.Write("delivered/Ontwerpen/b.pat", "another design");
        folder_.Write("delivered/Collection/Collection.col", "\"1\"\r\n");
    }
    std::vector<fs::path> Targets() const override {
        return {folder_ / "own/.handed-out", folder_ / "own/Ontwerpen/a.pat", folder_ / "own/Ontwerpen/b.pat",
                folder_ / "own/Collection/Collection.col"};
    }
    void Do() override { isMade_ = FillApplicationFolder(folder_ / "own", folder_ / "delivered"); }
    void ExpectReaction(std::optional<int>, bool) override {
        EXPECT_TRUE(isMade_);
        EXPECT_EQ(folder_.Read("own/Data/English.txt"), "001 Ready\r\n");
        // What was handed out is on the list: what is deleted stays deleted.
        if (folder_.Read("own/.handed-out") != "(no file)") return;
        for (const fs::path& file : Targets())
            EXPECT_FALSE(FileExists(file)) << file;
    }
    fs::path Folder() const override { return folder_.Path(); }

private:
    TemporaryFolder folder_;
    bool isMade_ = false;
};

class PrintingToAFile : public Writing {
public:
    PrintingToAFile() { folder_.Write("Coinlet.pdf", "of an earlier job"); }
    std::vector<fs::path> Targets() const override { return {folder_ / "Coinlet.pdf"}; }
    void Do() override {
        QtPrinter printer(folder_.Path(), {.names = [] { return std::vector<std::string>(); },
                                           .standard = [] { return std::string(); },
                                           .open = {}});
        printer.Box(300, 3000, 2300, 4000, black);
        printer.EndDoc();
    }
    /// A printed file tells when it was printed.
    bool IsNew(const Bytes& found, const Bytes&) const override {
        const std::string text(found.begin(), found.end());
        return text.starts_with("%PDF-") && text.ends_with("%%EOF\n");
    }
    void ExpectReaction(std::optional<int>, bool) override {}
    fs::path Folder() const override { return folder_.Path(); }

private:
    TemporaryFolder folder_;
};

template <class Kind, auto... arguments>
std::unique_ptr<Writing> Make() {
    return std::make_unique<Kind>(arguments...);
}

}  // namespace

const std::vector<KindOfWriting>& KindsOfWriting() {
    static const std::vector<KindOfWriting> kinds{
        {.name = "a design over an older one", .make = Make<DesignSaving, true>},
        {.name = "a new design", .make = Make<DesignSaving, false>},
        {.name = "an export over an older one", .make = Make<JpegExport, true>},
        {.name = "a new export", .make = Make<JpegExport, false>},
        {.name = "the settings on leaving", .make = Make<SettingsOnLeaving>},
        {.name = "the settings of a first start", .make = Make<SettingsOfAFirstStart>},
        {.name = "the catalogue", .make = Make<CatalogueSaving>},
        {.name = "a snapshot", .make = Make<SnapshotWriting>, .waitsForTheDisk = false},
        {.name = "work that comes back", .make = Make<WorkPutBack>},
        {.name = "the folder of a new user", .make = Make<FolderOfANewUser>},
        {.name = "a printed file", .make = Make<PrintingToAFile>},
    };
    return kinds;
}

std::vector<std::optional<Bytes>> ContentOf(const std::vector<fs::path>& targets) {
    std::vector<std::optional<Bytes>> content;
    for (const fs::path& target : targets)
        content.push_back(ReadFile(target));
    return content;
}

}  // namespace coinlet::test
