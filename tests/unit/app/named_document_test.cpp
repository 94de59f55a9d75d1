// What the program begins with when a file was named: a design from anywhere, or a picture to be placed.

#include "app/named_document.h"

#include "core/canvas_work.h"
#include "core/language.h"
#include "support/world.h"
#include "surface/codecs.h"
#include "tools/incoming_pictures.h"

#include <gtest/gtest.h>

namespace coinlet {
namespace {

constexpr Colour red = RGB(200, 30, 40);

class NamedDocumentTest : public ::testing::Test {
protected:
    fs::path Picture(const std::string& name, int width, int height) const {
        Surface surface(world.fonts, width, height);
        surface.Line(0, 0, width - 1, height - 1, red, Box::Filled);
        fs::path path = world.folder / name;
        EXPECT_FALSE(SavePicture(surface.Image(), path));
        return path;
    }
    void Begin(const fs::path& file) {
        const auto document = ReadNamedDocument(file, world.codecs);
        ASSERT_TRUE(document);
        ShowNamedDocument(world.context, pictures, *document);
    }

    test::World world;
    CanvasWork canvasWork;
    IncomingPictures pictures{world.context, canvasWork};
};

TEST_F(NamedDocumentTest, DesignIsShownUnderItsNameAndNothingIsUnsaved) {
    const fs::path file = Picture("Owl.PAT", 700, 500);
    world.folder.Write("Owl.txt", "banner\r\nrule\r\na note\r\n");
    world.session.DesignChanged = true;
    Begin(file);
    EXPECT_EQ(world.main.Pic.surface.Point(10, 10), red);
    EXPECT_EQ(world.main.InfoPic.surface.Point(10, 10), red);
    EXPECT_EQ(world.session.DesignName, "Owl");
    EXPECT_EQ(world.main.Label2.Caption, "Filename : Owl");
    EXPECT_EQ(world.Rows(), std::vector<std::string>{"a note"});
    EXPECT_FALSE(world.session.DesignChanged);
    EXPECT_EQ(world.session.StoredDesign, RevisionOf(world.main));
    EXPECT_EQ(world.StoredFiles(), 0);
}

TEST_F(NamedDocumentTest, PictureFloatsAndWaitsToBePasted) {
    fs::create_directories(world.folder / "app/Data");
    world.folder.Write("app/Data/English.txt", "027 Drag the image\r\n");
    LoadLanguage(world.context, "English");
    world.platform.ShowMain(world.main);
    Begin(Picture("photo.bmp", 40, 30));
    const MainForm& main = world.main;
    EXPECT_EQ(world.session.ToolCode, 50);
    EXPECT_TRUE(main.ClipPic.Visible);
    EXPECT_EQ(main.ClipPic.Left(), 0);
    EXPECT_EQ(main.ClipPic.Top(), 0);
    EXPECT_EQ(main.ClipPic.surface.Image().Width(), 40);
    EXPECT_EQ(main.ClipPic.surface.Image().Height(), 30);
    EXPECT_EQ(main.ClipPic.surface.Point(39, 29), red);
    EXPECT_TRUE(main.HoekKnop.Visible);
    EXPECT_EQ(main.HoekKnop.Caption(), " Paste ");
    EXPECT_EQ(main.InfoLabel.Caption, "Drag the image");
    // It is no design yet: the canvas, its name and what is unsaved stay as they were.
    EXPECT_EQ(main.Pic.surface.Point(10, 10), white);
    EXPECT_EQ(world.session.DesignName, "");
    EXPECT_FALSE(world.session.DesignChanged);
}

TEST_F(NamedDocumentTest, LargePictureFloatsInTheSizeOfTheCanvas) {
    world.platform.ShowMain(world.main);
    const Surface& floating = world.main.ClipPic.surface;
    Begin(Picture("wide.bmp", 1000, 333));
    EXPECT_EQ(floating.Image().Width(), 500);
    EXPECT_EQ(floating.Image().Height(), 166);  // 166.5, half to even
    Begin(Picture("thin.bmp", 1, 1200));
    EXPECT_EQ(floating.Image().Width(), 1);
    EXPECT_EQ(floating.Image().Height(), 500);
}

TEST_F(NamedDocumentTest, WhatHoldsNoPictureCannotBeRead) {
    world.folder.Write("note.pat", "no picture");
    EXPECT_FALSE(ReadNamedDocument(world.folder / "note.pat", world.codecs));
    EXPECT_FALSE(ReadNamedDocument(world.folder / "nothing.bmp", world.codecs));
    EXPECT_FALSE(ReadNamedDocument(world.folder.Path(), world.codecs));
}

}  // namespace
}  // namespace coinlet
