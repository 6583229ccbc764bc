#include "app/options.h"

#include <gtest/gtest.h>

namespace tonarix {
namespace {

TEST(Options, AreReadInEitherForm) {
  Options options;
  EXPECT_FALSE(parse_options({"--data", "/tmp/x", "--user=Lovelace;Ada;4711", "--role", "4",
                              "--language", "English", "--midi=0", "/P=a;;b"},
                             options));
  EXPECT_EQ(options.data, "/tmp/x");
  EXPECT_EQ(options.user, "Lovelace;Ada;4711");
  EXPECT_EQ(options.role, 4);
  EXPECT_EQ(options.language, "English");
  EXPECT_EQ(options.midi, 0);
  EXPECT_EQ(options.parameters, (std::vector<std::string>{"a", "", "b"}));
  EXPECT_FALSE(parse_options({"/P="}, options));
  EXPECT_TRUE(options.parameters.empty());
}

TEST(Options, MistakesAreNamedInOneLine) {
  const std::vector<std::vector<std::string>> mistakes{
      {"--dat", "x"}, {"x"},          {"--data"},       {"--data", ""}, {"--role", "3"},
      {"--role=5"},   {"--midi=x"},   {"--midi", "-1"}, {"--midi=1x"},  {"--midi=99999"},
      {"--user", ""}, {"--user= ;x"}, {"--language="}};
  for (const auto& arguments : mistakes) {
    Options options;
    const auto error = parse_options(arguments, options);
    ASSERT_TRUE(error) << arguments.front();
    EXPECT_EQ(error->line.find('\n'), std::string::npos);
    EXPECT_NE(error->line.find(arguments.front().substr(0, 5)), std::string::npos) << error->line;
  }
}

TEST(Options, TheUsualFolderIsNeverWhereTheProgramWasStarted) {
  constexpr const char* kNames[] = {"XDG_DATA_HOME", "HOME"};
  struct Case {
    const char *data, *home, *folder;
  };
  for (const auto& [data, home, folder] : {Case{"/d", "/h", "/d/tonarix"},
                                           {"d", "/h", "/h/.local/share/tonarix"},
                                           {"", "/h", "/h/.local/share/tonarix"},
                                           {nullptr, "h", ""},
                                           {nullptr, "", ""},
                                           {nullptr, nullptr, ""}}) {
    for (const auto& [name, value] : {std::pair(kNames[0], data), {kNames[1], home}}) {
      value != nullptr ? setenv(name, value, 1) : unsetenv(name);
    }
    EXPECT_EQ(usual_data_folder().value_or(""), folder);
  }
}

}  // namespace
}  // namespace tonarix
