#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "host/local/record_file.h"

namespace tonarix {

/// Texts by user, module and key in an SQLite file. A file that can't serve is tried again at each
/// need. Where its folder was closed at the start the store lives in memory meanwhile, and what it
/// holds goes into the file as soon as there is one.
class RecordStore {
 public:
  /// How the start found the file.
  enum class Place {
    file,
    file_renewed,  ///< the file was damaged; it stands aside under another name
    memory,        ///< the file or its folder can't be written
    waiting,       ///< another program held the file; until it is free each call is HostBusy
  };

  /// `file_stamp` goes into the name of a damaged file that is put aside; `patience_ms` is how long
  /// a call waits for another program that writes.
  RecordStore(std::filesystem::path file, const std::string& file_stamp, int patience_ms);
  ~RecordStore();
  RecordStore(const RecordStore&) = delete;
  RecordStore& operator=(const RecordStore&) = delete;

  Place place() const { return place_; }
  /// The damaged file's new name, where there is one.
  const std::filesystem::path& put_aside() const { return put_aside_; }
  /// Why the start found no file to write, in the words of the library.
  const std::string& reason() const { return reason_; }
  /// The same as an error of the system.
  std::error_code error() const { return error_; }

  /// Replaces all these records or none. RuntimeError 440 when they can't be kept, HostBusy while
  /// another program writes.
  void write(const RecordTexts& records);
  /// The record, or nothing when there is none. RuntimeError 440 or HostBusy when it can't be read.
  std::optional<std::string> read(const RecordName& name);

 private:
  using State = RecordFile::State;

  void open();
  /// Tries a file again that does not serve; what memory holds goes into it.
  void open_again();
  bool rename_damaged(const std::string& stamp);
  [[noreturn]] void refuse() const;

  std::filesystem::path path_;
  int patience_ms_;
  std::optional<RecordFile> file_;
  Place place_ = Place::file;
  RecordTexts memory_;  ///< what is not in the file yet
  std::filesystem::path put_aside_;
  std::string reason_;
  std::error_code error_;
};

}  // namespace tonarix
