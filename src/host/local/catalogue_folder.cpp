#include "host/local/catalogue_folder.h"

#include <QFile>
#include <QTranslator>
#include <algorithm>

#include "base/runtime_error.h"

namespace tonarix {

namespace {

constexpr const char* kClass = "tonarixlang.";
constexpr const char* kEnding = ".qm";

class CatalogueLanguage final : public LanguageObject {
 public:
  explicit CatalogueLanguage(const std::filesystem::path& file) {
    QFile source(QString::fromStdString(file.string()));
    if (source.open(QIODevice::ReadOnly)) content_ = source.readAll();
    const auto* bytes = reinterpret_cast<const uchar*>(content_.constData());
    if (content_.isEmpty() || !catalogue_.load(bytes, static_cast<int>(content_.size()))) {
      throw RuntimeError(RuntimeError::kPathError, "No catalogue: " + file.string(),
                         "CatalogueLanguage");
    }
  }

  std::string Wort(const std::string& key) override {
    const QString text = catalogue_.translate("", key.c_str());
    if (text.isEmpty()) {
      throw RuntimeError(RuntimeError::kOther, "No text: " + key, "CatalogueLanguage");
    }
    return text.toStdString();
  }

 private:
  QByteArray content_;  // the catalogue reads from it
  QTranslator catalogue_;
};

class FolderList final : public LanguageList {
 public:
  explicit FolderList(std::filesystem::path folder) : folder_(std::move(folder)) {}

  std::vector<LanguageRow> languages() override {
    std::vector<LanguageRow> rows;
    const std::string start = kClass;
    const std::string end = kEnding;
    for (const auto& entry : std::filesystem::directory_iterator(folder_)) {
      const std::string file = entry.path().filename().string();
      if (file.size() <= start.size() + end.size() || !file.starts_with(start) ||
          !file.ends_with(end)) {
        continue;
      }
      try {
        rows.push_back({CatalogueLanguage(entry.path()).Wort("1000s"),
                        file.substr(start.size(), file.size() - start.size() - end.size())});
      } catch (const RuntimeError&) {
        continue;
      }
    }
    std::sort(rows.begin(), rows.end(), [](const LanguageRow& one, const LanguageRow& other) {
      return one.suffix < other.suffix;
    });
    return rows;
  }

 private:
  std::filesystem::path folder_;
};

}  // namespace

LanguageLibraries catalogue_folder(const std::filesystem::path& folder) {
  return {
      [folder] { return std::make_unique<FolderList>(folder); },
      [folder](const std::string& class_name) {
        return std::make_unique<CatalogueLanguage>(folder / (class_name + kEnding));
      },
  };
}

}  // namespace tonarix
