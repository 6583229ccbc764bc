#include "host/local/catalogue_folder.h"

#include <QCryptographicHash>
#include <QFile>
#include <QTranslator>
#include <algorithm>
#include <optional>

#include "base/runtime_error.h"

namespace tonarix {

namespace {

constexpr const char* kClass = "tonarixlang.";
constexpr const char* kEnding = ".qm";

QByteArray content_of(const std::string& file) {
  QFile source(QString::fromStdString(file));
  return source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray();
}

/// The content is what was compiled: cut off or changed, a catalogue may still load and lack texts.
bool is_whole(const QByteArray& content, const QByteArray& sum) {
  const QByteArray checksum = QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex();
  return sum.trimmed() == QByteArray::number(content.size()) + ' ' + checksum;
}

class CatalogueLanguage final : public LanguageObject {
 public:
  explicit CatalogueLanguage(const std::filesystem::path& file) {
    content_ = content_of(file.string());
    const auto* bytes = reinterpret_cast<const uchar*>(content_.constData());
    if (content_.isEmpty() || !is_whole(content_, content_of(file.string() + ".sum")) ||
        !catalogue_.load(bytes, static_cast<int>(content_.size()))) {
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

/// Suffixes of all files that are called like a catalogue.
std::vector<std::string> suffixes_in(const std::filesystem::path& folder) {
  std::vector<std::string> suffixes;
  const std::string start = kClass;
  const std::string end = kEnding;
  std::error_code missing;
  for (const auto& entry : std::filesystem::directory_iterator(folder, missing)) {
    const std::string file = entry.path().filename().string();
    if (file.size() <= start.size() + end.size() || !file.starts_with(start)) continue;
    if (!file.ends_with(end)) continue;
    suffixes.push_back(file.substr(start.size(), file.size() - start.size() - end.size()));
  }
  return suffixes;
}

std::string file_of(const std::string& suffix) {
  return kClass + suffix + kEnding;
}

/// What the language calls itself; nothing where the catalogue is not whole.
std::optional<std::string> name_in(const std::filesystem::path& folder, const std::string& suffix) {
  try {
    return CatalogueLanguage(folder / file_of(suffix)).Wort("1000s");
  } catch (const RuntimeError&) {
    return {};
  }
}

class FolderList final : public LanguageList {
 public:
  explicit FolderList(std::filesystem::path folder) : folder_(std::move(folder)) {}

  std::vector<LanguageRow> languages() override {
    std::vector<LanguageRow> rows;
    for (const std::string& suffix : suffixes_in(folder_)) {
      if (const auto name = name_in(folder_, suffix)) rows.push_back({*name, suffix});
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

bool holds_catalogues(const std::filesystem::path& folder) {
  return !suffixes_in(folder).empty();
}

std::vector<std::string> damaged_catalogues(const std::filesystem::path& folder) {
  std::vector<std::string> damaged;
  for (const std::string& suffix : suffixes_in(folder)) {
    if (!name_in(folder, suffix)) damaged.push_back(file_of(suffix));
  }
  std::ranges::sort(damaged);
  return damaged;
}

}  // namespace tonarix
