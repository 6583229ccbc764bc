#include "exercises/determine/windows/scale_picture.h"

#include <gtest/gtest.h>

namespace tonarix {
namespace {

/// "C Db D= Eb" for the notes c, d flat, d natural, e flat.
std::string written(std::int16_t tongeschl) {
  const ScalePicture picture(tongeschl, nullptr);
  std::string text;
  for (const ScalePicture::Note& note : picture.notes()) {
    text += "CDEFGABc"[note.step];
    if (note.sign == ScalePicture::Sign::flat) text += 'b';
    if (note.sign == ScalePicture::Sign::natural) text += '=';
    if (note.sign == ScalePicture::Sign::sharp) text += '#';
    text += ' ';
  }
  return text;
}

TEST(ScalePictureTest, WritesEachScaleOnC) {
  EXPECT_EQ(written(0), "C D E F G A B c ");
  EXPECT_EQ(written(1), "C D Eb F G Ab A= Bb B= c ");
  EXPECT_EQ(written(2), "C Db D= Eb E= F G Ab A= Bb B= c ");
}

}  // namespace
}  // namespace tonarix
