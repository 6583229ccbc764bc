#pragma once

#include <filesystem>
#include <functional>
#include <list>
#include <optional>
#include <string>

#include "host/local/record_file.h"

namespace tonarix {

/// Texts by user, module and key in an SQLite file. A file that can't serve is tried again at each
/// need. Where there was none at the start, or one that can only be read, the store lives in memory
/// meanwhile; what it holds goes into the file as soon as that can be written, except over what
/// another program has stored there since. What is in a file that can't be read is unknown, not
/// nothing, and neither read nor replaced.
class RecordStore {
 public:
  /// How the start found the file.
  enum class Place {
    file,
    file_renewed,  ///< the file was damaged; it stands aside under another name
    memory,        ///< the file or its folder can't be written
    closed,        ///< there is a file that can't be read; until it can each call fails
    waiting,       ///< another program held the file; until it is free each call is HostBusy
  };
  using Log = std::function<void(const std::string& line)>;

  /// `file_stamp` goes into the name of a damaged file that is put aside; `patience_ms` is how long
  /// a call waits for another program that writes. `log` takes what came to pass after the start.
  RecordStore(std::filesystem::path file, std::string file_stamp, int patience_ms, Log log = {});
  /// What memory holds goes into the file now, or is lost and logged.
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

  // Both raise RuntimeError 440 once when another program has stored what memory held too, which is
  // given up then, and when a file that was damaged later was put aside.

  /// Replaces all these records or none. RuntimeError 440 when they can't be kept, HostBusy while
  /// another program writes.
  void write(const RecordTexts& records);
  /// The record, or nothing when there is none. RuntimeError 440 or HostBusy when it can't be read.
  std::optional<std::string> read(const RecordName& name);
  /// True while what is written stays in memory, as the last call found the file.
  bool in_memory() const;

 private:
  using State = RecordFile::State;
  /// Records that belong together: stored at once, or one of them with others before.
  struct Batch {
    RecordTexts texts;
    KnownTexts before;  ///< what the file held when memory took them
  };

  void open();
  /// Tries a file again that does not serve.
  void look_again();
  /// What memory holds goes into the file, where that can be written.
  void flush();
  void hold(const RecordTexts& records);
  const std::string* held(const RecordName& name) const;
  /// True where memory serves because there surely is no file.
  bool without_file() const;
  [[noreturn]] void tell(const std::string& line) const;
  [[noreturn]] void refuse() const;

  std::filesystem::path path_;
  std::string stamp_;
  int patience_ms_;
  Log log_;
  std::optional<RecordFile> file_;
  State state_ = State::shut;
  Place place_ = Place::file;
  std::list<Batch> memory_;  ///< what is not in the file yet; no record is in two of them
  std::filesystem::path put_aside_;
  std::string reason_;
  std::error_code error_;
};

}  // namespace tonarix
