#!/usr/bin/env bash
# Holds the files to the rooms that the CMakeLists.txt tell of. Fails when
# - a file includes a header of a room that its own room doesn't name in USES, or a room names one it doesn't need,
# - a room uses one that stands below it in src/CMakeLists.txt,
# - the widget toolkit is used outside of the windows and the composition,
# - a source, a test or a whole folder is forgotten, so that it would never be built.
cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit 1
folders=$(find src tests -name CMakeLists.txt | sort)
files=$(find src tests -name '*_test.cpp' -o -path 'src/*.h' -o -path 'src/*.cpp' | sort)
qt_core=(/usr/include/*/qt6/QtCore)
# shellcheck disable=SC2086
exec awk -v qt_core="${qt_core[0]}" '
  function folder_of(path) { sub(/\/[^\/]*$/, "", path); return path }
  function problem(place, text) { print place ": " text >"/dev/stderr"; failed = 1 }
  function has_windows(folder) { return folder ~ /\/windows$/ || folder == "src/app" }
  # Place from the ground up; a folder within a listed one comes right after it.
  function height(folder) { return folder in order ? order[folder] : order[folder_of(folder)] + 0.5 }

  function read_command(command, folder, place,    words, count, i, part) {
    gsub(/[()]/, " ", command)
    count = split(command, words)
    if (words[1] == "foreach") {
      for (i = 3; i <= count; ++i) {
        added[folder "/" words[i]] = 1
        if (folder == "src") order["src/" words[i]] = i
      }
    } else if (words[1] == "add_subdirectory") {
      added[folder "/" words[2]] = 1
    } else if (words[1] ~ /^(room|room_tests|add_executable)$/) {
      if (words[1] == "room") { room_in[folder] = words[2]; folder_with[words[2]] = folder }
      part = "SOURCES"
      for (i = 3; i <= count; ++i) {
        if (words[i] == "SOURCES" || words[i] == "USES") part = words[i]
        else if (part == "SOURCES") source[folder "/" words[i]] = 1
        else if (words[1] == "room") uses[folder, words[i]] = place
      }
    }
  }

  FILENAME ~ /CMakeLists.txt$/ {
    sub(/#.*/, "")
    if (command ~ /^ *$/) place = FILENAME ":" FNR
    command = command " " $0
    if (gsub(/\(/, "(", command) > gsub(/\)/, ")", command)) next
    read_command(command, folder_of(FILENAME), place)
    command = ""
    built[folder_of(FILENAME)] = FILENAME
    next
  }
  FNR == 1 {
    own = folder_of(FILENAME)
    if (FILENAME ~ /\.cpp$/ && !(FILENAME in source)) problem(FILENAME ":1", "in no CMakeLists.txt")
  }
  own !~ /^src/ { next }
  /^#include "/ {
    split($0, part, "\"")
    other = "src/" folder_of(part[2])
    if (other == own) next
    needed[own, room_in[other]] = 1
    if (!((own, room_in[other]) in uses)) {
      problem(FILENAME ":" FNR, room_in[own] " does not name " (room_in[other] ? room_in[other] : other))
    }
  }
  /^#include <Q/ && !has_windows(own) {
    split($0, part, /[<>]/)
    if ((getline line < (qt_core "/" part[2])) < 0) problem(FILENAME ":" FNR, "no place for a widget toolkit")
    close(qt_core "/" part[2])
  }
  END {
    for (folder in built) {
      if (folder ~ /\// && !(folder in added)) problem(built[folder] ":1", "a folder that nobody adds")
    }
    for (pair in uses) {
      split(pair, names, SUBSEP)
      folder = names[1]
      other = folder_with[names[2]]
      if (names[2] ~ /^Qt6::/ && names[2] != "Qt6::Core" && !has_windows(folder)) {
        problem(uses[pair], "no place for " names[2])
      }
      if (!other && names[2] !~ /::/) problem(uses[pair], names[2] " is no room")
      if (!other || other == folder) continue
      if (!(pair in needed)) problem(uses[pair], names[2] " is named and not needed")
      if (height(other) >= height(folder)) problem(uses[pair], names[2] " stands below " room_in[folder])
      if (has_windows(other) && !has_windows(folder)) problem(uses[pair], "no place for " names[2])
    }
    exit failed
  }' $folders $files
