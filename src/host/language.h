#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "base/texts.h"

namespace tonarix {

/// A language that is installed: its name as the host calls it, and the end of its library's name.
struct LanguageRow {
  std::string name;
  std::string suffix;
};

/// The installed languages.
class LanguageList {
 public:
  virtual ~LanguageList() = default;
  virtual std::vector<LanguageRow> languages() = 0;
};

/// The texts of one language.
class LanguageObject {
 public:
  virtual ~LanguageObject() = default;
  /// The text of a key, "629s". A key without a text raises RuntimeError.
  virtual std::string Wort(const std::string& key) = 0;
};

/// Makes the objects of the language libraries; either call raises when it can't.
struct LanguageLibraries {
  std::function<std::unique_ptr<LanguageList>()> create_list;
  /// By class name, "tonarixlang.deutsch".
  std::function<std::unique_ptr<LanguageObject>(const std::string& class_name)> create_language;
};

/// The texts in the language that the host names. Whatever is missing, the library or a key, the
/// text reads "VOID" and the program works on.
class Language final : public Texts {
 public:
  explicit Language(LanguageLibraries libraries) : libraries_(std::move(libraries)) {}

  /// Asks for the installed languages.
  void SprachInit();
  /// Takes the first installed language with this name; without one there are no texts.
  void SprachWahl(const std::string& name);
  bool SprachAktiv() const { return SprachListeDa_; }
  std::string Wort(TextKey nr) const override;

  std::function<void()> on_chosen;  ///< after each choice, also one that found nothing

 private:
  LanguageLibraries libraries_;
  bool SprachListeDa_ = false;
  std::vector<LanguageRow> rows_;
  std::unique_ptr<LanguageObject> SprachObjekt_;
};

}  // namespace tonarix
