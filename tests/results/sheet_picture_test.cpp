#include "results/sheet_picture.h"

#include <gtest/gtest.h>

#include "support/full_sheet.h"

namespace tonarix {
namespace {

bool overlap(const SheetBox& a, const SheetBox& b) {
  return a.left < b.right() && b.left < a.right() && a.top < b.bottom() && b.top < a.bottom();
}

TEST(SheetPicture, TheLongestSheetHasAllItsTextsApartAndOnThePage) {
  for (const SheetShape shape : {SheetShape::wide, SheetShape::tall}) {
    const SheetPicture picture = sheet_picture(full_sheet(), SheetGround::screen, shape);
    EXPECT_EQ(picture.texts.size(), 1U + 12 + 1 + 34 + 1 + 2 + 2 + 76);
    for (const SheetText& text : picture.texts) {
      EXPECT_GE(text.box.left, 0);
      EXPECT_LE(text.box.right(), picture.width);
      EXPECT_LE(text.box.bottom(), picture.height);
      for (const SheetText& other : picture.texts) {
        EXPECT_FALSE(&other != &text && overlap(text.box, other.box))
            << text.text << ", " << other.text;
      }
    }
  }
}

TEST(SheetPicture, PaperSaysTheSameAllInWhiteAndHiddenLinesShortenTheFrame) {
  SheetContent content = full_sheet();
  const SheetPicture screen = sheet_picture(content, SheetGround::screen);
  const SheetPicture paper = sheet_picture(content, SheetGround::paper);
  for (const SheetSurface& surface : paper.surfaces) EXPECT_EQ(surface.fill, signal::white);
  ASSERT_EQ(paper.texts.size(), screen.texts.size());
  for (std::size_t i = 0; i < paper.texts.size(); ++i) {
    EXPECT_EQ(paper.texts[i].text, screen.texts[i].text);
  }
  for (std::size_t i = 3; i < 6; ++i) content.head[i].visible = false;
  const SheetPicture shorter = sheet_picture(content, SheetGround::paper);
  EXPECT_EQ(paper.surfaces[0].box.height - shorter.surfaces[0].box.height, 3 * 20);
  EXPECT_EQ(shorter.surfaces[0].box.bottom() - shorter.texts[6].box.bottom(), 7) << "105 twips";
}

}  // namespace
}  // namespace tonarix
